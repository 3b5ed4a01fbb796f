"""A desktop of its own for tests: X server, session bus and window manager, without
a tray. Nothing of the user's is seen or touched."""

import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

from accessibility import Accessibility
from program import DESK, Program
from screen import Screen
from waiting import wait_for

NEEDED_PROGRAMS = ["Xvfb", "dbus-daemon", "import", "lxqt-panel", "openbox", "trayer", "xdotool", "xprop"]


class Desktop:
    """`begin` and `end` it. Then everything that was started on it has ended too."""

    def __init__(self, executable):
        self._executable = executable
        self._processes = []
        self.screen = None
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vantrel-desktop."))

    def begin(self):
        private = {name: self.folder / name for name in ("home", "config", "data", "state", "cache", "run")}
        for folder in private.values():
            folder.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "HOME": str(private["home"]),
            "XDG_CONFIG_HOME": str(private["config"]),
            "XDG_DATA_HOME": str(private["data"]),
            "XDG_STATE_HOME": str(private["state"]),
            "XDG_CACHE_HOME": str(private["cache"]),
            "XDG_RUNTIME_DIR": str(private["run"]),
        }
        area = Screen.area
        display = self._start_and_read("Xvfb", "-nolisten", "tcp", "-noreset",
                                       "-screen", "0", f"{area.width}x{area.height}x24", "-displayfd")
        self.environment["DISPLAY"] = f":{display}"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read(
            "dbus-daemon", "--session", "--nofork", "--nopidfile",
            "--address", f"unix:dir={private['run']}", "--print-address")
        self.screen = Screen(self.environment)
        self.accessibility = Accessibility(self.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.start("openbox")
        wait_for("the window manager", self.screen.has_window_manager)

    def _start_and_read(self, *command):
        """Starts a server that writes where it is found, once it is ready, to the
        descriptor whose number ends the command."""
        read, write = os.pipe()
        self.start(*command, str(write), pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as answer:
            return answer.readline().strip()

    def start(self, *command, is_accessible=False, pass_fds=()):
        environment = dict(self.environment)
        if is_accessible:
            environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        name = f"{len(self._processes):02}-{pathlib.Path(command[0]).name}.log"
        with open(self.folder / name, "wb") as log:
            process = subprocess.Popen(
                command, env=environment, cwd=self.folder, pass_fds=pass_fds, start_new_session=True,
                stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        process.log = self.folder / name
        self._processes.append(process)
        return process

    def start_program(self, is_accessible=True):
        return Program(self, self.start(self._executable, "--simulate", DESK, "--log", "debug",
                                        is_accessible=is_accessible))

    def report(self, folder):
        """Keeps a picture of the screen and what was logged."""
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        if self.screen:
            self.screen.picture(folder / "screen.png")
        for log in self.folder.glob("*.log"):
            shutil.copy(log, folder)

    def end(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)
