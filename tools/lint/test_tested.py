import unittest

import tested
from tree import Tree

SOURCE = {"src/platform/simulated/Desk.cpp": "", "src/platform/simulated/Desk.h": ""}
TEST = {"tests/simulated/DeskTest.cpp": ""}


class TestedTest(unittest.TestCase):
    def count(self, texts, untested=()):
        return len(tested.check(Tree(texts), dict.fromkeys(untested, "a reason")))

    def test_a_source_with_its_test_is_good(self):
        self.assertEqual(self.count(SOURCE | TEST), 0)

    def test_a_test_may_add_an_aspect_to_the_name(self):
        self.assertEqual(self.count(SOURCE | {"tests/simulated/DeskPlugTest.cpp": ""}), 0)

    def test_a_test_belongs_to_the_longest_name_that_fits(self):
        other = {"src/platform/simulated/DeskFile.h": "", "tests/simulated/DeskFileTest.cpp": ""}
        self.assertEqual(self.count(SOURCE | other), 1)

    def test_a_test_of_another_room_does_not_count(self):
        self.assertEqual(self.count(SOURCE | {"tests/ddc/DeskTest.cpp": ""}), 1)

    def test_a_source_without_a_test_is_found(self):
        self.assertEqual(self.count(SOURCE), 1)

    def test_an_exception_is_left_alone(self):
        self.assertEqual(self.count(SOURCE, ["src/platform/simulated/Desk.cpp"]), 0)

    def test_an_exception_that_has_a_test_is_found(self):
        self.assertEqual(self.count(SOURCE | TEST, ["src/platform/simulated/Desk.cpp"]), 1)

    def test_an_exception_that_is_gone_is_found(self):
        self.assertEqual(self.count(SOURCE | TEST, ["src/ddc/Gone.cpp"]), 1)

    def test_a_source_without_a_header_has_no_type_of_its_own(self):
        self.assertEqual(self.count({"src/app/main.cpp": ""}), 0)


if __name__ == "__main__":
    unittest.main()
