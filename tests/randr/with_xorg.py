"""Runs a command with X servers of its own.

    with_xorg.py FOLDER COMMAND...

FOLDER is where the server's module `versatile` was built. Ends as the command does, or
with status 77 and the reason when there can be no such servers here. They have ended by
then. The command finds in its environment

    DISPLAY                 a server with 16 outputs that can be turned off, 3 CRTCs that any
                            output can be shown by, and two modes for each of the first 4
    VANTREL_SINGLE_DISPLAY  one with one output, and a screen that can't grow
    VANTREL_MORTAL_DISPLAY  another such one, to be ended
    VANTREL_MORTAL_SERVER   by the number of its process
    VANTREL_PLAIN_DISPLAY   one without RandR
"""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile

SKIPPED = 77
NEEDED_PROGRAMS = ["Xorg", "Xvfb", "xrandr", "setpriv"]
MODULES = pathlib.Path("/usr/lib/xorg/modules")
DRIVER = MODULES / "drivers" / "dummy_drv.so"
MODE = "1920x1080"
OTHER_MODE = "1280x1024"
OUTPUTS_WITH_MODES = [f"DUMMY{number}" for number in range(4)]

CONFIGURATION = """
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoAddGPU" "false"
  Option "DontVTSwitch" "true"
EndSection
Section "Files"
  ModulePath "{modules}"
  ModulePath "{folder}"
EndSection
Section "Module"
  Load "versatile"
EndSection
Section "Device"
  Identifier "device"
  Driver "dummy"
  VideoRam 256000
  Option "ConstantDPI" "true"
EndSection
Section "Monitor"
  Identifier "monitor"
  HorizSync 5.0-1000.0
  VertRefresh 5.0-200.0
  Modeline "1920x1080" 148.50 1920 2008 2052 2200 1080 1084 1089 1125 +hsync +vsync
EndSection
Section "Screen"
  Identifier "screen"
  Device "device"
  Monitor "monitor"
  DefaultDepth 24
  SubSection "Display"
    Depth 24
    Modes "1920x1080"
  EndSubSection
EndSection
"""


class NoServer(Exception):
    pass


class Servers:
    def __init__(self):
        self._processes = []
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vantrel-xorg."))

    def start(self, *command):
        """The process of a server, which tells its number once it can be used."""
        read, write = os.pipe()
        log = self.folder / f"{len(self._processes)}-{command[0]}.txt"
        with open(log, "wb") as output:
            # Whatever ends this program ends the server.
            process = subprocess.Popen(
                ["setpriv", "--pdeathsig", "KILL", *command, "-nolisten", "tcp", "-noreset", "-displayfd", str(write)],
                pass_fds=[write], cwd=self.folder, start_new_session=True,
                stdin=subprocess.DEVNULL, stdout=output, stderr=output)
        self._processes.append(process)
        os.close(write)
        with os.fdopen(read) as answer:
            number = answer.readline().strip()
        if not number:
            raise NoServer(f"{command[0]} does not start:\n{log.read_text(errors='replace')}")
        process.display = f":{number}"
        return process

    def start_versatile(self, modules):
        configuration = self.folder / "xorg.conf"
        configuration.write_text(CONFIGURATION.format(modules=MODULES, folder=modules.resolve()))
        server = self.start("Xorg", "-config", str(configuration), "-logfile", str(self.folder / "xorg.log"),
                            "-novtswitch", "-sharevts", "vt7")
        if "inverted" not in xrandr(server.display):
            raise NoServer(f"Xorg does not load the module that is below {modules}")
        for output in OUTPUTS_WITH_MODES:
            for mode in (MODE, OTHER_MODE):
                xrandr(server.display, "--addmode", output, mode)
            # One that was never lit passes for disconnected.
            xrandr(server.display, "--output", output, "--mode", MODE)
            xrandr(server.display, "--output", output, "--off")
        return server

    def end(self):
        for process in self._processes:
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
        for process in self._processes:
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


def xrandr(display, *arguments):
    environment = {**os.environ, "DISPLAY": display}
    return subprocess.run(["xrandr", *arguments], env=environment, capture_output=True, text=True).stdout


def missing():
    """Why there can be no servers here; empty when they can be tried."""
    programs = [name for name in NEEDED_PROGRAMS if shutil.which(name) is None]
    if programs or not DRIVER.exists():
        programs += [] if DRIVER.exists() else ["Xorg's dummy driver"]
        return f"not installed: {', '.join(programs)} (script/bootstrap --tests installs it)"
    if os.geteuid() != 0:
        return "only root may start Xorg without a screen"
    return ""


def main():
    modules, *command = sys.argv[1:]
    modules = pathlib.Path(modules)
    reason = missing()
    if reason:
        print(f"Skipped: {reason}")
        return SKIPPED
    # Ended from outside, it still ends the servers.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    servers = Servers()
    try:
        mortal = servers.start("Xvfb")
        environment = {
            **os.environ,
            "DISPLAY": servers.start_versatile(modules).display,
            "VANTREL_SINGLE_DISPLAY": servers.start("Xvfb").display,
            "VANTREL_MORTAL_DISPLAY": mortal.display,
            "VANTREL_MORTAL_SERVER": str(mortal.pid),
            "VANTREL_PLAIN_DISPLAY": servers.start("Xvfb", "-extension", "RANDR").display,
        }
        return subprocess.run(command, env=environment).returncode
    except NoServer as error:
        print(error)
        return 1
    finally:
        servers.end()


if __name__ == "__main__":
    sys.exit(main())
