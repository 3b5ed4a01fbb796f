"""The whole program on a real desktop, as a person meets it.

    desktop_test.py PROGRAM REPORTS [TEST...]

PROGRAM is vantrel; what a failed test saw is kept below the folder REPORTS. Ends
with status 77 when something that it needs is not installed.
"""

import pathlib
import shutil
import subprocess
import sys
import time
import unittest

SKIPPED = 77

try:
    from desktop import NEEDED_PROGRAMS, Desktop
    from program import MONITOR
    from screen import Screen
    from trays import EmbeddingTray, NotifierTray
    from waiting import happens, wait_for
except (ImportError, ValueError) as error:
    print(f"Skipped: {error} (script/bootstrap --tests installs what the tests need)")
    sys.exit(SKIPPED)

executable, reports = None, None


class DesktopTest(unittest.TestCase):
    """Each test on a fresh desktop."""

    def run(self, result=None):
        problems = len(result.failures) + len(result.errors)
        self.desktop = Desktop(executable)
        try:
            super().run(result)
            if len(result.failures) + len(result.errors) > problems:
                folder = reports / self.id().removeprefix("__main__.")
                self.desktop.report(folder)
                print(f"A picture of the screen and the logs are in {folder}")
        finally:
            self.desktop.end()

    def setUp(self):
        self.desktop.begin()
        self.screen = self.desktop.screen


class TrayTests:
    """What has to work in every kind of tray."""

    def setUp(self):
        super().setUp()
        self.tray = self.make_tray(self.desktop)

    def start(self, **options):
        program = self.desktop.start_program(**options)
        self.icon = self.tray.icon(program)
        return program

    def start_and_open(self):
        program = self.start()
        self.screen.click(self.icon.center)
        # A panel that takes long to be laid out moves the icon away from the pointer, or hears
        # nothing yet where it shows it already: so a person clicks once more.
        if not happens(program.popover, within=5):
            self.icon = self.tray.icon(program)
            self.screen.click(self.icon.center)
        self.popover = program.wait_for_popover()
        return program

    def test_clicks_on_the_icon_open_and_close_the_popover(self):
        program = self.start_and_open()
        self.assertTrue(Screen.area.contains(self.popover), self.popover)
        self.assertFalse(self.popover.overlaps(self.icon), (self.popover, self.icon))
        self.screen.click(self.icon.center)
        program.wait_for_no_popover()
        # A click that was heard twice would open it again.
        self.assertFalse(happens(program.popover, within=0.5))
        self.screen.click(self.icon.center)
        program.wait_for_popover()

    def test_escape_closes_the_popover(self):
        program = self.start_and_open()
        self.screen.key("Escape")
        program.wait_for_no_popover()
        self.assertTrue(program.is_running())

    def test_a_click_elsewhere_closes_the_popover(self):
        program = self.start_and_open()
        self.screen.click((100, 100))
        program.wait_for_no_popover()
        self.assertTrue(program.is_running())

    def test_a_drag_reaches_the_monitor_in_fewer_writes_and_the_last_value_wins(self):
        program = self.start_and_open()
        slider = program.control("slider", "Brightness").place()
        # From where the knob is to the left end.
        points = [slider.at(percent / 100) for percent in range(60, -1, -1)]
        self.screen.drag(points)
        program.wait_for_log(f"{MONITOR} write 0x10 = 0 ")
        self.assertFalse(happens(lambda: program.written("0x10")[-1] != 0, within=0.5))
        self.assertEqual(program.control("slider", "Brightness").value(), 0)
        written = program.written("0x10")
        self.assertEqual(written, sorted(written, reverse=True))
        self.assertLess(len(written), len(points) / 2)

    def test_an_input_tile_switches_the_monitor_and_brings_it_back(self):
        program = self.start_and_open()
        program.click("radio button", "HDMI 1")
        program.wait_for_log(f"{MONITOR} write 0x60 = 17")
        program.wait_for_log(f"Turning Mac output off for {MONITOR}")
        program.wait_for_control("push button", "Turn On")
        wait_for("the tile to be chosen", lambda: program.is_checked("radio button", "HDMI 1"))
        program.click("radio button", "DisplayPort 1")
        program.wait_for_log(f"Turning Mac output back on for {MONITOR}")
        program.wait_for_log(f"{MONITOR} write 0x60 = 15")
        program.wait_for_log(f"{MONITOR}: monitor settled on the Mac input")
        program.wait_for_control("check box", f"Video output to {MONITOR}")

    def test_a_second_start_opens_the_popover_of_the_first_and_ends(self):
        first = self.start()
        begin = time.monotonic()
        second = self.desktop.start_program()
        self.assertEqual(second.exit_status(), 0)
        self.assertLess(time.monotonic() - begin, 5)
        first.wait_for_popover()
        self.assertTrue(first.is_running())

    def test_quit_ends_the_program(self):
        program = self.start_and_open()
        program.click("push button", "Quit")
        self.assertEqual(program.exit_status(), 0)

    def test_the_settings_window_opens_once(self):
        program = self.start_and_open()
        program.click("push button", "Settings")
        wait_for("the settings", program.settings_windows)
        program.wait_for_no_popover()
        self.screen.click(self.icon.center)
        program.wait_for_popover()
        program.click("push button", "Settings")
        program.wait_for_no_popover()
        self.assertFalse(happens(lambda: len(program.settings_windows()) != 1, within=0.5))

    def test_nothing_wakes_up_while_the_popover_is_closed(self):
        # A screen reader's bus would have its own conversations.
        program = self.start(is_accessible=False)
        self.screen.click(self.icon.center)
        wait_for("the popover", program.popover)
        program.wait_for_log(f"{MONITOR}: loaded")
        self.screen.key("Escape")
        program.wait_for_no_popover()
        # The panel goes on asking for a while; a timer would never be so still.
        wait_for("the program to rest", lambda: program.switches_in(seconds=3) <= 5)


