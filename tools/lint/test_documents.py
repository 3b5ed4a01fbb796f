import unittest

import documents
from tree import Tree

README = "# Title\n\n```\nscript/run --simulate\nscript/test\n```\n"
GOOD = {
    "LICENSE": "MIT License\n",
    "README.md": README,
    "docs/a.md": "See [b](b.md#top) and [the readme](../README.md), `src/text/`, [out](https://a.b/c).\n",
    "docs/b.md": "",
    "src/text/Hex.h": "",
    "script/run": "",
    "script/test": "",
}


def reasons(executables=("script/run", "script/test"), **changes):
    return [f.reason for f in documents.check(Tree(GOOD | changes, executables))]


class DocumentsTest(unittest.TestCase):
    def test_good_documents_are_left_alone(self):
        self.assertEqual(reasons(), [])

    def test_a_link_to_nowhere_is_found(self):
        self.assertEqual(len(reasons(**{"docs/a.md": "[gone](gone.md)"})), 1)

    def test_a_path_to_nowhere_is_found(self):
        self.assertEqual(len(reasons(**{"docs/a.md": "`src/gone/`"})), 1)

    def test_a_command_has_to_be_executable(self):
        self.assertEqual(len(reasons(executables=["script/test"])), 1)

    def test_the_readme_shows_its_two_commands(self):
        (reason,) = reasons(**{"README.md": README.replace("script/test", "")})
        self.assertIn("script/test", reason)

    def test_another_licence_is_found(self):
        self.assertEqual(len(reasons(LICENSE="All rights reserved\n")), 1)


if __name__ == "__main__":
    unittest.main()
