#!/usr/bin/env python3
"""What toolchain.cmake needs in a build's folder: prepare.py FOLDER ALLOWED-SYMBOLS

Writes stubs to link with, and where CMake finds the libraries that the program shares with
Linux; prints the compiler's flags."""

import pathlib
import sys

import compiler
import symbols

CONFIG = """add_library({target} INTERFACE IMPORTED)
set_target_properties({target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "{include}")
"""
VERSION = """set(PACKAGE_VERSION {version})
set(PACKAGE_VERSION_COMPATIBLE TRUE)
"""
PACKAGES = {
    "nlohmann_json": ("nlohmann_json::nlohmann_json", "3.11.2"),
    "CLI11": ("CLI11::CLI11", "2.1.2"),
}
UTF8PROC = """libdir={folder}
Name: libutf8proc
Description: stand-in
Version: 2.8.0
Libs: -L${{libdir}} -lutf8proc
"""


def main():
    folder, allowed = map(pathlib.Path, sys.argv[1:])
    compiler.require("llvm-nm-16", "ld64.lld-16")
    symbols.write_stubs(folder / "stubs", symbols.parse(allowed))
    symbols.write_utf8proc(folder / "lib")
    include = compiler.shared_headers(folder / "macos/include")
    packages = folder / "packages"
    packages.mkdir(exist_ok=True)
    for name, (target, version) in PACKAGES.items():
        (packages / f"{name}Config.cmake").write_text(CONFIG.format(target=target, include=include), encoding="utf-8")
        (packages / f"{name}ConfigVersion.cmake").write_text(VERSION.format(version=version), encoding="utf-8")
    (packages / "libutf8proc.pc").write_text(UTF8PROC.format(folder=folder / "lib"), encoding="utf-8")
    print(*(flag for flag in compiler.platform_flags(folder) if not flag.startswith(("-target", compiler.TARGET))))


if __name__ == "__main__":
    sys.exit(main())
