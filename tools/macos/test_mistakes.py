"""Every planted mistake of tests/macos/mistakes is caught by the check and with the words
that its first line names, and the same file without the mistake passes that check."""

import re
import tempfile
import unittest

import analyze
import compiler
import runner
import symbols
import type_check

FOLDER = compiler.ROOT / "tests/macos/mistakes"
FIRST_LINE = re.compile(r"// (type check|analysis|symbol check): (.+)\n")


def check_symbols(path, build, *more):
    passes, output = type_check.check(path, build, *more)
    if not passes:
        return False, f"does not even compile: {output}"
    allowed = path.with_name(path.stem + ".symbols.txt")
    needed = symbols.undefined(type_check.object_of(path, build))
    found = list(symbols.findings(needed, symbols.parse(allowed), allowed.name))
    return not found, "\n".join(found)


CHECKS = {"type check": type_check.check, "analysis": analyze.check, "symbol check": check_symbols}


def judge(path, build):
    """What is wrong with the mistake or with the check that should catch it; "" if nothing."""
    first = FIRST_LINE.match(path.read_text(encoding="utf-8"))
    if not first:
        return "its first line names no check"
    check, words = CHECKS[first.group(1)], first.group(2)
    passes, output = check(path, build)
    if not passes:
        return f"fails without its mistake too:\n{output}"
    passes, output = check(path, build, "-DMISTAKE")
    if passes:
        return "its mistake is not caught"
    return "" if words in output else f"is caught, but without the words \"{words}\":\n{output}"


class MistakesTest(unittest.TestCase):
    maxDiff = None

    def test_every_planted_mistake_is_caught(self):
        mistakes = runner.sources([FOLDER])
        self.assertGreater(len(mistakes), 20)
        with tempfile.TemporaryDirectory() as build:
            results = runner.each(lambda path, build: (judge(path, build),), mistakes, build)
        self.assertEqual([f"{path.name} {problem}" for path, problem in results if problem], [])

    def test_each_check_has_a_mistake_to_catch(self):
        named = {FIRST_LINE.match(path.read_text(encoding="utf-8")).group(1) for path in runner.sources([FOLDER])}
        self.assertEqual(named, set(CHECKS))


if __name__ == "__main__":
    unittest.main()
