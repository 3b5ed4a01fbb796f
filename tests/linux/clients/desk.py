"""A desk file, as far as what its monitors say goes."""

import json
import pathlib
from typing import NamedTuple

INPUT = 0x60


class Value(NamedTuple):
    current: int
    maximum: int


class Display:
    def __init__(self, description):
        self._description = description
        self._monitor = description.get("monitor") or {}
        self.id = _number(description["id"])
        self.name = description["name"]
        self.vendor = _number(description["vendor"])
        self.product = _number(description["product"])
        self.serial = _number(description.get("serial", 0))
        self.is_built_in = description.get("isBuiltIn", False)
        self.is_connected = description.get("isConnected", True)

    @property
    def manufacturer(self):
        """Three letters of five bits, 1 is A."""
        return "".join(chr(ord("@") + (self.vendor >> shift & 0x1F)) for shift in (10, 5, 0))

    @property
    def answers(self):
        return bool(self._monitor) and not self.personality.get("dead", False)

    @property
    def personality(self):
        return self._monitor.get("personality", {})

    @property
    def is_well_behaved(self):
        """Whether whatever is asked has one right answer, at once."""
        harmless = {"unsupported", "inputReadings", "replyLatencyMs", "inputSwitch", "deafAfterWakeMs",
                    "silentOnOtherInputs", "staleAfterReconfiguration", "byteTimeUs", "fragmentSizeBytes"}
        return self.answers and set(self.personality) <= harmless

    @property
    def capabilities(self):
        """None where the request is never answered or the bytes are no text."""
        text = self._monitor.get("capabilities")
        return text if isinstance(text, str) else None

    @property
    def inputs(self):
        return [_number(input) for input in self._monitor.get("inputs", {}).get("available", [])]

    @property
    def switches_at_once(self):
        return "inputSwitch" not in self.personality and "silentOnOtherInputs" not in self.personality

    def values(self):
        """What each code that the monitor has reads as."""
        values = {_number(code): Value(_number(feature["current"]), _number(feature["maximum"]))
                  for code, feature in self._monitor.get("features", {}).items()
                  if not feature.get("unsupported", False)}
        inputs = self._monitor.get("inputs")
        if inputs:
            shown = _number(inputs.get("shown", inputs.get("computer", self.inputs[0])))
            values[INPUT] = Value(self.reading_of_input(shown), max(self.inputs))
        return values

    def reading_of_input(self, input):
        readings = {_number(key): _number(value)
                    for key, value in self.personality.get("inputReadings", {}).items()}
        return readings.get(input, input)

    def shows_input(self, reading):
        """The input that reads so."""
        return next(input for input in self.inputs if self.reading_of_input(input) == reading)


class Desk:
    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.displays = [Display(each) for each in json.loads(self.path.read_text())["displays"]]


def _number(value):
    return int(value, 16) if isinstance(value, str) else value
