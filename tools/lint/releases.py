"""One version, one date: CMake's, and the newest release of the packages' files."""

import datetime
import re

from cpp import line_of
from tree import Finding

PROJECT = "CMakeLists.txt"
CHANGELOG = "packaging/linux/changelog"
METAINFO = "packaging/linux/org.vantrel.Vantrel.metainfo.xml"
PAGE = "packaging/linux/vantrel.1"
# Of a version, and no date.
CASK = "packaging/macos/vantrel.rb"

_VERSION = re.compile(r"^project\(\w+ VERSION ([\d.]+)", re.MULTILINE)
# "vantrel (0.1.0) unstable; ..." ... " -- Name <address>  Sat, 21 Nov 2026 12:00:00 +0000"
_CHANGE = re.compile(r"\A\w+ \(([^)]+)\)[^\n]*\n(?:(?! -- ).*\n)* -- .*>  (.*)$", re.MULTILINE)
_RELEASE = re.compile(r'<release version="([^"]+)" date="([^"]+)"')
_TITLE = re.compile(r'^\.TH \w+ 1 (\S+) "Vantrel ([^"]+)"', re.MULTILINE)
_CASK = re.compile(r'^  version "([^"]+)"$', re.MULTILINE)


def check(tree):
    for path in (PROJECT, CHANGELOG, METAINFO, PAGE, CASK):
        if not tree.exists(path):
            return [Finding(path, 1, "is not there: tools/lint/releases.py compares it")]
    texts = {path: tree.text(path) for path in (PROJECT, CHANGELOG, METAINFO, PAGE, CASK)}
    found = {
        PROJECT: _VERSION.search(texts[PROJECT]), CHANGELOG: _CHANGE.search(texts[CHANGELOG]),
        METAINFO: _RELEASE.search(texts[METAINFO]), PAGE: _TITLE.search(texts[PAGE]), CASK: _CASK.search(texts[CASK]),
    }
    unreadable = [path for path, match in found.items() if not match]
    if unreadable:
        return [Finding(path, 1, "has no release that tools/lint/releases.py understands") for path in unreadable]

    version = found[PROJECT].group(1)
    day = _day(found[CHANGELOG].group(2))
    releases = {
        CHANGELOG: (found[CHANGELOG].group(1), day),
        METAINFO: found[METAINFO].group(1, 2),
        PAGE: found[PAGE].group(2, 1),
        CASK: (found[CASK].group(1), day),
    }
    return [
        Finding(path, line_of(texts[path], found[path].start()),
                f"is of {' of '.join(release)}, the project of {version} of {day}")
        for path, release in releases.items() if release != (version, day)
    ]


def _day(date):
    """Sat, 21 Nov 2026 12:00:00 +0000 -> 2026-11-21"""
    try:
        return datetime.datetime.strptime(date, "%a, %d %b %Y %H:%M:%S %z").date().isoformat()
    except ValueError:
        return f"an unknown day ({date})"
