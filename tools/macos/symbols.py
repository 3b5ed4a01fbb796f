"""The symbols and classes that the program may link, tests/macos/allowed-symbols.txt:

    # a comment
    [AppKit]
    class NSView
    NSZeroRect

A section is a framework, or a library if its name begins with lib; a name is written as
in C. C++'s own library is not listed: its symbols are taken from libc++."""

import pathlib
import re
import subprocess
from typing import NamedTuple

# Functions of the system that no header offers. The program finds them at run time; one
# that is linked would keep it from starting where the function is missing.
PRIVATE = re.compile(r"^_*(?:IOAVService|CGS[A-Z]|SLS[A-Z]|DisplayServices|CoreDisplay_|CGVirtualDisplay|IOAV)")
# What the rest of the program links too.
SHARED = {"libSystem"}
# What the compiler asks for by itself, and C++'s own library.
COMPILERS = {
    "libSystem": {"dyld_stub_binder", "__Unwind_Resume", "___cxa_atexit"},
    "libobjc": {"__objc_empty_cache"},
    "libcompiler-rt": {"___isPlatformVersionAtLeast"},
}
CPLUSPLUS = re.compile(
    r"^___dso_handle$|^__mh_execute_header$|^__Z|^___cxa_|^___gxx_personality|^___clang_call_terminate")
# The library that the program brings with it has all its functions there.
BROUGHT = re.compile(r"^_utf8proc_")
UTF8PROC = "/usr/lib/x86_64-linux-gnu/libutf8proc.so"
CLASS = "_OBJC_CLASS_$_"
METACLASS = "_OBJC_METACLASS_$_"
LIBCXX = ("/usr/lib/llvm-16/lib/libc++.so.1", "/usr/lib/llvm-16/lib/libc++abi.so.1")
TARGETS = "[ arm64-macos ]"


class Wrong(Exception):
    """The list can't be read."""


class Symbol(NamedTuple):
    owner: str
    name: str  # as the linker has it


def parse(path):
    """Symbol -> line"""
    found = {}
    owner = ""
    for number, line in enumerate(pathlib.Path(path).read_text(encoding="utf-8").splitlines(), 1):
        words = line.split("#")[0].split()
        if not words:
            continue
        if len(words) == 1 and words[0].startswith("["):
            owner = words[0].strip("[]")
            continue
        if not owner or len(words) > 2 or (len(words) == 2 and words[0] != "class"):
            raise Wrong(f"{path}:{number}: neither a [section] nor a symbol of one: {line}")
        symbol = Symbol(owner, (CLASS if len(words) == 2 else "_") + words[-1])
        if PRIVATE.match(symbol.name.removeprefix(CLASS)):
            raise Wrong(f"{path}:{number}: private, must not be linked: {words[-1]}")
        if any(other.name == symbol.name for other in found):
            raise Wrong(f"{path}:{number}: twice: {words[-1]}")
        found[symbol] = number
    return found


def _nm(*arguments):
    """Names in object files and libraries."""
    command = ["llvm-nm-16", "-j", *map(str, arguments)]
    lines = subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
    return {line.split("@")[0] for line in lines if line and not line.endswith(":")}


def undefined(*files):
    """What the files need that none of them has; a metaclass counts as its class."""
    needed = _nm("--undefined-only", *files) - _nm("--defined-only", *files)
    return {CLASS + name.removeprefix(METACLASS) if name.startswith(METACLASS) else name for name in needed}


def shown(name):
    return "class " + name.removeprefix(CLASS) if name.startswith(CLASS) else name.removeprefix("_")


def findings(needed, allowed, path, owners=None):
    """What is linked without being listed, listed without being linked (of the owners), or private."""
    listed = {symbol.name for symbol in allowed}.union(*COMPILERS.values())
    for name in sorted(needed):
        if PRIVATE.match(name.removeprefix(CLASS)):
            yield f"private, must not be linked: {shown(name)}"
        elif name not in listed and not CPLUSPLUS.match(name) and not BROUGHT.match(name):
            yield f"not in {path}: {shown(name)}"
    for symbol, line in allowed.items():
        if symbol.name not in needed and (owners is None or symbol.owner in owners):
            yield f"{path}:{line}: listed, but not linked: {shown(symbol.name)}"


def _stub(path, install_name, symbols):
    path.parent.mkdir(parents=True, exist_ok=True)
    plain = sorted(name for name in symbols if not name.startswith(CLASS))
    classes = sorted(name.removeprefix(CLASS) for name in symbols if name.startswith(CLASS))
    text = f"--- !tapi-tbd\ntbd-version: 4\ntargets: {TARGETS}\ninstall-name: '{install_name}'\n"
    text += f"exports:\n  - targets: {TARGETS}\n"
    if plain:
        text += "    symbols: [ " + ", ".join(f"'{name}'" for name in plain) + " ]\n"
    if classes:
        text += "    objc-classes: [ " + ", ".join(classes) + " ]\n"
    path.write_text(text + "...\n", encoding="utf-8")


def write_stubs(folder, allowed):
    """A text stub per section, for ld64.lld to link with."""
    folder = pathlib.Path(folder)
    owned = {owner: set(names) for owner, names in COMPILERS.items()}
    owned["libc++"] = {"_" + name for library in LIBCXX for name in _nm("-D", "--defined-only", library)}
    for symbol in allowed:
        owned.setdefault(symbol.owner, set()).add(symbol.name)
    for owner, symbols in owned.items():
        if owner.startswith("lib"):
            _stub(folder / f"{owner}.tbd", f"/usr/lib/{owner}.dylib", symbols)
        else:
            install_name = f"/System/Library/Frameworks/{owner}.framework/{owner}"
            _stub(folder / f"{owner}.framework/{owner}.tbd", install_name, symbols)


def write_utf8proc(folder):
    """An archive with utf8proc's functions, which do nothing: on a Mac it is linked statically."""
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    functions = sorted(name for name in _nm("-D", "--defined-only", UTF8PROC) if BROUGHT.match("_" + name))
    source, code, archive = folder / "utf8proc.c", folder / "utf8proc.o", folder / "libutf8proc.a"
    source.write_text("".join(f"void {name}(void);\nvoid {name}(void) {{}}\n" for name in functions), encoding="utf-8")
    subprocess.run(["clang-16", "-target", "arm64-apple-macos13", "-c", source, "-o", code], check=True)
    archive.unlink(missing_ok=True)
    subprocess.run(["llvm-ar-16", "rcs", archive, code], check=True)
