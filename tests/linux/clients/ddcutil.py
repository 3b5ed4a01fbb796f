"""ddcutil: its command lines, and what it prints."""

import re
from typing import NamedTuple

PROGRAM = "ddcutil"
# Codes that it doesn't read, whatever a monitor says.
WRITE_ONLY = {0x04, 0x05, 0x06, 0x08, 0x0A}


class Identity(NamedTuple):
    manufacturer: str
    model: str
    product: int
    serial: int
    connector: str


class Detected(NamedTuple):
    identity: Identity
    # Whether DDC/CI worked.
    answers: bool


def detect():
    return [PROGRAM, "detect"]


def detected(output):
    """Identity and state by the number of the bus."""
    found = {}
    for block in re.split(r"\n(?=\S)", output):
        bus = re.search(r"I2C bus: +/dev/i2c-(\d+)", block)
        if not bus:
            continue
        identity = Identity(
            _field(block, "Mfg id")[:3], _field(block, "Model"), int(_field(block, "Product code").split()[0]),
            int(_field(block, "Binary serial number").split()[0]), _field(block, "DRM connector"))
        found[int(bus.group(1))] = Detected(identity, block.startswith("Display "))
    return found


def read(bus, codes):
    return [PROGRAM, "--bus", bus, "getvcp", "--terse", *(f"{code:02x}" for code in codes)]


class Answer(NamedTuple):
    """What it prints of a value; None where it doesn't."""
    current: int
    maximum: int
    # It prints only the low byte of a value that isn't continuous.
    is_low_byte: bool = False

    def agrees(self, value):
        if self.is_low_byte:
            return self.current == value.current & 0xFF
        return (self.current, self.maximum) == value


def answers(output):
    """By code; None for one that it could not read."""
    found = {}
    for line in output.splitlines():
        match = re.fullmatch(r"VCP ([0-9A-F]{2}) (.*)", line)
        if match:
            found[int(match.group(1), 16)] = _answer(match.group(2))
    return found


def _answer(text):
    kind, *words = text.split()
    if kind == "ERR":
        return None
    if kind == "C":
        return Answer(*map(int, words))
    numbers = [int(word.removeprefix("x"), 16) for word in words]
    if kind == "SNC":
        return Answer(numbers[0], 0, is_low_byte=True)
    if kind == "CNC":
        maximum_high, maximum_low, high, low = numbers
        return Answer(high << 8 | low, maximum_high << 8 | maximum_low)
    raise AssertionError(f"ddcutil prints an unknown kind of value: {text}")


def write(bus, values):
    return [PROGRAM, "--bus", bus, "setvcp",
            *(word for code, value in values.items() for word in (f"{code:02x}", value))]


def capabilities(bus):
    return [PROGRAM, "--bus", bus, "capabilities"]


def listed_codes(output):
    """The codes that it finds in the string, with the values of each."""
    codes = {}
    for line in output[output.find("VCP Features:"):].splitlines():
        feature = re.match(r"   Feature: ([0-9A-F]{2}) ", line)
        value = re.match(r"         ([0-9a-f]{2}):", line)
        together = re.match(r"      Values: ([0-9A-F ]+) \(", line)
        if feature:
            code = int(feature.group(1), 16)
            codes[code] = []
        elif value:
            codes[code].append(int(value.group(1), 16))
        elif together:
            codes[code] += [int(number, 16) for number in together.group(1).split()]
    return codes


def raw_capabilities(bus):
    return [PROGRAM, "--bus", bus, "capabilities", "--terse"]


def raw_string(output):
    found = re.search(r"capabilities string: (.*)", output)
    return found.group(1) if found else None


def _field(block, name):
    found = re.search(rf"{name}: +(.*)", block)
    return found.group(1).strip() if found else ""
