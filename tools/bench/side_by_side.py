#!/usr/bin/env python3
"""Vantrel and ddcutil beside each other, on the same emulated bus.

    side_by_side.py BUILD [--runs N]

BUILD is a folder of a build with tests. Every task is done by each in turn, again and
again in one run, in processes of their own; what counts are the medians of their times,
and the median of the ratios of neighbours. Then each does it once more, watched: how many
transfers the bus saw, and how long the program slept, which are mostly pauses that DDC/CI
asks for. The rest is its own time, that of the bus, and the emulation's.
"""

import argparse
import json
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve()
DESK = HERE.with_name("desk.json")
# The desk's only monitor is on the first bus.
BUS = "4"
INSIDE = "--inside"
SHORTEST_PAUSE = 0.001

VANTREL, DDCUTIL = "vantrel", "ddcutil"


def tasks(build):
    """What to do, and the commands that do it: a list for each program."""
    build = pathlib.Path(build).resolve()
    vantrel = str(build / "src" / "vantrel")
    client = str(build / "tests" / "linux" / "clients" / "ddc_client")
    ddcutil = ["ddcutil", "--bus", BUS]
    return {
        "probe: 10 12 60 62 and capabilities": {
            VANTREL: [[vantrel, "--probe"]],
            DDCUTIL: [[*ddcutil, "getvcp", "--terse", "10", "12", "60", "62"], [*ddcutil, "capabilities"]]},
        "one read": {VANTREL: [[client, "read", "0x10"]], DDCUTIL: [[*ddcutil, "getvcp", "--terse", "10"]]},
        "one write": {VANTREL: [[client, "write", "0x10", "50"]],
                      DDCUTIL: [[*ddcutil, "--noverify", "setvcp", "10", "50"]]},
    }


def fresh_home(folder):
    """ddcutil remembers capabilities strings."""
    home = tempfile.mkdtemp(dir=folder)
    return os.environ | {"HOME": home, "XDG_CACHE_HOME": home, "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home}


def run(commands, folder):
    for command in commands:
        subprocess.run(command, env=fresh_home(folder), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)


def measure(build, runs):
    """Runs beside the desk; prints the times of each task and program as JSON."""
    times = {}
    with tempfile.TemporaryDirectory() as folder:
        for task, programs in tasks(build).items():
            times[task] = {program: [] for program in programs}
            # The first of each only warms up.
            for number in range(runs + 1):
                for program, commands in programs.items():
                    begin = time.perf_counter()
                    run(commands, folder)
                    if number > 0:
                        times[task][program].append(time.perf_counter() - begin)
    print(json.dumps(times))


def beside_desk(build, command, report=None):
    emulated_desk = str(pathlib.Path(build) / "tests" / "linux" / "kernel" / "emulated_desk")
    options = ["--report", report] if report else []
    return subprocess.run(["umockdev-wrapper", emulated_desk, *options, DESK, "--", *command], check=True,
                          capture_output=True, text=True).stdout


def watch(build, commands, folder):
    """Transfers on the bus, sleeps, and seconds slept."""
    report, trace = folder / "report.json", folder / "trace"
    transfers, sleeps, slept = 0, 0, 0.0
    for command in commands:
        traced = ["env", f"XDG_CACHE_HOME={tempfile.mkdtemp(dir=folder)}", "strace", "-f", "-qq", "-o", trace,
                  "-e", "trace=nanosleep,clock_nanosleep", *command]
        beside_desk(build, traced, report)
        transfers += json.loads(report.read_text())["displays"][0]["counters"]["transfers"]
        for seconds, nanoseconds in re.findall(r"\{tv_sec=(\d+), tv_nsec=(\d+)\}(?=, (?:NULL|0x|\{))", trace.read_text()):
            length = int(seconds) + int(nanoseconds) / 1e9
            # The emulation yields the processor by sleeping for no time.
            if length >= SHORTEST_PAUSE:
                sleeps += 1
                slept += length
    return transfers, sleeps, slept


def compare(build, runs):
    inside = [sys.executable, "-B", HERE, build, "--runs", str(runs), INSIDE]
    times = json.loads(beside_desk(build, inside))
    print(f"Medians of {runs} runs each, in ms; ratio: {DDCUTIL}'s time to {VANTREL}'s, pair by pair.")
    can_watch = shutil.which("strace") is not None
    for task, programs in tasks(build).items():
        print(f"\n{task}")
        for program, commands in programs.items():
            median = statistics.median(times[task][program])
            line = f"  {program:8} {median * 1000:8.1f}"
            if can_watch:
                with tempfile.TemporaryDirectory() as folder:
                    transfers, sleeps, slept = watch(build, commands, pathlib.Path(folder))
                line += (f"   {transfers:3} transfers, {sleeps:3} sleeps of {slept * 1000:7.1f} together,"
                         f" {(median - slept) * 1000:6.1f} for the rest")
            print(line)
        ratios = [other / ours for ours, other in zip(times[task][VANTREL], times[task][DDCUTIL])]
        print(f"  ratio    {statistics.median(ratios):8.2f}   ({min(ratios):.2f} to {max(ratios):.2f})")


def main():
    parser = argparse.ArgumentParser(description="Vantrel and ddcutil on the same emulated bus.")
    parser.add_argument("build")
    parser.add_argument("--runs", type=int, default=21)
    parser.add_argument(INSIDE, action="store_true", help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    os.environ.setdefault("TMPDIR", "/dev/shm" if os.path.isdir("/dev/shm") else "/tmp")
    (measure if arguments.inside else compare)(arguments.build, arguments.runs)


if __name__ == "__main__":
    main()
