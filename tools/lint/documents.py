"""What the documents point to is there: links, paths and commands."""

import posixpath
import re

from cpp import line_of
from tree import Finding

_LINK = re.compile(r"\]\(([^)\s#]+)(?:#[^)]*)?\)")
_PATH = re.compile(r"`((?:src|tests|docs|script|tools|desks|bench|fuzz|cmake|packaging|\.ci)/[\w./-]*)`")
_COMMAND = re.compile(r"^\s*(?:\$ )?((?:script|\.ci)/[\w-]+)\b", re.MULTILINE)
_FENCE = re.compile(r"^```.*?^```", re.MULTILINE | re.DOTALL)


def check(tree):
    findings = []
    if not tree.exists("LICENSE") or "MIT License" not in tree.text("LICENSE"):
        findings.append(Finding("LICENSE", 1, "is not the MIT License"))
    for path in tree.paths(".md"):
        findings += _document(tree, path)
    readme = tree.text("README.md") if tree.exists("README.md") else ""
    for command in ("script/run", "script/test"):
        if command not in readme:
            findings.append(Finding("README.md", 1, f"does not show {command}"))
    return findings


def _document(tree, path):
    text = tree.text(path)
    for match in _LINK.finditer(text):
        target = match.group(1)
        if re.match(r"[a-z]+:", target):
            continue
        target = posixpath.normpath(posixpath.join(posixpath.dirname(path), target))
        if not tree.exists(target):
            yield Finding(path, line_of(text, match.start()), f"links to {target}, which is not there")
    for match in _PATH.finditer(text):
        if not tree.exists(match.group(1)):
            yield Finding(path, line_of(text, match.start()), f"names {match.group(1)}, which is not there")
    for fence in _FENCE.finditer(text):
        for match in _COMMAND.finditer(text, fence.start(), fence.end()):
            if not tree.is_executable(match.group(1)):
                yield Finding(path, line_of(text, match.start(1)), f"{match.group(1)} is no command")
