"""Programs on a computer that has a desk's monitors on its I2C buses."""

import json
import os
import pathlib
import shlex
import subprocess
import tempfile
from typing import NamedTuple

WRAPPER = "umockdev-wrapper"


class Outcome(NamedTuple):
    status: int
    output: str
    # What emulated_desk reports of each display, by id.
    displays: dict
    stray_writes: int


class Computer:
    """Every run() is a fresh one, with the desk as its file says."""

    def __init__(self, emulated_desk, desk):
        self._emulated_desk = str(emulated_desk)
        self.desk = desk
        self._nodes = {id: display["node"] for id, display in self.run(["true"]).displays.items()}

    def bus(self, display):
        return int(self._nodes[display.id].removeprefix("/dev/i2c-"))

    def run(self, *commands):
        """One after the other, whatever they end with; the last one's status."""
        script = "; ".join(shlex.join(map(str, command)) for command in commands)
        with tempfile.TemporaryDirectory(dir=_fast_folder()) as folder:
            report = pathlib.Path(folder, "report.json")
            command = [WRAPPER, self._emulated_desk, "--report", report, self.desk.path, "--", "sh", "-c", script]
            # Nothing that an earlier run has learned.
            environment = os.environ | {"HOME": folder, "XDG_CACHE_HOME": folder, "XDG_CONFIG_HOME": folder,
                                        "XDG_DATA_HOME": folder, "TMPDIR": folder}
            process = subprocess.run(command, env=environment, capture_output=True, text=True, errors="replace",
                                     check=False)
            if not report.exists():
                raise AssertionError(f"emulated_desk: {process.stderr}")
            seen = json.loads(report.read_text())
        displays = {display["id"]: display for display in seen["displays"]}
        return Outcome(process.returncode, process.stdout, displays, seen["strayWrites"])


def _fast_folder():
    """A test bed is hundreds of small files."""
    memory = pathlib.Path("/dev/shm")
    return memory if memory.is_dir() else None
