#!/usr/bin/env python3
"""Compiles macOS sources, without output, against the stand-in headers of
tests/macos/include: type_check.py FILE-OR-FOLDER...

Prints the diagnostics and fails if there are any."""

import argparse
import sys

import compiler
import runner


def check(path, build):
    return runner.run(compiler.command(path, build, "-fsyntax-only", *compiler.WARNINGS))


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("paths", nargs="+", metavar="FILE-OR-FOLDER")
    arguments.add_argument("--build", default=compiler.default_build())
    chosen = arguments.parse_args()
    return runner.report("type check", check, chosen.paths, chosen.build)


if __name__ == "__main__":
    sys.exit(main())
