"""Clocks, sleeps, threads and chance come through the seam only."""

import re

import cpp
from tree import Finding

# The implementations of the seam, and what measures real time for a living.
EXEMPT = ("src/runtime/RealScheduler.", "src/platform/linux/DescriptorThread.", "src/platform/simulated/VirtualTime.", "bench/")
# Sources that need the thing itself, and what they may do.
EXCEPTIONS = {
    "src/platform/macos/MacRunLoop.cpp": "reads a clock",  # the one that the run loop's timers are set in
    "tests/runtime/RealSchedulerTest.cpp": "reads a clock",  # compares with it
    "tests/simulated/VirtualTimeTest.cpp": "starts a thread",  # one that virtual time doesn't know
    "tests/platform/PrivateFunctionsTest.cpp": "starts a thread",  # first uses that really meet
    "tests/macos/include/CoreFoundation/CFDate.h": "reads a clock",  # declares how
    "tests/macos/fake/FakeRunLoop.cpp": "reads a clock",  # defines it, in the scheduler's time
}
# A standard engine with a seed gives the same numbers everywhere; this header is
# where tests and fuzzers get seeds that they show and replay.
SEEDS = '#include "support/RandomSeeds.h"'

SEEDED = "uses chance without a seed to replay"
RULES = [
    (r"\b(?:system|steady|high_resolution|utc|tai|gps|file)_clock\s*::\s*now\b", "reads a clock"),
    (r"(?<![\w.>:])(?:::|std::)?time\s*\(\s*(?:0|NULL|nullptr|&\s*\w+)\s*\)|\bstd::clock\s*\(", "reads a clock"),
    (r"\b(?:gettimeofday|clock_gettime|timespec_get|mach_absolute_time)\s*\(", "reads a clock"),
    (r"\b(?:CFAbsoluteTimeGetCurrent|CACurrentMediaTime|mach_continuous_time)\s*\(", "reads a clock"),
    (r"\b(?:sleep_for|sleep_until|usleep|nanosleep|clock_nanosleep|qWait|qSleep)\s*\(", "sleeps"),
    (r"(?<![\w.>:])(?:::)sleep\s*\(|\bQThread\b", "sleeps"),
    (r"\bstd\s*::\s*j?thread\b(?!\s*::\s*id\b)|\bstd\s*::\s*async\b|\bpthread_create\b", "starts a thread"),
    (r"\bstd\s*::\s*condition_variable(?:_any)?\b", "waits for another thread"),
    (r"\bstd\s*::\s*(?:counting_semaphore|binary_semaphore|latch|barrier)\b", "waits for another thread"),
    (r"\bstd\s*::\s*(?:random_device|default_random_engine|minstd_rand0?)\b", "uses chance"),
    (r"\bstd\s*::\s*mt19937(?:_64)?\b", SEEDED),
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
            if EXCEPTIONS.get(path) == reason:
                continue
            if reason == SEEDED and path.startswith("tests/") and SEEDS in tree.text(path):
                continue
            for match in pattern.finditer(text):
                line = cpp.line_of(text, match.start())
                findings.append(Finding(path, line, f"{reason} past the seam: {match.group().strip()}"))
    return findings
