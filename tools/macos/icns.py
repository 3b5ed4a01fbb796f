#!/usr/bin/env python3
"""Makes the icon of the macOS application from its drawing.

    tools/macos/icns.py packaging/macos/Vantrel.svg packaging/macos/Vantrel.icns

Needs rsvg-convert (Debian's librsvg2-bin). The result is kept in the repository, so
that a build on macOS needs nothing of this."""

import struct
import subprocess
import sys

# What an icon file calls its pictures (PNG), and how many pixels wide they are. Smaller
# ones are made from these by the system.
KINDS = [(b"ic11", 32), (b"ic12", 64), (b"ic07", 128), (b"ic13", 256), (b"ic08", 256), (b"ic14", 512),
         (b"ic09", 512), (b"ic10", 1024)]


def pack(pictures):
    """The bytes of an icon file; `pictures` is a list of (kind, PNG bytes)."""
    body = b"".join(kind + struct.pack(">I", len(png) + 8) + png for kind, png in pictures)
    return b"icns" + struct.pack(">I", len(body) + 8) + body


def unpack(data):
    if data[:4] != b"icns" or struct.unpack(">I", data[4:8])[0] != len(data):
        raise ValueError("no icon file, or cut short")
    pictures, at = [], 8
    while at < len(data):
        kind, length = data[at:at + 4], struct.unpack(">I", data[at + 4:at + 8])[0]
        if length < 8 or at + length > len(data):
            raise ValueError(f"a picture {kind!r} of a wrong length")
        pictures.append((kind, data[at + 8:at + length]))
        at += length
    return pictures


def drawn(svg, side):
    command = ["rsvg-convert", "--width", str(side), "--height", str(side), svg]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    pictures = {side: drawn(sys.argv[1], side) for _, side in KINDS}
    with open(sys.argv[2], "wb") as icon:
        icon.write(pack([(kind, pictures[side]) for kind, side in KINDS]))


if __name__ == "__main__":
    main()
