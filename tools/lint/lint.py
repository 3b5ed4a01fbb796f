#!/usr/bin/env python3
"""Runs every lint over the repository and prints file:line: reason. The lints'
own tests: python3 -m unittest discover -s tools/lint"""

import pathlib
import sys

import coroutines
import documents
import headers
import layers
import manual
import releases
import seam
import tested
import words
from tree import repository

LINTS = (layers, seam, coroutines, words, headers, tested, documents, manual, releases)


def main():
    tree = repository(pathlib.Path(__file__).resolve().parents[2])
    findings = sorted({finding for lint in LINTS for finding in lint.check(tree)})
    for finding in findings:
        print(finding)
    print(f"{len(LINTS)} lints, {len(tree.paths())} files, {len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
