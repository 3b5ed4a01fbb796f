"""link_check.py builds the sample of tests/macos/sample, is content with it, and finds what
is planted in the bundle."""

import pathlib
import plistlib
import shutil
import tempfile
import unittest

import compiler
import link_check
import symbols

SAMPLE = compiler.ROOT / "tests/macos/sample"
LIST = SAMPLE / "allowed-symbols.txt"


class LinkCheckTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="vantrel."))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        passes, output = link_check.build(SAMPLE, cls.folder, LIST)
        if not passes:
            raise AssertionError(output)
        cls.bundle = cls.folder / "Sample.app"

    def reasons(self, change=lambda bundle: None, allowed=LIST):
        with tempfile.TemporaryDirectory() as folder:
            bundle = pathlib.Path(folder) / "Sample.app"
            shutil.copytree(self.bundle, bundle)
            change(bundle)
            return "\n".join(link_check.inspect(bundle, allowed))

    def reasons_with_list(self, old, new):
        text = LIST.read_text(encoding="utf-8")
        self.assertIn(old, text)
        with tempfile.NamedTemporaryFile("w", suffix=".txt") as file:
            file.write(text.replace(old, new))
            file.flush()
            return self.reasons(allowed=file.name)

    def test_the_sample_is_good(self):
        self.assertEqual(self.reasons(), "")

    def test_a_program_that_is_in_the_dock_is_found(self):
        def change(bundle):
            path = bundle / "Contents/Info.plist"
            plist = plistlib.loads(path.read_bytes())
            path.write_bytes(plistlib.dumps({key: value for key, value in plist.items() if key != "LSUIElement"}))

        self.assertIn("LSUIElement is None", self.reasons(change))

    def test_a_bundle_without_its_description_is_found(self):
        self.assertIn("has no", self.reasons(lambda bundle: (bundle / "Contents/Info.plist").unlink()))

    def test_a_description_of_another_program_is_found(self):
        def change(bundle):
            binary = bundle / "Contents/MacOS/Sample"
            binary.rename(binary.with_name("Other"))

        self.assertIn("names Sample", self.reasons(change))

    def test_a_symbol_that_is_not_listed_is_found(self):
        self.assertIn("class NSStatusBar", self.reasons_with_list("class NSStatusBar\n", ""))

    def test_a_symbol_that_is_listed_in_vain_is_found(self):
        self.assertIn("not linked: NSZeroRect", self.reasons_with_list("NSApp\n", "NSApp\nNSZeroRect\n"))

    def test_a_private_symbol_may_not_be_listed(self):
        with self.assertRaisesRegex(symbols.Wrong, "private"):
            self.reasons_with_list("NSApp\n", "NSApp\nDisplayServicesSetBrightness\n")

    def test_a_program_for_a_newer_system_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            newer = "-DSAMPLE_MORE=-Wl,-platform_version,macos,14.0,14.0"
            passes, output = link_check.build(SAMPLE, folder, LIST, [newer])
            self.assertTrue(passes, output)
            found = "\n".join(link_check.inspect(pathlib.Path(folder) / "Sample.app", LIST))
            self.assertIn("minimum version 14.0", found)

    def test_objects_that_nobody_counts_are_found(self):
        self.assertEqual(list(link_check.uncounted(self.folder)), [])
        with tempfile.TemporaryDirectory() as folder:
            link_check.build(SAMPLE, folder, LIST, ["-DSAMPLE_COUNTED=OFF"])
            (reason,) = link_check.uncounted(pathlib.Path(folder))
            self.assertIn("main.mm is compiled without -fobjc-arc", reason)

    def test_what_is_not_listed_can_not_be_linked(self):
        with tempfile.TemporaryDirectory() as folder:
            shorter = pathlib.Path(folder) / "list.txt"
            shorter.write_text(LIST.read_text(encoding="utf-8").replace("IOObjectRelease\n", ""), encoding="utf-8")
            passes, output = link_check.build(SAMPLE, pathlib.Path(folder) / "build", shorter)
            self.assertFalse(passes)
            self.assertIn("undefined symbol: _IOObjectRelease", output)


if __name__ == "__main__":
    unittest.main()
