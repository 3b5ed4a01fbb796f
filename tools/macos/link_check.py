#!/usr/bin/env python3
"""Builds the application bundle for macOS on Linux, with toolchain.cmake, and looks at what
came out: link_check.py [--source FOLDER] [--build FOLDER] [--allowed FILE] [--app NAME]

The bundle shows that the CMake files' branch for macOS works and what the program links.
It must never be run or shipped; see toolchain.cmake."""

import argparse
import json
import os
import pathlib
import plistlib
import subprocess
import sys

import compiler
import runner
import symbols

PLATFORM_MACOS = "1"


def build(source, folder, allowed, extra=()):
    """(passes, what CMake printed)"""
    configure = ["cmake", "-G", "Ninja", "-S", str(source), "-B", str(folder),
                 "--toolchain", str(compiler.ROOT / "tools/macos/toolchain.cmake"),
                 f"-DVANTREL_ALLOWED_SYMBOLS={allowed}", "-DVANTREL_TESTS=OFF",
                 # The headers once for many sources: a third of the time.
                 "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_UNITY_BUILD_BATCH_SIZE=16", *extra]
    passes, output = runner.run(configure)
    if not passes:
        return passes, output
    # All that is wrong, not only the first of it.
    return runner.run(["cmake", "--build", str(folder), "--parallel", str(os.cpu_count()), "--", "--quiet", "-k", "0"])


def inspect(bundle, allowed):
    """What is wrong with the bundle."""
    information = bundle / "Contents/Info.plist"
    if not information.is_file():
        yield f"{bundle} has no Contents/Info.plist"
        return
    plist = plistlib.loads(information.read_bytes())
    for key, wanted in (("LSUIElement", True), ("LSMinimumSystemVersion", "13.0"), ("CFBundlePackageType", "APPL")):
        if plist.get(key) != wanted:
            yield f"Info.plist: {key} is {plist.get(key)!r}, not {wanted!r}"
    binary = bundle / "Contents/MacOS" / plist.get("CFBundleExecutable", bundle.stem)
    if not binary.is_file():
        yield f"Info.plist names {binary.name}, which is not in {bundle}/Contents/MacOS"
        return
    yield from _inspect_binary(binary)
    yield from symbols.findings(symbols.undefined(binary), symbols.parse(allowed), allowed)


def _inspect_binary(binary):
    def read(*command):
        return subprocess.run([*command, str(binary)], check=True, capture_output=True, text=True).stdout

    if "Arch: aarch64" not in read("llvm-readobj-16", "--file-headers"):
        yield f"{binary} is not for arm64"
    commands = read("llvm-otool-16", "-l").split("Load command")
    version = next((dict(line.split(None, 1) for line in text.splitlines() if len(line.split(None, 1)) == 2)
                    for text in commands if "LC_BUILD_VERSION" in text), {})
    if version.get("platform") not in (PLATFORM_MACOS, "macos") or version.get("minos") != "13.0":
        yield f"{binary}: platform {version.get('platform')}, minimum version {version.get('minos')}, not macOS 13.0"


def uncounted(folder):
    """Objective-C that is compiled without automatic reference counting: it leaks all that it makes."""
    for entry in json.loads((folder / "compile_commands.json").read_text(encoding="utf-8")):
        if entry["file"].endswith(".mm") and "-fobjc-arc" not in entry["command"].split():
            yield f"{entry['file']} is compiled without -fobjc-arc"


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--source", type=pathlib.Path, default=compiler.ROOT)
    arguments.add_argument("--build", type=pathlib.Path, default=compiler.ROOT / "build/macos-check")
    arguments.add_argument("--allowed", type=pathlib.Path, default=compiler.ROOT / "tests/macos/allowed-symbols.txt")
    arguments.add_argument("--app", default="Vantrel.app")
    chosen = arguments.parse_args()
    try:
        compiler.require("llvm-nm-16", "ld64.lld-16", "llvm-otool-16", "llvm-readobj-16")
        passes, output = build(chosen.source, chosen.build, chosen.allowed.resolve())
        found = [] if passes else [output]
        if passes:
            found += uncounted(chosen.build)
            bundles = [path for path in chosen.build.rglob(chosen.app) if path.is_dir()]
            found += list(inspect(bundles[0], chosen.allowed)) if bundles else [f"the build made no {chosen.app}"]
    except (compiler.Missing, symbols.Wrong) as problem:
        found = [str(problem)]
    for finding in found:
        print(finding, file=sys.stderr)
    print(f"link check: {chosen.app}: {len(found)} findings")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
