import unittest

import manual
from tree import Tree

OPTIONS = """
parser.set_version_flag("--version", std::string("vantrel ") + version, "Print; exit");
parser.add_flag("--probe", line.probe, "Ask (all) \\"monitors\\"; exit");
const CLI::Option* log =
    parser.add_option("--log", log, std::string("Show the log; from: ") + names)->type_name("LEVEL");
const CLI::Option* simulate =
    parser
        .add_option(
            "--simulate", simulate, "A desk")
        ->expected(0, 1)
        ->type_name("[FILE]");
"""
STATUSES = "inline constexpr int success = 0;\ninline constexpr int mistake = 2;\n"
PAGE = """.TH VANTREL 1
.SH OPTIONS
.TP
.B \\-\\-version
Print.
.TP
.B \\-\\-probe
Ask.
.TP
.BR \\-\\-log " " \\fILEVEL\\fR
Show.
.TP
.BR \\-\\-simulate " [" \\fIFILE\\fR ]
A desk.
.SH EXIT STATUS
.TP
.B 0
Good.
.TP
.B 2
Bad.
.SH EXAMPLES
.TP
.B vantrel \\-\\-anything
"""


def findings(page=PAGE, options=OPTIONS, statuses=STATUSES):
    texts = {manual.PAGE: page, manual.OPTIONS: options, manual.STATUSES: statuses}
    return list(manual.check(Tree({path: text for path, text in texts.items() if text is not None})))


class ManualTest(unittest.TestCase):
    def test_a_page_that_agrees_is_good(self):
        self.assertEqual(findings(), [])

    def test_an_option_that_the_page_lacks_is_found(self):
        (finding,) = findings(options=OPTIONS + 'parser.add_flag("--new", line.fresh, "New");\n')
        self.assertIn("lacks --new", finding.reason)

    def test_an_option_that_is_gone_is_found_at_its_line(self):
        (finding,) = findings(options=OPTIONS.replace('parser.add_flag("--probe"', 'parser.other("--probe"'))
        self.assertIn("has --probe", finding.reason)
        self.assertEqual(finding.line, 7)

    def test_a_value_that_changed_is_found(self):
        self.assertEqual(len(findings(options=OPTIONS.replace('"LEVEL"', '"[LEVEL]"'))), 2)

    def test_an_exit_status_that_the_page_lacks_is_found(self):
        (finding,) = findings(statuses=STATUSES + "inline constexpr int nothing = 1;\n")
        self.assertIn("EXIT STATUS lacks 1", finding.reason)

    def test_options_that_it_cannot_read_are_found(self):
        self.assertIn("nothing for OPTIONS", findings(options="")[0].reason)

    def test_a_page_that_is_gone_is_found(self):
        (finding,) = findings(page=None)
        self.assertEqual(finding.path, manual.PAGE)


if __name__ == "__main__":
    unittest.main()
