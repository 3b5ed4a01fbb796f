"""The icon file is one, and the one of the application holds every size."""

import pathlib
import struct
import unittest

import icns

ICON = pathlib.Path(__file__).resolve().parents[2] / "packaging/macos/Vantrel.icns"


def side_of(png):
    if png[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError("no PNG")
    width, height = struct.unpack(">II", png[16:24])
    return width if width == height else None


class IcnsTest(unittest.TestCase):
    def test_gives_back_what_it_packed(self):
        pictures = [(b"ic07", b"one"), (b"ic08", b""), (b"ic10", b"three")]
        self.assertEqual(icns.unpack(icns.pack(pictures)), pictures)

    def test_objects_to_a_file_that_is_cut_short(self):
        with self.assertRaises(ValueError):
            icns.unpack(icns.pack([(b"ic07", b"one")])[:-1])

    def test_objects_to_a_picture_that_is_longer_than_the_file(self):
        with self.assertRaises(ValueError):
            icns.unpack(b"icns" + struct.pack(">I", 16) + b"ic07" + struct.pack(">I", 9))

    def test_the_application_has_every_size(self):
        found = [(kind, side_of(png)) for kind, png in icns.unpack(ICON.read_bytes())]
        self.assertEqual(found, icns.KINDS)


if __name__ == "__main__":
    unittest.main()
