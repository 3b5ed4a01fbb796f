"""docs/macos-checks.md lists what the stand-in headers are unsure about."""

import unittest

import compiler
import unsure


class UnsureTest(unittest.TestCase):
    def test_the_document_lists_every_declaration_in_doubt(self):
        text = (compiler.ROOT / "docs/macos-checks.md").read_text(encoding="utf-8")
        section = text.split("## Unsure", 1)[1].split("\n## ", 1)[0]
        listed = [line.removeprefix("- ") for line in section.splitlines() if line.startswith("- ")]
        self.assertEqual(listed, unsure.remarks())


if __name__ == "__main__":
    unittest.main()