class EmbeddingTrayTest(TrayTests, DesktopTest):
    make_tray = EmbeddingTray


class NotifierTrayTest(TrayTests, DesktopTest):
    make_tray = NotifierTray


class NoTrayTest(DesktopTest):
    def test_the_program_is_a_window_and_closing_that_ends_it(self):
        program = self.desktop.start_program()
        window = program.wait_for_popover()
        self.assertTrue(Screen.area.contains(window), window)
        self.assertTrue([element for element in program.elements()
                         if element.role == "label" and "shows no status icons" in element.name])
        wait_for("the window to be the active one", lambda: self.screen.active_title() == "Vantrel")
        self.screen.key("alt+F4")
        self.assertEqual(program.exit_status(), 0)

    def test_an_embedding_tray_that_comes_late_shows_the_icon(self):
        self.expect_an_icon_in(EmbeddingTray, after=3)

    def test_a_notifier_tray_that_comes_late_shows_the_icon(self):
        self.expect_an_icon_in(NotifierTray, after=3)

    def expect_an_icon_in(self, make_tray, after):
        program = self.desktop.start_program()
        time.sleep(after)
        tray = make_tray(self.desktop)
        self.screen.click(tray.icon(program).center)
        program.wait_for_popover()

    def test_the_signal_to_terminate_ends_it(self):
        program = self.desktop.start_program()
        wait_for("the program to have started", program.log)
        program.terminate()
        self.assertEqual(program.exit_status(), 0)

    def test_without_a_desktop_it_says_what_is_possible(self):
        environment = {name: value for name, value in self.desktop.environment.items() if name != "DISPLAY"}
        run = subprocess.run([executable, "--simulate"], env=environment, capture_output=True, text=True,
                             timeout=10)
        self.assertEqual(run.returncode, 2)
        self.assertEqual(run.stdout, "")
        self.assertRegex(run.stderr, r"\A[^\n]*--screenshot[^\n]*\n\Z")


def run_together(tests):
    """Each class in a process of its own: most of the time they wait."""
    command = [sys.executable, __file__, executable, reports]
    runs = [subprocess.Popen([*command, test.__name__], stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, text=True)
            for test in tests]
    for run in runs:
        print(run.communicate()[0])
    return any(run.returncode for run in runs)


def main():
    global executable, reports
    missing = [name for name in NEEDED_PROGRAMS if shutil.which(name) is None]
    if missing:
        print(f"Skipped: not installed: {', '.join(missing)} (script/bootstrap --tests installs it)")
        sys.exit(SKIPPED)
    executable, reports, *tests = sys.argv[1:]
    reports = pathlib.Path(reports)
    if tests:
        unittest.main(argv=[sys.argv[0], *tests], verbosity=2)
    sys.exit(run_together([EmbeddingTrayTest, NotifierTrayTest, NoTrayTest]))


if __name__ == "__main__":
    main()
