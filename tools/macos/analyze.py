#!/usr/bin/env python3
"""Runs clang's analyser on macOS sources, path by path through each function, for objects
that nobody releases (Core Foundation's, and IOKit's), and for whatever else it finds:
analyze.py FILE-OR-FOLDER...

Fails if it warns of anything."""

import fcntl
import pathlib
import sys

import compiler
import runner

# See io_handles.h there.
COMMON = compiler.ROOT / "tests/macos/analysis/common.h"
HANDLES = ("io_object_t", "io_iterator_t", "io_service_t", "io_registry_entry_t", "io_connect_t")
STATUSES = ("kern_return_t", "IOReturn")
NAMES = (*(f"-D{name}=zx_handle_t" for name in HANDLES), *(f"-D{name}=zx_status_t" for name in STATUSES))
CHECKERS = ("-Xclang", "-analyzer-output=text",
            "-Xclang", "-analyzer-checker=fuchsia.HandleChecker,nullability,optin.osx")


def common_headers(path, build):
    """COMMON compiled for the language of the path."""
    kind = f"analysis/common{pathlib.Path(path).suffix}"
    output = compiler.place(COMMON, build, kind).with_suffix(".pch")
    output.parent.mkdir(parents=True, exist_ok=True)
    language, *flags = compiler.language_flags(path)[1:]
    command = [compiler.CLANG, "-x", f"{language}-header", *flags, *compiler.platform_flags(build), *NAMES,
               "-o", str(output), str(COMMON)]
    with open(output.with_suffix(".lock"), "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        passes, printed = runner.compile(command, COMMON, build, kind, output)
    if not passes:
        raise compiler.Missing(f"{COMMON} does not compile:\n{printed}")
    return output


def check(path, build, *more):
    headers = ("-include-pch", str(common_headers(path, build)))
    command = compiler.command(path, build, "--analyze", *CHECKERS, *NAMES, *headers, *more)
    return runner.compile(command, path, build, "analysis")


if __name__ == "__main__":
    sys.exit(runner.main("analysis", __doc__, check))
