#!/usr/bin/env python3
"""Runs clang's analyser on macOS sources, path by path through each function, for objects
that nobody releases (Core Foundation's, and IOKit's), and for whatever else it finds:
analyze.py FILE-OR-FOLDER...

Fails if it warns of anything."""

import argparse
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


def check(path, build):
    passes, output = runner.run(compiler.command(path, build, "--analyze", *FLAGS))
    # It warns with status 0.
    return passes and not output, output


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("paths", nargs="+", metavar="FILE-OR-FOLDER")
    arguments.add_argument("--build", default=compiler.default_build())
    chosen = arguments.parse_args()
    return runner.report("analysis", check, chosen.paths, chosen.build)


if __name__ == "__main__":
    sys.exit(main())
