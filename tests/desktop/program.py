"""Vantrel, started on a desktop of its own."""

import contextlib
import pathlib
import re
import signal
import time

from waiting import wait_for, wait_for_rest

NAME = "vantrel"
DESK = pathlib.Path(__file__).with_name("desk.json")
MONITOR = "Halden HX27"
# Icons of trays are smaller than this, all windows are larger.
LARGEST_ICON = 64


class Program:
    def __init__(self, desktop, process):
        self._desktop = desktop
        self._process = process

    @property
    def pid(self):
        return self._process.pid

    def log(self):
        return self._process.log.read_text()

    def wait_for_log(self, text):
        wait_for(f"'{text}' in the log", lambda: text in self.log())

    def written(self, code):
        """The values that the monitor was sent, in order."""
        return [int(value) for value in re.findall(rf"{MONITOR} write {code} = (\d+) ", self.log())]

    def windows(self, title):
        places = self._desktop.screen.windows("--pid", str(self.pid), "--name", title)
        return [place for place in places if place.width > LARGEST_ICON]

    def embedded_icon(self):
        places = self._desktop.screen.windows("--pid", str(self.pid))
        return next((place for place in places if place.width <= LARGEST_ICON), None)

    def popover(self):
        return next(iter(self.windows("^Vantrel$")), None)

    def settings_windows(self):
        return self.windows("^Vantrel Settings")

    def wait_for_popover(self):
        """With all that the monitor has to say in it."""
        wait_for("the popover", self.popover)
        self.wait_for_log(f"{MONITOR}: loaded")
        self.wait_for_control("radio button", "HDMI 1")
        self.wait_for_rest()
        return self.popover()

    def wait_for_rest(self):
        """Nothing that a person could aim at moves any more."""
        return wait_for_rest("what is shown", lambda: self._desktop.accessibility.places(NAME))

    def wait_for_no_popover(self):
        wait_for("the popover to close", lambda: not self.popover())

    def elements(self):
        return self._desktop.accessibility.elements(NAME)

    def control(self, role, name):
        """The first one of that role and name."""
        return next((element for element in self.elements()
                     if (element.role, element.name) == (role, name)), None)

    def is_checked(self, role, name):
        control = self.control(role, name)
        return control is not None and control.is_checked()

    def wait_for_control(self, role, name):
        return wait_for(f"{role} '{name}'", lambda: self.control(role, name))

    def click(self, role, name):
        self.wait_for_control(role, name)
        self._desktop.screen.click(self.wait_for_rest()[role, name].center)

    def is_running(self):
        return self._process.poll() is None

    def exit_status(self):
        wait_for("the program's end", lambda: not self.is_running())
        return self._process.returncode

    def terminate(self):
        self._process.send_signal(signal.SIGTERM)

    def switches_in(self, seconds):
        """How often its threads went back to sleep meanwhile."""
        before = self._switches()
        time.sleep(seconds)
        return self._switches() - before

    def _switches(self):
        count = 0
        for task in pathlib.Path("/proc", str(self.pid), "task").iterdir():
            # A thread may just have ended.
            with contextlib.suppress(FileNotFoundError, ProcessLookupError):
                status = (task / "status").read_text()
                count += int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status, re.MULTILINE)[1])
        return count
