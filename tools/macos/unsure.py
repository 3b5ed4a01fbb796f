#!/usr/bin/env python3
"""Prints every `// unsure:` of the stand-in headers, as docs/macos-checks.md lists them."""

import sys

import compiler

MARK = "// unsure: "


def remarks():
    """["`AppKit/NSView.h`: what is unsure"]"""
    found = []
    for path in sorted(compiler.STANDINS.rglob("*.h")):
        for line in path.read_text(encoding="utf-8").splitlines():
            if MARK in line:
                found.append(f"`{path.relative_to(compiler.STANDINS)}`: {line.split(MARK)[1]}")
    return found


if __name__ == "__main__":
    print("\n".join(f"- {remark}" for remark in remarks()))
    sys.exit()
