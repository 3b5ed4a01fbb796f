#!/usr/bin/env python3
"""Judges the growth of benchmarks, not their times: growth.py <google-benchmark JSON>...

A benchmark that runs over sizes and declares its complexity may take, from its
smallest to its largest size, a few times longer than that complexity says."""

import json
import math
import sys

# Caches and memory make large sizes dearer by themselves.
SLACK = 4

COMPLEXITIES = {
    "(1)": lambda n: 1,
    "lgN": lambda n: math.log2(n),
    "N": lambda n: n,
    "NlgN": lambda n: n * math.log2(n),
    "N^2": lambda n: n * n,
}
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def families(report):
    """name -> (declared complexity, {size: nanoseconds})"""
    declared = {}
    times = {}
    for entry in report["benchmarks"]:
        name = entry["run_name"]
        if "big_o" in entry:
            declared[name] = entry["big_o"]
        elif entry["run_type"] == "iteration" and "/" in name:
            family, size = name.rsplit("/", 1)
            if size.isdigit():
                times.setdefault(family, {})[int(size)] = entry["cpu_time"] * NANOSECONDS[entry["time_unit"]]
    return {name: (declared[name], times[name]) for name in declared if len(times.get(name, ())) > 1}


def judge(report):
    """One (passes, line) per benchmark that declares its complexity."""
    for name, (complexity, times) in families(report).items():
        small, large = min(times), max(times)
        expected = COMPLEXITIES[complexity](large) / COMPLEXITIES[complexity](small)
        measured = times[large] / times[small]
        line = f"{name}: x{large / small:.0f} in size, x{measured:.1f} in time, O({complexity.strip('()')})"
        yield measured <= SLACK * expected, line


def main(paths):
    good = True
    for path in paths:
        with open(path, encoding="utf-8") as file:
            report = json.load(file)
        if not report["benchmarks"]:
            print(f"{path}: no benchmarks")
            good = False
        for passes, line in judge(report):
            print(line if passes else f"{line}: grows too fast")
            good = good and passes
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
