import unittest

import headers
from tree import Tree

GOOD = """// What it is for.
#pragma once

namespace vantrel::ddc {

class DDCWorker {};

}  // namespace vantrel::ddc
"""


def reasons(path, text):
    return [f.reason for f in headers.check(Tree({path: text}))]


class HeadersTest(unittest.TestCase):
    def test_a_good_header_is_left_alone(self):
        self.assertEqual(reasons("src/ddc/DDCWorker.h", GOOD), [])

    def test_a_header_begins_with_a_comment(self):
        (reason,) = reasons("src/ddc/DDCWorker.h", GOOD.split("\n", 1)[1])
        self.assertIn("without a comment", reason)

    def test_a_header_is_included_once(self):
        (reason,) = reasons("src/ddc/DDCWorker.h", GOOD.replace("#pragma once", ""))
        self.assertIn("#pragma once", reason)

    def test_the_file_is_named_as_its_type(self):
        (reason,) = reasons("src/ddc/Worker2.h", GOOD)
        self.assertIn("declares no Worker2", reason)

    def test_a_comment_declares_nothing(self):
        text = GOOD.replace("class DDCWorker", "// class DDCWorker\nclass Other")
        self.assertEqual(len(reasons("src/ddc/DDCWorker.h", text)), 1)

    def test_a_namespace_without_instances_counts_as_a_type(self):
        text = GOOD.replace("class DDCWorker {};", "").replace("vantrel::ddc", "vantrel::ddc::Probe")
        self.assertEqual(reasons("src/ddc/Probe.h", text), [])

    def test_free_functions_are_named_after_their_subject(self):
        text = GOOD.replace("class DDCWorker {};", "Bytes requestPacket(int value);")
        self.assertEqual(reasons("src/ddc/DDCFrame.h", text), [])

    def test_a_subject_of_several_types_is_an_exception(self):
        path = next(iter(headers.NAMED_AFTER_SUBJECT))
        self.assertEqual(reasons(path, GOOD.replace("vantrel::ddc", "vantrel::simulated")), [])

    def test_the_namespace_is_the_folder(self):
        (reason,) = reasons("src/mccs/DDCWorker.h", GOOD)
        self.assertIn("vantrel::mccs", reason)

    def test_half_of_the_headers_are_short(self):
        long = GOOD + "//\n" * headers.HEADER_MEDIAN
        texts = {"src/ddc/DDCWorker.h": long, "src/ddc/a/DDCWorkerA.h": long}
        self.assertTrue(any("half the headers" in f.reason for f in headers.check(Tree(texts))))
        texts = {f"src/ddc/DDCWorker{i}.h": GOOD for i in range(3)}
        texts["src/ddc/DDCWorker.h"] = long
        self.assertFalse(any("half the headers" in f.reason for f in headers.check(Tree(texts))))

    def test_half_of_the_sources_are_short(self):
        long = Tree({"src/ddc/A.cpp": "//\n" * headers.SOURCE_MEDIAN})
        short = Tree({"src/ddc/A.cpp": "//\n" * (headers.SOURCE_MEDIAN - 1)})
        self.assertEqual(len(headers.check(long)), 1)
        self.assertEqual(headers.check(short), [])


if __name__ == "__main__":
    unittest.main()
