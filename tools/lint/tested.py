"""Every source with a type of its own has a test that is named after it."""

import posixpath

from tree import Finding

_MONITOR = "a piece of SimulatedMonitor, whose test goes through the bus to see every byte of it"

_COMPOSITOR = "a piece of WaylandDesktop, whose tests go through a compositor to see what each protocol says"

_MUTTER = "a piece of MutterDesktop, whose tests go through a service on a bus to see what is said to it"

# Sources without a test of their own, and why that is enough.
UNTESTED = {
    "src/runtime/Fatal.cpp": "every death test of the other types goes through it",
    "src/platform/linux/randr/CrtcTables.cpp": "RandRDesktop's tests of tables go through it",
    "src/platform/linux/randr/Layout.cpp": "RandRDesktop's tests see what is read, beside what xrandr reads",
    "src/platform/linux/randr/OutputSwitch.cpp": "RandRDesktop's tests turn outputs off and on through it",
    "src/platform/linux/randr/Picture.cpp": "a piece of Placement, whose test writes and reads it",
    "src/ui/qt/DividerItem.cpp": "a line, which the gallery's pictures show",
    "src/ui/qt/EmbeddingTray.cpp": "the tests of the whole program on a desktop bring such a tray late",
    "src/ui/qt/ItemFactory.cpp": "QtCanvas's test shows every kind of node through it",
    "src/ui/qt/OptionMenu.cpp": "the base of SymbolPickerItem and MenuItem, whose tests open it",
    "src/ui/qt/PaintedButton.cpp": "the base of ButtonItem and others, whose tests press it in every way",
    "src/ui/qt/Painting.cpp": "strokes, which the gallery's pictures show",
    "src/ui/qt/Palettes.cpp": "colours, which LookTest judges",
    "src/ui/qt/QtView.cpp": "every test of an item shows it in one",
    "src/ui/qt/ScrollView.cpp": "the widget of ScrollItem, whose test scrolls it",
    "src/ui/qt/SliderWidget.cpp": "the widget of SliderItem, whose test moves it in every way",
    **{f"src/platform/linux/wayland/{name}.cpp": _COMPOSITOR for name in (
        "CoreOutput", "Globals", "KDEDevice", "KDEOutputManagement", "OutputTable", "Proxy", "WlrHead",
        "WlrOutputManagement")},
    **{f"src/platform/linux/mutter/{name}.cpp": _MUTTER for name in ("DisplayConfig", "DisplayState", "MessageReader")},
    "src/platform/simulated/Announcements.cpp": "a piece of World, whose test watches what it announces",
    "src/platform/simulated/Frame.cpp": _MONITOR,
    "src/platform/simulated/MonitorFirmware.cpp": _MONITOR,
    "src/platform/simulated/ReplySpoiler.cpp": "a piece of VCPReplier, whose test spoils a reply in every way",
}


def tested_types(tree):
    """room/Type of every source that has a test: tests/room/TypeTest.cpp, or one of
    several that add an aspect to the name, like TypeReconnectTest.cpp."""
    types = {_type(path) for path in tree.paths(".h", ".cpp", below="src/")}
    found = set()
    for path in tree.paths("Test.cpp", below="tests/"):
        subject = path.removeprefix("tests/").removesuffix("Test.cpp")
        owners = [name for name in types if subject == name or _adds_an_aspect(subject, name)]
        found.update(sorted(owners, key=len)[-1:])
    return found


def _type(source):
    """src/platform/simulated/VirtualTime.cpp -> simulated/VirtualTime"""
    room = posixpath.basename(posixpath.dirname(source))
    return f"{room}/{posixpath.basename(source).rsplit('.', 1)[0]}"


def _adds_an_aspect(subject, name):
    return subject.startswith(name) and subject[len(name)].isupper()


def check(tree, untested=None):
    untested = UNTESTED if untested is None else untested
    tested = tested_types(tree)
    findings = []
    for source in tree.paths(".cpp", below="src/"):
        if not tree.exists(source.removesuffix(".cpp") + ".h"):
            continue
        is_tested = _type(source) in tested
        if not is_tested and source not in untested:
            findings.append(Finding(source, 1, f"has no tests/{_type(source)}Test.cpp"))
        if is_tested and source in untested:
            findings.append(Finding(source, 1, "has a test by now: take it out of tools/lint/tested.py"))
    for source in untested:
        if not tree.exists(source):
            findings.append(Finding(source, 1, "is gone: take it out of tools/lint/tested.py"))
    return findings
