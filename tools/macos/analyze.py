#!/usr/bin/env python3
"""Runs clang's analyser on macOS sources, path by path through each function, for objects
that nobody releases (Core Foundation's, and IOKit's), and for whatever else it finds:
analyze.py FILE-OR-FOLDER...

Fails if it warns of anything."""

import sys

import compiler
import runner

# See tests/macos/analysis/io_handles.h.
HANDLES = ("io_object_t", "io_iterator_t", "io_service_t", "io_registry_entry_t", "io_connect_t")
STATUSES = ("kern_return_t", "IOReturn")
FLAGS = (
    "-Xclang", "-analyzer-output=text",
    "-Xclang", "-analyzer-checker=fuchsia.HandleChecker,nullability,optin.osx",
    *(f"-D{name}=zx_handle_t" for name in HANDLES),
    *(f"-D{name}=zx_status_t" for name in STATUSES),
    f"-include{compiler.ROOT / 'tests/macos/analysis/io_handles.h'}",
)


def check(path, build, *more):
    return runner.compile(compiler.command(path, build, "--analyze", *FLAGS, *more), path, build, "analysis")


if __name__ == "__main__":
    sys.exit(runner.main("analysis", __doc__, check))
