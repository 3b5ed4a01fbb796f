"""A header is a contract: it begins with a comment that says what it is for, it
declares what its name says in its folder's namespace, and it is short."""

import posixpath
import re
import statistics

import cpp
from tree import Finding

# Half the files are shorter than this.
HEADER_MEDIAN = 80
SOURCE_MEDIAN = 170

# Headers of several small types that are one subject.
NAMED_AFTER_SUBJECT = {
    "src/platform/simulated/MonitorLog.h": "what is recorded of a simulated monitor",
    "src/platform/simulated/ValueReaders.h": "how the values of a desk file are read",
    "src/ui/qt/Painting.h": "the strokes that several controls share",
}

_TYPE = re.compile(r"\b(?:class|struct|enum)\s+\w+[^;(){}]*\{")
_DECLARED = re.compile(r"\b(?:class|struct|enum class|enum|concept|using|namespace)\s+(?:\[\[\w+\]\]\s*)?([\w:]+)")
_FUNCTION = re.compile(r"\b(\w+)\s*\(")


def check(tree):
    headers = tree.paths(".h", below="src/")
    findings = [finding for path in headers for finding in _header(path, tree.text(path))]
    findings += _median(tree, headers, HEADER_MEDIAN, "headers")
    findings += _median(tree, tree.paths(".cpp", ".mm", below="src/"), SOURCE_MEDIAN, "sources")
    return findings


def _header(path, text):
    name = posixpath.basename(path).removesuffix(".h")
    namespace = "vantrel::" + posixpath.basename(posixpath.dirname(path))
    stripped = cpp.code(text)
    if not text.startswith("//"):
        yield Finding(path, 1, "begins without a comment that says what it is for")
    if not re.search(r"^#pragma once$", text, re.MULTILINE):
        yield Finding(path, 1, "has no #pragma once")
    if not re.search(rf"\bnamespace {namespace}\b", stripped):
        yield Finding(path, 1, f"declares nothing in its folder's namespace {namespace}")
    declared = {part for match in _DECLARED.finditer(stripped) for part in match.group(1).split("::")}
    # Free functions are named after what they do, their header after what they are about.
    if path in NAMED_AFTER_SUBJECT or not _TYPE.search(stripped):
        return
    functions = {match.group(1) for match in _FUNCTION.finditer(stripped)}
    if not any(name.lower() in other.lower() for other in declared | functions):
        yield Finding(path, 1, f"declares no {name}")


def _median(tree, paths, limit, what):
    lengths = {path: tree.text(path).count("\n") for path in paths}
    if not lengths or statistics.median(lengths.values()) < limit:
        return []
    longest = max(lengths, key=lengths.get)
    return [Finding(longest, lengths[longest], f"half the {what} have {limit} lines or more; this is the longest")]
