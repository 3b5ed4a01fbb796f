#!/usr/bin/env python3
"""Compares what macOS sources take from the system's frameworks with
tests/macos/allowed-symbols.txt, both ways: symbol_check.py FILE-OR-FOLDER...

Unlike link_check.py it needs nothing but these sources, so it doesn't judge what is listed
for the C library, which the rest of the program links too."""

import pathlib
import sys

import compiler
import runner
import symbols
import type_check

LIST = compiler.ROOT / "tests/macos/allowed-symbols.txt"


def main():
    parser = runner.arguments(__doc__)
    parser.add_argument("--allowed", type=pathlib.Path, default=LIST)
    chosen = parser.parse_args()
    try:
        compiler.require("llvm-nm-16")
        allowed = symbols.parse(chosen.allowed)
        files = runner.sources(chosen.paths)
        results = runner.each(type_check.check, files, chosen.build)
    except (compiler.Missing, symbols.Wrong, OSError) as problem:
        print(f"symbol check: {problem}", file=sys.stderr)
        return 2
    found = [output for _, passes, output in results if not passes]
    if not found:
        needed = symbols.undefined(*(type_check.object_of(path, chosen.build) for path in files))
        owners = {symbol.owner for symbol in allowed} - symbols.SHARED
        found = list(symbols.findings(needed, allowed, chosen.allowed.name, owners))
    for finding in found:
        print(finding, file=sys.stderr)
    print(f"symbol check: {len(files)} files, {len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
