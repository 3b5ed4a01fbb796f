"""Runs a command with compositors of its own.

    with_sway.py [--drm] COMMAND...

Ends as the command does, or with status 77 and the reason when there can be no such
compositors here. They have ended by then. The command finds in its environment

    WAYLAND_DISPLAY, SWAYSOCK  a compositor with three outputs, without a screen; with --drm
                               on this computer's graphics device, which takes root and seatd
    VANTREL_MORTAL_DISPLAY     another one without a screen, to be ended
    VANTREL_MORTAL_COMPOSITOR  by the number of its process
"""

import os
import pathlib
import pwd
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
NEEDED_PROGRAMS = ["sway", "swaymsg", "wlr-randr", "setpriv", "timeout"]
# Reached by failures only: a computer that is emulated is slow.
PATIENCE = 60

CONFIGURATION = """
xwayland disable
output HEADLESS-1 mode 1920x1080 position 0 0
output HEADLESS-2 mode 1280x1024 position 1920 0 scale 2 transform 90
output HEADLESS-3 mode 800x600 position 4000 100
exec printenv WAYLAND_DISPLAY SWAYSOCK
"""


class NoCompositor(Exception):
    pass


class Compositors:
    def __init__(self):
        self._processes = []
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="vantrel-sway."))
        # It does not run as root.
        self._user = pwd.getpwnam("nobody") if os.geteuid() == 0 else None
        self._own(self._folder)

    def _own(self, folder):
        if self._user is not None:
            os.chown(folder, self._user.pw_uid, self._user.pw_gid)

    def _start(self, log, environment, *command):
        """Whatever ends this program ends the process."""
        with open(log, "wb") as errors:
            process = subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", *command], env={**os.environ, **environment},
                cwd=self._folder, start_new_session=True, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                stderr=errors)
        self._processes.append(process)
        return process

    def start(self, environment):
        """The process of a compositor that can be used."""
        # Its sockets have the same names in each.
        folder = self._folder / str(len(self._processes))
        folder.mkdir(mode=0o700)
        self._own(folder)
        configuration = folder / "sway.conf"
        configuration.write_text(CONFIGURATION)
        log = folder / "log.txt"
        command = ["sway", "-c", str(configuration)]
        if self._user is not None:
            ids = [f"--reuid={self._user.pw_uid}", f"--regid={self._user.pw_gid}", "--clear-groups"]
            # The signal is forgotten by who becomes somebody else.
            command = ["setpriv", *ids, "setpriv", "--pdeathsig", "KILL", *command]
        process = self._start(log, {
            "HOME": str(folder), "XDG_RUNTIME_DIR": str(folder), "WLR_LIBINPUT_NO_DEVICES": "1",
            "WLR_RENDERER": "pixman", **environment}, *command)
        lines = self._lines(process, 2)
        if len(lines) < 2:
            raise NoCompositor(f"sway does not start:\n{log.read_text(errors='replace')}")
        process.display = str(folder / lines[0])
        process.control = lines[1]
        return process

    @staticmethod
    def _lines(process, count):
        text = b""
        end = time.monotonic() + PATIENCE
        while text.count(b"\n") < count:
            left = end - time.monotonic()
            if left <= 0 or not select.select([process.stdout], [], [], left)[0]:
                break
            part = os.read(process.stdout.fileno(), 4096)
            if not part:
                break
            text += part
        return text.decode(errors="replace").splitlines()

    def start_headless(self):
        return self.start({"WLR_BACKENDS": "headless", "WLR_HEADLESS_OUTPUTS": "3"})

    def start_on_device(self):
        ready, tell = os.pipe()
        seat = subprocess.Popen(
            ["setpriv", "--pdeathsig", "KILL", "seatd", "-u", self._user.pw_name, "-n", str(tell)],
            pass_fds=[tell], start_new_session=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._processes.append(seat)
        os.close(tell)
        if not select.select([ready], [], [], PATIENCE)[0] or not os.read(ready, 1):
            raise NoCompositor("seatd does not start")
        os.close(ready)
        return self.start({"WLR_BACKENDS": "drm", "LIBSEAT_BACKEND": "seatd"})

    def end(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self._folder, ignore_errors=True)


def missing(programs):
    """Why there can be no compositors here; empty when they can be tried."""
    absent = [name for name in programs if shutil.which(name) is None]
    return f"not installed: {', '.join(absent)}" if absent else ""


def main():
    command = sys.argv[1:]
    is_on_device = command[:1] == ["--drm"]
    if is_on_device:
        command = command[1:]
    reason = missing(NEEDED_PROGRAMS + (["seatd"] if is_on_device else []))
    if reason:
        print(f"Skipped: {reason} (Debian: sway, wlr-randr; seatd)")
        return SKIPPED
    # Ended from outside, it still ends the compositors.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    compositors = Compositors()
    try:
        mortal = compositors.start_headless()
        used = compositors.start_on_device() if is_on_device else compositors.start_headless()
        environment = {
            **os.environ,
            "WAYLAND_DISPLAY": used.display,
            "SWAYSOCK": used.control,
            "VANTREL_MORTAL_DISPLAY": mortal.display,
            "VANTREL_MORTAL_COMPOSITOR": str(mortal.pid),
        }
        return subprocess.run(command, env=environment).returncode
    except NoCompositor as error:
        print(error)
        return 1
    finally:
        compositors.end()


if __name__ == "__main__":
    sys.exit(main())
