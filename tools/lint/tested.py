"""Every source with a type of its own has a test that is named after it."""

import posixpath

from tree import Finding

# Sources without a test of their own, and why that is enough.
UNTESTED = {
    "src/runtime/Fatal.cpp": "every death test of the other types goes through it",
}


def test_of(source):
    """src/platform/simulated/VirtualTime.cpp -> tests/simulated/VirtualTimeTest.cpp"""
    room = posixpath.basename(posixpath.dirname(source))
    name = posixpath.basename(source).rsplit(".", 1)[0]
    return f"tests/{room}/{name}Test.cpp"


def check(tree, untested=None):
    untested = UNTESTED if untested is None else untested
    findings = []
    for source in tree.paths(".cpp", below="src/"):
        is_tested = tree.exists(test_of(source))
        if not tree.exists(source.removesuffix(".cpp") + ".h"):
            continue
        if not is_tested and source not in untested:
            findings.append(Finding(source, 1, f"has no {test_of(source)}"))
        if is_tested and source in untested:
            findings.append(Finding(source, 1, "has a test by now: take it out of tools/lint/tested.py"))
    for source in untested:
        if not tree.exists(source):
            findings.append(Finding(source, 1, "is gone: take it out of tools/lint/tested.py"))
    return findings
