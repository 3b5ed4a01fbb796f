#!/usr/bin/env python3
"""Compiles macOS sources against the stand-in headers of tests/macos/include:
type_check.py FILE-OR-FOLDER...

Prints the diagnostics, and fails if there are any. The objects are kept for symbol_check.py."""

import sys

import compiler
import runner


def object_of(path, build):
    place = compiler.place(path, build, "types")
    return place.with_name(place.name + ".o")


def check(path, build, *more):
    output = object_of(path, build)
    output.parent.mkdir(parents=True, exist_ok=True)
    command = compiler.command(path, build, "-c", "-o", str(output), *compiler.WARNINGS, *more)
    return runner.compile(command, path, build, "types", output)


if __name__ == "__main__":
    sys.exit(runner.main("type check", __doc__, check))
