"""An X screen seen from outside: windows, the pointer and the keyboard."""

import subprocess
from typing import NamedTuple


class Rectangle(NamedTuple):
    left: int
    top: int
    width: int
    height: int

    @property
    def right(self):
        return self.left + self.width

    @property
    def bottom(self):
        return self.top + self.height

    def at(self, share):
        """The point in the middle of its height at this share of its width."""
        return round(self.left + share * self.width), round(self.top + self.height / 2)

    @property
    def center(self):
        return self.at(0.5)

    def contains(self, other):
        return (self.left <= other.left and self.top <= other.top and
                self.right >= other.right and self.bottom >= other.bottom)

    def overlaps(self, other):
        return (self.left < other.right and other.left < self.right and
                self.top < other.bottom and other.top < self.bottom)


class Screen:
    area = Rectangle(0, 0, 1280, 1024)

    def __init__(self, environment):
        self._environment = environment

    def _xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self._environment,
                              capture_output=True, text=True).stdout

    def has_window_manager(self):
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=self._environment,
                                capture_output=True, text=True).stdout
        return "window id" in answer

    def windows(self, *search):
        """Places of the visible windows that a search of xdotool finds."""
        places = []
        for window in self._xdotool("search", "--all", "--onlyvisible", *search).split():
            lines = self._xdotool("getwindowgeometry", "--shell", window).splitlines()
            values = dict(line.split("=") for line in lines)
            if values:
                places.append(Rectangle(*(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))))
        return places

    def active_title(self):
        return self._xdotool("getactivewindow", "getwindowname").strip()

    def click(self, point):
        self._xdotool("mousemove", *point, "click", 1)

    def drag(self, points):
        """Presses at the first point, releases at the last."""
        moves = [word for point in points for word in ("mousemove", *point)]
        self._xdotool(*moves[:3], "mousedown", 1, *moves[3:], "mouseup", 1)

    def key(self, name):
        self._xdotool("key", name)

    def picture(self, path):
        subprocess.run(["import", "-window", "root", path], env=self._environment, capture_output=True)
