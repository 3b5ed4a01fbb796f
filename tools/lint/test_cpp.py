import unittest

import cpp


class CppTest(unittest.TestCase):
    def test_comments_and_strings_are_blank_and_keep_their_place(self):
        text = 'a; // b\n"c\\"d" /* e\nf */ g'
        stripped = cpp.code(text)
        self.assertEqual(len(stripped), len(text))
        self.assertEqual(stripped.split(), ["a;", '"', '"', "g"])
        self.assertEqual(stripped.count("\n"), 2)

    def test_a_raw_string_ends_at_its_own_mark(self):
        self.assertNotIn("rand", cpp.code('auto s = R"x(rand() " )" )x"; f();'))
        self.assertIn("f();", cpp.code('auto s = R"x(rand() " )" )x"; f();'))

    def test_a_digit_separator_is_no_character(self):
        self.assertIn("rand", cpp.code("int a = 1'000; rand(); int b = 2'000;"))

    def test_a_quote_character_opens_no_string(self):
        self.assertIn("rand", cpp.code("char c = '\"'; rand(); char d = '\"';"))

    def test_includes_tell_quotes_from_brackets(self):
        text = '#include <vector>\n\n#  include "text/Hex.h"\n'
        self.assertEqual(list(cpp.includes(text)), [(1, "vector", True), (3, "text/Hex.h", False)])


if __name__ == "__main__":
    unittest.main()
