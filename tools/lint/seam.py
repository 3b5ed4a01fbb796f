"""Clocks, sleeps, threads and chance come through the seam only."""

import re

import cpp
from tree import Finding

# The implementations of the seam, and what measures real time for a living.
EXEMPT = ("src/runtime/RealScheduler.", "src/platform/simulated/VirtualTime.", "bench/")

RULES = [
    (r"\b(?:system|steady|high_resolution|utc|tai|gps|file)_clock\s*::\s*now\b", "reads a clock"),
    (r"(?<![\w.>:])(?:::|std::)?time\s*\(\s*(?:0|NULL|nullptr|&\s*\w+)\s*\)|\bstd::clock\s*\(", "reads a clock"),
    (r"\b(?:gettimeofday|clock_gettime|timespec_get|mach_absolute_time)\s*\(", "reads a clock"),
    (r"\b(?:sleep_for|sleep_until|usleep|nanosleep|clock_nanosleep|qWait|qSleep)\s*\(", "sleeps"),
    (r"(?<![\w.>:])(?:::)sleep\s*\(|\bQThread\b", "sleeps"),
    (r"\bstd\s*::\s*j?thread\b(?!\s*::\s*id\b)|\bstd\s*::\s*async\b|\bpthread_create\b", "starts a thread"),
    (r"\bstd\s*::\s*condition_variable(?:_any)?\b", "waits for another thread"),
    (r"\bstd\s*::\s*(?:counting_semaphore|binary_semaphore|latch|barrier)\b", "waits for another thread"),
    (r"\bstd\s*::\s*(?:random_device|mt19937(?:_64)?|default_random_engine|minstd_rand0?)\b", "uses chance"),
    (r"(?<![\w.>:])(?:::|std::)?s?rand\s*\(|\barc4random|\bgetrandom\s*\(", "uses chance"),
]
RULES = [(re.compile(pattern), reason) for pattern, reason in RULES]


def check(tree):
    findings = []
    for path in tree.paths(".h", ".cpp", ".mm"):
        if path.startswith(EXEMPT):
            continue
        text = cpp.code(tree.text(path))
        for pattern, reason in RULES:
            for match in pattern.finditer(text):
                line = cpp.line_of(text, match.start())
                findings.append(Finding(path, line, f"{reason} past the seam: {match.group().strip()}"))
    return findings
