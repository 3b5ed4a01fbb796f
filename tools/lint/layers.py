"""Includes agree with the rooms' LINKS lists in src/CMakeLists.txt.

A room may include itself and what it links, directly or through another room.
Only src/app and the tests may name an implementation of the platform (which may
have rooms below it), only the room that draws with a toolkit may name that toolkit,
and only the Mac's own rooms name what is the Mac's."""

import posixpath
import re

import cpp
from tree import Finding

ROOMS = "src/CMakeLists.txt"
# The room that chooses the implementation of the platform, and the implementations.
APPLICATION = "src/app"
IMPLEMENTATIONS = ("src/platform/simulated", "src/platform/recording", "src/platform/posix", "src/platform/macos",
                   "src/platform/linux")

# The rooms for each toolkit, by how its headers begin.
_MACOS = ("src/platform/macos", "src/ui/appkit")
TOOLKITS = {
    "Q": ("src/ui/qt",),
    **{header: _MACOS for header in (
        "AppKit/", "CoreFoundation/", "CoreGraphics/", "Foundation/", "IOKit/", "ServiceManagement/", "dispatch/",
        "dlfcn.h", "mach/", "objc/", "os/", "pthread/")},
    **{header: ("src/platform/linux",) for header in ("libudev.h", "linux/", "sys/epoll.h", "sys/eventfd.h", "systemd/")},
    "wayland-": ("src/platform/linux/wayland",),
}

# What a library of the system is included as, and what has to be linked for it: one
# of several, if there are several. The longer beginning of two comes first.
LIBRARIES = {
    "nlohmann/": "nlohmann_json::nlohmann_json",
    "CLI/": "CLI11::CLI11",
    "utf8proc.h": "PkgConfig::utf8proc",
    "xcb/randr.h": "PkgConfig::xcb_randr",
    "xcb/": ("PkgConfig::xcb", "PkgConfig::xcb_randr"),
    "wayland-": "PkgConfig::wayland-client",
    "systemd/": "PkgConfig::systemd",
    "libudev.h": "PkgConfig::udev",
    "QSvg": "Qt6::Svg",
    "QDBus": "Qt6::DBus",
    "Q": "Qt6::Widgets",
    "gtest/": None,
    "gmock/": None,
    "benchmark/": None,
}


# What is linked on one system only.
_ON_ONE_SYSTEM = re.compile(r"^\$<\$<PLATFORM_ID:\w+>:(\w+)>$")


def rooms(cmake):
    """folder -> what it links, from the vantrel_room(...) calls."""
    found = {}
    for call in re.finditer(r"^\s*vantrel_room\(([^)]*)\)", cmake, re.MULTILINE):
        name, *words = call.group(1).split()
        folder, links, section = name, [], ""
        for word in words:
            if word in ("FOLDER", "LINKS"):
                section = word
            elif section == "FOLDER":
                folder = word
            else:
                links.append(_ON_ONE_SYSTEM.sub(r"\1", word))
        found[name] = ("src/" + folder, links)
    return found


def reachable(name, found):
    """Names of the rooms and libraries that `name` gets from its LINKS."""
    seen = set()
    waiting = [name]
    while waiting:
        for link in found[waiting.pop()][1]:
            link = link.removeprefix("vantrel_")
            if link not in seen:
                seen.add(link)
                if link in found:
                    waiting.append(link)
    return seen


def check(tree):
    found = rooms(tree.text(ROOMS))
    room_of = {folder: name for name, (folder, _) in found.items()}
    findings = []
    for path in tree.paths(".h", ".cpp", ".mm", below="src/"):
        folder = posixpath.dirname(path)
        if folder not in room_of:
            findings.append(Finding(path, 1, f"{folder} is not a room of {ROOMS}"))
            continue
        room = room_of[folder]
        allowed = reachable(room, found) | {room}
        for line, header, is_angled in cpp.includes(tree.text(path)):
            reason = _objection(header, is_angled, room, allowed, room_of, folder)
            if reason:
                findings.append(Finding(path, line, reason))
    return findings


def _objection(header, is_angled, room, allowed, room_of, folder):
    owners = next((homes for prefix, homes in TOOLKITS.items() if is_angled and header.startswith(prefix)), (folder,))
    if not _within(folder, owners):
        return f"only {' and '.join(owners)} may include <{header}>"
    library = next((target for prefix, target in LIBRARIES.items() if header.startswith(prefix)), "")
    if library != "":
        libraries = library if isinstance(library, tuple) else (library,)
        return "" if allowed.intersection(libraries) else f"{room} does not link what <{header}> belongs to"
    if is_angled:
        return ""
    target = "src/" + posixpath.dirname(header)
    if target not in room_of:
        return f'"{header}" is in no room; include as "room/Type.h"'
    implementation = _within(target, IMPLEMENTATIONS)
    if implementation and folder != APPLICATION and _within(folder, IMPLEMENTATIONS) != implementation:
        return f"only src/app and the tests may name an implementation of the platform: {target}"
    if room_of[target] not in allowed:
        return f'{room} may not include "{header}": it does not link {room_of[target]}'
    return ""


def _within(folder, rooms):
    """The one of the rooms that a folder is, or lies below."""
    return next((room for room in rooms if folder == room or folder.startswith(room + "/")), "")
