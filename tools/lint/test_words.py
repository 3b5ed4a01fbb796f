import unittest

import words
from tree import Tree

# Put together, so that the lint does not find its own test.
BAD = [
    "// TO" + "DO: more",
    "// FIX" + "ME",
    "HA" + "CK",
    "X" + "XX",
    "TEST(A, DIS" + "ABLED_B)",
    "GTEST" + "_SKIP();",
    "see Par" + "t 1.2",
    "as the sp" + "ec says",
    "the specific" + "ation",
    "per sp" + "ec",
    "/wo" + "rk/here",
    "/ho" + "me/somebody/project",
]
GOOD = [
    "the standard",
    "mktemp vantrel.XXXXXX",
    "a part 1 of 2",
    "homework/notes",
    "specific",
    "todo list",
]


def findings(text, path="docs/page.md"):
    return words.check(Tree({path: text}))


class WordsTest(unittest.TestCase):
    def test_every_word_is_found(self):
        for text in BAD:
            with self.subTest(text):
                self.assertEqual(len(findings(text)), 1)

    def test_ordinary_words_are_left_alone(self):
        for text in GOOD:
            with self.subTest(text):
                self.assertEqual(findings(text), [])

    def test_every_kind_of_file_is_read(self):
        for path in ("README.md", "src/a/B.cpp", "script/run", "CMakeLists.txt"):
            self.assertEqual(len(findings(BAD[0], path)), 1)


if __name__ == "__main__":
    unittest.main()
