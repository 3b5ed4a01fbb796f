"""The program's own report of the monitors, `vantrel --probe`."""

import re
from typing import NamedTuple, Optional

from desk import Value


class Probed(NamedTuple):
    # Vendor and product as the EDID has them, byte by byte.
    edid: str
    serial: Optional[int]
    # By code; None for one that it could not read.
    values: dict
    capabilities: Optional[str]


def command(vantrel):
    return [vantrel, "--probe"]


def edid(display):
    """How the report begins to tell which monitor is meant."""
    return f"{display.vendor & 0xFFFF:04X}{display.product & 0xFF:02X}{display.product >> 8 & 0xFF:02X}"


def probed(output):
    """In the report's order."""
    found = []
    for block in re.split(r"\n(?=.* \(EDID )", output)[1:]:
        heading = re.match(r".* \(EDID ([0-9A-F]{8})-.*, serial (\w+)\)", block)
        serial = heading.group(2)
        capabilities = re.search(r"^Capabilities: (.*)$", block, re.MULTILINE).group(1)
        found.append(Probed(heading.group(1), None if serial == "none" else int(serial), _values(block),
                            None if capabilities == "<none>" else capabilities))
    return found


def _values(block):
    values = {}
    for code, answer in re.findall(r"^VCP 0x([0-9A-F]{2}): (.*)$", block, re.MULTILINE):
        numbers = re.fullmatch(r"value\(current: (\d+), maximum: (\d+)\)", answer)
        values[int(code, 16)] = Value(*map(int, numbers.groups())) if numbers else None
    return values
