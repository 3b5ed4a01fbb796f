"""Which files a check reads, and how several of them are checked at once."""

import concurrent.futures
import os
import pathlib
import subprocess
import sys

import compiler


def sources(paths):
    """The files themselves, and every source in the folders."""
    found = []
    for path in map(pathlib.Path, paths):
        found += sorted(f for f in path.iterdir() if f.suffix in (".mm", ".cpp")) if path.is_dir() else [path]
    return found


def run(command):
    """(passes, what it printed)"""
    done = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.returncode == 0, done.stdout


def report(name, check, paths, build):
    """Exit status of check(path, build) for every one of the paths; what failed is printed."""
    try:
        compiler.require()
    except compiler.Missing as missing:
        print(f"{name}: {missing}", file=sys.stderr)
        return 2
    files = sources(paths)
    if not files:
        print(f"{name}: no sources in {', '.join(map(str, paths))}", file=sys.stderr)
        return 2
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda path: check(path, build), files))
    failures = 0
    for path, (passes, output) in zip(files, results):
        if not passes:
            failures += 1
            print(output or f"{path}: failed without a word", file=sys.stderr)
    print(f"{name}: {len(files)} files, {failures} with findings")
    return 1 if failures else 0
