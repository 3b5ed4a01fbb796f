"""The files that the lints read: the repository's, or planted ones in a test."""

import os
import pathlib
import subprocess
from typing import NamedTuple


class Finding(NamedTuple):
    path: str
    line: int
    reason: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.reason}"


class Tree:
    """Text files by path, relative to the top and with forward slashes."""

    def __init__(self, texts, executables=()):
        self._texts = texts
        self._executables = frozenset(executables)
        self._folders = {str(parent) for path in texts for parent in pathlib.PurePosixPath(path).parents}

    def paths(self, *suffixes, below=""):
        return sorted(p for p in self._texts if p.startswith(below) and p.endswith(suffixes or ("",)))

    def text(self, path):
        return self._texts[path]

    def exists(self, path):
        path = path.rstrip("/")
        return path in self._texts or path in self._folders

    def is_executable(self, path):
        return path in self._executables


def repository(top):
    """Tracked files and those that are about to be; pictures are listed, but empty."""
    listed = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "--deduplicate"],
        cwd=top, check=True, capture_output=True,
    ).stdout.decode()
    texts = {}
    executables = []
    for path in filter(None, listed.split("\0")):
        file = pathlib.Path(top, path)
        if not file.is_file():
            continue
        content = file.read_bytes()
        texts[path] = "" if b"\0" in content else content.decode(errors="replace")
        if os.access(file, os.X_OK):
            executables.append(path)
    return Tree(texts, executables)
