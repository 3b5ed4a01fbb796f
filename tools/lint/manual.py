"""The manual page tells of the options and exit statuses that the program has."""

import re

from cpp import line_of
from tree import Finding

PAGE = "packaging/linux/vantrel.1"
OPTIONS = "src/app/CommandLine.cpp"
STATUSES = "src/app/ExitStatus.h"

_STRING = r'"(?:[^"\\]|\\.)*"'
# A call that adds an option, to the end of its statement.
_OPTION = re.compile(
    r'\b(?:add_option|add_flag|set_version_flag|set_help_flag)\(\s*"([^"]+)"((?:' + _STRING + r'|[^";])*);')
_VALUE = re.compile(r'\btype_name\(\s*"([^"]*)"')
_STATUS = re.compile(r"\bconstexpr int \w+ = (\d+);")
_SECTION = re.compile(r"^\.SH (.+)\n((?:(?!\.SH ).*\n?)*)", re.MULTILINE)
_TERM = re.compile(r"^\.TP\n(.*)$", re.MULTILINE)


def check(tree):
    for path in (PAGE, OPTIONS, STATUSES):
        if not tree.exists(path):
            return [Finding(path, 1, "is not there: tools/lint/manual.py compares it")]
    page, statuses = tree.text(PAGE), tree.text(STATUSES)
    return [
        *_compare("OPTIONS", _terms(page, "OPTIONS"), _options(tree.text(OPTIONS)), OPTIONS),
        *_compare("EXIT STATUS", _terms(page, "EXIT STATUS"), set(_STATUS.findall(statuses)), STATUSES),
    ]


def _options(source):
    """As the manual writes them: --log LEVEL"""
    options = set()
    for match in _OPTION.finditer(source):
        value = _VALUE.search(match.group(2))
        options.add(f"{match.group(1)} {value.group(1)}" if value else match.group(1))
    return options


def _terms(page, section):
    """What a section's entries are headed with, and the line of each."""
    terms = {}
    for found in _SECTION.finditer(page):
        if found.group(1) == section:
            for term in _TERM.finditer(found.group(2)):
                terms[_plain(term.group(1))] = line_of(page, found.start(2) + term.start(1))
    return terms


def _plain(request):
    """.BR \\-\\-log " " \\fILEVEL\\fR -> --log LEVEL"""
    words = re.findall(r'"[^"]*"|\S+', re.sub(r"^\.B[RI]? ", "", request))
    glue = "" if re.match(r"\.B[RI] ", request) else " "
    return re.sub(r"\\f.", "", glue.join(word.strip('"') for word in words)).replace("\\-", "-")


def _compare(section, written, real, source):
    if not real:
        yield Finding(source, 1, f"has nothing for {section} that tools/lint/manual.py understands")
    for term in sorted(real - written.keys()):
        yield Finding(PAGE, 1, f"{section} lacks {term} of {source}")
    for term in sorted(written.keys() - real):
        yield Finding(PAGE, written[term], f"{section} has {term}, which {source} does not")
