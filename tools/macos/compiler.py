"""How the macOS sources are compiled here, where no Mac and none of its headers are:
clang for the target arm64-apple-macos13, libc++'s headers, musl's C headers instead of
the system's, and the stand-ins of tests/macos/include.

What comes out is for looking at, never for shipping: constants and structures of the C
library are not those of macOS."""

import pathlib
import shutil

ROOT = pathlib.Path(__file__).resolve().parents[2]
STANDINS = ROOT / "tests/macos/include"
LIBC = ROOT / "tests/macos/libc"
LIBCXX = pathlib.Path("/usr/lib/llvm-16/include/c++/v1")
MUSL = pathlib.Path("/usr/include/x86_64-linux-musl")
CLANG = "clang++-16"
TARGET = "arm64-apple-macos13"
# Where the checks keep what they made, and find headers that the build writes.
BUILD = ROOT / "build/dev"

# Header-only libraries, and the one library, that the program shares with Linux. Only
# these: the folder that they lie in holds the system's C headers too.
SHARED_HEADERS = ("nlohmann", "CLI", "utf8proc.h")
SYSTEM_HEADERS = pathlib.Path("/usr/include")

WARNINGS = (
    "-Wall", "-Wextra", "-Wpedantic", "-Wconversion",
    "-Wunguarded-availability", "-Wunguarded-availability-new",
    "-Wnullable-to-nonnull-conversion", "-Wnullability", "-Wnullability-completeness",
    "-Wobjc-designated-initializers", "-Wobjc-method-access", "-Wobjc-missing-super-calls",
    "-Wobjc-protocol-method-implementation",
    "-Wobjc-protocol-property-synthesis", "-Wobjc-root-class", "-Wobjc-signed-char-bool",
    "-Wobjc-literal-conversion", "-Wobjc-string-compare", "-Wobjc-redundant-literal-use",
    "-Wundeclared-selector", "-Wprotocol", "-Wincompatible-pointer-types",
    "-Warc", "-Warc-retain-cycles", "-Warc-repeated-use-of-weak", "-Wformat=2", "-Wenum-conversion",
    "-Wdeprecated-declarations", "-Werror",
)


class Missing(Exception):
    """A package that the checks need is not installed."""


def require(*tools):
    places = {"clang-16": CLANG, **{f"lld-16/llvm-16 ({tool})": tool for tool in tools}}
    missing = [package for package, tool in places.items() if not shutil.which(tool)]
    missing += ["libc++-16-dev"] if not (LIBCXX / "vector").is_file() else []
    missing += ["musl-dev"] if not (MUSL / "stdlib.h").is_file() else []
    if missing:
        raise Missing(f"missing: {', '.join(missing)}; script/bootstrap --tests installs what is missing")


def shared_headers(folder):
    """Links to SHARED_HEADERS in a folder of their own."""
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for name in SHARED_HEADERS:
        link, target = folder / name, SYSTEM_HEADERS / name
        if link.is_symlink() or not target.exists():
            continue
        try:
            link.symlink_to(target)
        except FileExistsError:  # Another check was faster.
            pass
    return folder


def platform_flags(build):
    """What makes clang find the stand-ins, and nothing of the system's."""
    folders = (LIBC, LIBCXX, STANDINS, MUSL, shared_headers(pathlib.Path(build) / "macos/include"))
    return ["-target", TARGET, "-nostdlibinc", "-D_GNU_SOURCE", *(f"-isystem{folder}" for folder in folders)]


def language_flags(path):
    if pathlib.Path(path).suffix == ".mm":
        return ["-x", "objective-c++", "-std=c++20", "-fobjc-arc"]
    return ["-x", "c++", "-std=c++20"]


def place(path, build, kind):
    """Where a check keeps what belongs to a source."""
    path = pathlib.Path(path).resolve()
    return pathlib.Path(build) / "macos" / kind / (path.relative_to(ROOT) if path.is_relative_to(ROOT) else path.name)


def command(path, build, *mode):
    generated = pathlib.Path(build) / "generated"
    return [CLANG, *mode, *language_flags(path), *platform_flags(build), "-fno-caret-diagnostics",
            f"-I{ROOT / 'src'}", f"-I{generated}", str(path)]


