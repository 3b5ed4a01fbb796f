"""An independent program agrees with the desks, over the system's own I2C interface.

    ddcutil_test.py EMULATED_DESK VANTREL DESKS [TEST...]

EMULATED_DESK is the tests' program of that name, VANTREL the program itself and DESKS
the folder of desk files. What ddcutil finds, reads and writes on the monitors' buses is
what the desk file says. Displays are looked at side by side: most of the time is pauses.
"""

import concurrent.futures
import pathlib
import re
import sys
import unittest

import ddcutil
from desk import INPUT, Desk
from session import Computer

emulated_desk, vantrel, desks = None, None, None

# Settings whose other values mean nothing but a picture and a sound.
SETTINGS = (0x10, 0x12, 0x14, 0x16, 0x18, 0x1A, 0x60, 0x62, 0x87, 0xDC)
SIDE_BY_SIDE = 8


def listed_in(capabilities):
    """The codes of a well-formed string's vcp section, with their values."""
    section = re.search(r"vcp\(((?:[^()]|\([^()]*\))*)\)", capabilities).group(1)
    return {int(code, 16): [int(value, 16) for value in (values or "").split()]
            for code, values in re.findall(r"([0-9A-F]{2})(?:\(([^()]*)\))?", section)}


class DeskTest(unittest.TestCase):
    """Of a desk; what its monitors do wrong is in their personalities."""
    desk = None

    def setUp(self):
        self.computer = Computer(emulated_desk, Desk(desks / f"{self.desk}.json"))
        self.displays = [display for display in self.computer.desk.displays if display.is_connected]

    def of_each(self, displays, look):
        """Looks at each of the displays that there are; there must be some."""
        displays = list(displays)
        self.assertTrue(displays, "the test looks at nothing")
        with concurrent.futures.ThreadPoolExecutor(SIDE_BY_SIDE) as pool:
            for display, result in zip(displays, pool.map(look, displays)):
                yield display, result

    def well_behaved(self):
        return (display for display in self.displays if display.is_well_behaved)

    def assert_agree(self, display, answers):
        for code, value in display.values().items():
            if code in answers:
                self.assertTrue(answers[code] and answers[code].agrees(value),
                                f"{display.name} 0x{code:02X}: {answers[code]}, desk: {value}")


class WellBehaved:
    def test_ddcutil_detects_each_display_with_its_identity(self):
        outcome = self.computer.run(ddcutil.detect())
        found = ddcutil.detected(outcome.output)
        self.assertEqual(set(found), {self.computer.bus(display) for display in self.displays})
        for display in self.displays:
            detected = found[self.computer.bus(display)]
            connector = outcome.displays[display.id]["connector"]
            self.assertEqual(detected.identity, (display.manufacturer, display.name[:13].rstrip(), display.product,
                                                 display.serial, connector))
            self.assertEqual(detected.answers, display.answers, display.name)
        self.assertEqual(outcome.stray_writes, 0)

    def test_ddcutil_reads_the_value_of_every_code(self):
        def read(display):
            codes = sorted(set(display.values()) - ddcutil.WRITE_ONLY)
            outcome = self.computer.run(ddcutil.read(self.computer.bus(display), codes))
            return codes, ddcutil.answers(outcome.output)

        for display, (codes, answers) in self.of_each(self.well_behaved(), read):
            self.assertEqual(sorted(answers), codes, display.name)
            self.assert_agree(display, answers)

    def test_ddcutil_reads_the_capabilities(self):
        def read(display):
            bus = self.computer.bus(display)
            outcome = self.computer.run(ddcutil.capabilities(bus), ddcutil.raw_capabilities(bus))
            return ddcutil.listed_codes(outcome.output), ddcutil.raw_string(outcome.output)

        for display, (codes, text) in self.of_each(self.well_behaved(), read):
            self.assertEqual(text, display.capabilities, display.name)
            self.assertEqual(codes, listed_in(display.capabilities) if text else {}, display.name)

    def test_a_value_that_ddcutil_writes_arrives_and_goes_back(self):
        def write(display):
            bus = self.computer.bus(display)
            other, usual = self.other_values(display), self.usual_values(display)
            there = self.computer.run(ddcutil.write(bus, other), ddcutil.read(bus, other))
            back = self.computer.run(ddcutil.write(bus, other), ddcutil.write(bus, usual))
            return there, back

        for display, (there, back) in self.of_each(self.well_behaved(), write):
            other = self.other_values(display)
            self.assertEqual({code: there.displays[display.id]["values"][f"0x{code:02X}"] for code in other},
                             self.readings(display, other))
            self.assertEqual({code: answer.current for code, answer in ddcutil.answers(there.output).items()},
                             {code: reading & 0xFF for code, reading in self.readings(display, other).items()})
            self.assertEqual({int(code, 16): value for code, value in back.displays[display.id]["values"].items()},
                             {code: value.current for code, value in display.values().items()})

    def usual_values(self, display):
        """As they are written."""
        values = {code: display.values()[code].current for code in SETTINGS if self.is_set(display, code)}
        if INPUT in values:
            values[INPUT] = display.shows_input(values[INPUT])
        return values

    def other_values(self, display):
        def other(code, usual):
            if code == INPUT:
                return next(input for input in display.inputs if input != usual)
            choices = listed_in(display.capabilities or "vcp()").get(code)
            if choices:
                return next(value for value in choices if value != usual)
            return (usual + 7) % (display.values()[code].maximum + 1)

        return {code: other(code, usual) for code, usual in self.usual_values(display).items()}

    @staticmethod
    def is_set(display, code):
        return code in display.values() and (code != INPUT or display.switches_at_once)

    @staticmethod
    def readings(display, values):
        return {code: display.reading_of_input(value) if code == INPUT else value
                for code, value in values.items()}


class Misbehaving:
    """ddcutil needn't get through; but what it reads is right."""

    # Displays whose personality makes wrong values look right, by code; None: any code.
    plausible_lies = {}

    def test_what_ddcutil_reads_is_right(self):
        def read(display):
            codes = sorted(set(display.values()) - ddcutil.WRITE_ONLY)
            outcome = self.computer.run(ddcutil.read(self.computer.bus(display), codes))
            return ddcutil.answers(outcome.output)

        answered = 0
        for display, answers in self.of_each((each for each in self.displays if each.answers), read):
            answers = {code: answer for code, answer in answers.items()
                       if answer and code not in self.plausible_lies.get(display.name, ())}
            self.assert_agree(display, answers)
            answered += len(answers)
        self.assertGreater(answered, 0)


class DefaultDesk(WellBehaved, DeskTest):
    desk = "default"


class Twins(WellBehaved, DeskTest):
    desk = "twins"


class SlowDesk(WellBehaved, DeskTest):
    desk = "slow"


class Inputs(WellBehaved, DeskTest):
    desk = "inputs"


class LargeDesk(Misbehaving, DeskTest):
    desk = "large"


class Stubborn(Misbehaving, DeskTest):
    desk = "stubborn"


class Hostile(Misbehaving, DeskTest):
    desk = "hostile"
    plausible_lies = {"Tessera T24 Nulls": (0x87, 0xC0)}


if __name__ == "__main__":
    emulated_desk, vantrel, desks = map(pathlib.Path, sys.argv[1:4])
    unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
