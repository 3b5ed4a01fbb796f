"""What only a real kernel shows: permissions, addresses that a driver holds, buses that
vanish under a program, and udev's own events. Runs in the virtual computer, as root.

    checks.py VANTREL MODULE [TEST...]

VANTREL is the program, MODULE the file of the monitors' kernel module.
"""

import errno
import fcntl
import glob
import grp
import os
import pathlib
import stat
import subprocess
import sys
import time
import unittest

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "tests" / "linux" / "clients"))
import probe
from desk import Value

vantrel, module = None, None

I2C_SLAVE = 0x0703
MONITOR = 0x37
NOBODY = ["setpriv", "--reuid=65534", "--regid=65534"]
VALUES = {0x10: Value(60, 100), 0x12: Value(75, 100), 0x60: Value(0x0F, 0x12), 0x62: Value(30, 100)}


def nodes():
    """By the number of the monitor."""
    names = {}
    for name in glob.glob("/sys/class/i2c-dev/i2c-*/name"):
        text = pathlib.Path(name).read_text().strip()
        if text.startswith("DDC line "):
            names[int(text.split()[-1])] = "/dev/" + pathlib.Path(name).parent.name
    return names


def settle():
    subprocess.run(["udevadm", "settle"], check=True)


def load():
    subprocess.run(["insmod", module], check=True)
    settle()


def unload():
    """Whether the kernel let the module go."""
    gone = subprocess.run(["rmmod", "vantrel_monitors"], stderr=subprocess.DEVNULL, check=False).returncode == 0
    settle()
    return gone


def unload_soon():
    """A transfer holds its bus for the moment that it takes."""
    for _ in range(1000):
        if unload():
            return
        time.sleep(0.01)
    raise AssertionError("the kernel does not let the module go")


class Opened:
    def __init__(self, node):
        self._node = node

    def __enter__(self):
        self._descriptor = os.open(self._node, os.O_RDWR)
        return self

    def __exit__(self, *_):
        os.close(self._descriptor)

    def select(self, address):
        fcntl.ioctl(self._descriptor, I2C_SLAVE, address)


class Checks(unittest.TestCase):
    def tearDown(self):
        if not nodes():
            load()

    def probe(self, *prefix):
        process = subprocess.run([*prefix, *probe.command(vantrel)], capture_output=True, text=True, check=False)
        self.assertEqual(process.returncode, 0, process.stderr)
        return probe.probed(process.stdout)

    def test_the_program_reads_every_monitor(self):
        found = self.probe()
        self.assertEqual([(each.edid, each.serial) for each in found], [("450C0127", 1), ("450C0227", 2)])
        for monitor in found:
            self.assertEqual(monitor.values, VALUES)
            self.assertIn("vcp(10 12 60(0F 11 12) 62 DF)", monitor.capabilities)

    def test_nodes_are_for_root_and_the_group_of_i2c(self):
        for node in nodes().values():
            status = os.stat(node)
            self.assertEqual(stat.filemode(status.st_mode), "crw-rw----")
            self.assertEqual(grp.getgrgid(status.st_gid).gr_name, "i2c")

    def test_who_may_not_open_a_node_reads_nothing_and_who_is_in_its_group_does(self):
        for monitor in self.probe(*NOBODY, "--clear-groups"):
            self.assertEqual(set(monitor.values.values()), {None})
        group = str(grp.getgrnam("i2c").gr_gid)
        for monitor in self.probe(*NOBODY, f"--groups={group}"):
            self.assertEqual(monitor.values, VALUES)

    def test_an_address_that_a_driver_holds_is_busy(self):
        node = nodes()[1]
        device = pathlib.Path("/sys/bus/i2c/devices", pathlib.Path(node).name)
        (device / "new_device").write_text(f"dummy {MONITOR:#x}\n")
        try:
            with Opened(node) as opened, self.assertRaises(OSError) as raised:
                opened.select(MONITOR)
            self.assertEqual(raised.exception.errno, errno.EBUSY)
            first, second = self.probe()
            self.assertEqual(set(first.values.values()), {None})
            self.assertEqual(second.values, VALUES)
        finally:
            (device / "delete_device").write_text(f"{MONITOR:#x}\n")
        self.assertEqual(self.probe()[0].values, VALUES)

    def test_an_open_node_keeps_its_bus(self):
        with Opened(nodes()[1]):
            self.assertFalse(unload())
        self.assertTrue(unload())
        self.assertEqual(nodes(), {})

    def probe_and_meanwhile(self, happening):
        """Lets something happen after the first value that the program prints."""
        with subprocess.Popen(probe.command(vantrel), stdout=subprocess.PIPE, text=True) as process:
            report = ""
            for line in process.stdout:
                report += line
                if line.startswith("VCP 0x10"):
                    happening()
                    break
            report += process.stdout.read()
        self.assertEqual(process.returncode, 0)
        return probe.probed(report)

    def test_buses_vanish_under_the_program_and_it_ends_as_always(self):
        first, *others = self.probe_and_meanwhile(unload_soon)
        self.assertEqual(first.values[0x10], VALUES[0x10])
        self.assertIsNone(first.values[0x62])
        for monitor in others:
            self.assertEqual(set(monitor.values.values()), {None})

    def test_transfers_that_nobody_acknowledges_are_made_again(self):
        failures = pathlib.Path("/sys/module/vantrel_monitors/parameters/fail_next")
        found = self.probe_and_meanwhile(lambda: failures.write_text("3"))
        self.assertEqual([monitor.values for monitor in found], [VALUES, VALUES])
        self.assertEqual(failures.read_text().strip(), "0")

    def test_udev_tells_of_buses_that_go_and_come(self):
        told = []
        with subprocess.Popen(["udevadm", "monitor", "--udev", "--subsystem-match=i2c-dev"],
                              stdout=subprocess.PIPE, text=True) as listener:
            # It listens when it has said so.
            for line in listener.stdout:
                if line.startswith("UDEV - "):
                    break
            unload()
            load()
            for line in listener.stdout:
                if line.startswith("UDEV "):
                    told.append((line.split()[2], line.split()[3].rsplit("/", 1)[-1]))
                if len(told) == 2 * len(nodes()):
                    break
            listener.terminate()
        names = [pathlib.Path(node).name for node in nodes().values()]
        self.assertEqual(sorted(told), sorted((action, name) for action in ("add", "remove") for name in names))


if __name__ == "__main__":
    vantrel, module = sys.argv[1:3]
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]], verbosity=2)
