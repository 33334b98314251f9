#!/usr/bin/env python3
"""Reads the includes of all sources and holds them against the arrows that may exist between the rooms."""

import pathlib
import re
import sys

HOST_APP = ["framework/abi", "framework/support", "host/base"]
APP_PARTS = ["host/app/process", "host/app/settings", "host/app/audio", "host/app/modules"]
APP_CORE = APP_PARTS + ["host/app/session", "host/app/texts", "host/app/publishing"]
WINDOW_PARTS = ["host/app/window/look", "host/app/window/songs", "host/app/window/dialogs", "host/app/window/panels"]

# Which rooms a room may include, beside itself; a room stands for those in it. "tests" may include everything.
ALLOWED = {
    "framework/abi": [],
    "framework/support/objects": ["framework/abi"],
    "framework/support/data": ["framework/abi", "framework/support/objects"],
    "framework/support/parts": ["framework/abi", "framework/support/objects", "framework/support/data"],
    "auth": ["framework/abi", "framework/support"],
    "release": ["framework/abi", "framework/support", "auth"],
    "ui/pictures": ["framework/abi", "framework/support", "auth", "release"],
    "ui/news": ["framework/abi", "framework/support", "auth", "release", "ui/pictures"],
    "ui/tracks": ["framework/abi", "framework/support", "auth", "release"],
    "client": ["framework/abi", "framework/support", "auth", "release", "ui"],
    "module": ["framework/abi", "framework/support", "auth", "release", "ui", "client"],
    "host/base": ["framework/abi", "framework/support"],
    "host/system/files": ["framework/abi", "framework/support", "host/base"],
    "host/system/package": ["framework/abi", "framework/support", "host/base", "host/system/files"],
    "host/system": ["framework/abi", "framework/support", "host/base", "host/system"],
    "host/text": ["framework/abi", "framework/support", "host/base"],
    "host/gui/picture": ["framework/abi", "framework/support", "host/base"],
    "host/gui/skin": ["framework/abi", "framework/support", "host/base", "host/gui/picture"],
    "host/gui/list": ["framework/abi", "framework/support", "host/base"],
    "host/gui/bind": ["framework/abi", "framework/support", "host/base", "host/gui/picture", "host/gui/skin", "host/gui/list"],
    "host/gui/build": ["framework/abi", "framework/support", "host/base", "host/gui/skin", "host/gui/list", "host/gui/bind"],
    "host/gui": ["framework/abi", "framework/support", "host/base", "host/gui"],
    "host/net/http": ["framework/abi", "framework/support", "host/base"],
    "host/net/download": ["framework/abi", "framework/support", "host/base", "host/net/http"],
    "host/net/feed": ["framework/abi", "framework/support", "host/base"],
    "host/net": ["framework/abi", "framework/support", "host/base", "host/net"],
    "host/security": ["framework/abi", "framework/support", "host/base"],
    "host/app/process": HOST_APP,
    "host/app/settings": HOST_APP,
    "host/app/audio": HOST_APP,
    "host/app/modules": HOST_APP,
    "host/app/session": HOST_APP + APP_PARTS,
    "host/app/texts": ["host/base"],
    "host/app/publishing": HOST_APP + APP_PARTS + ["host/app/session"],
    "host/app/headless": HOST_APP + APP_CORE,
    "host/app/window/look": HOST_APP + APP_CORE,
    "host/app/window/songs": HOST_APP + APP_CORE + ["host/app/window/look"],
    "host/app/window/dialogs": HOST_APP + APP_CORE + ["host/app/window/look"],
    "host/app/window/panels": HOST_APP + APP_CORE + ["host/app/window/look", "host/app/window/dialogs"],
    "host/app/window/frame": HOST_APP + APP_CORE + WINDOW_PARTS,
    "host/app/window/start": HOST_APP + APP_CORE + WINDOW_PARTS + ["host/app/window/frame"],
    "host/app": ["host/app/audio", "host/app/headless", "host/app/window/start"],
    "sandbox/http": [],
    "sandbox/pages": ["sandbox/http"],
    "sandbox/upload": ["sandbox/http"],
    "sandbox": ["sandbox"],
}

# The host libraries' own public headers: for the host program, never for modules.
PUBLIC_HOST_HEADERS = re.compile(r"host/(system|text|gui|net|security)/host\w+\.h")

# Rooms of the extension: the C++ standard library and the border, nothing else.
EXTENSION = ["framework/abi", "framework/support", "auth", "release", "ui", "client", "module"]

STANDARD = set("""algorithm any array atomic bit cassert cctype cerrno charconv chrono cinttypes climits clocale cmath
compare concepts condition_variable cstdarg cstddef cstdint cstdio cstdlib cstring ctime cwctype deque exception
filesystem fstream functional initializer_list iomanip iostream istream iterator limits list locale map memory mutex new
numbers numeric optional ostream queue random ranges ratio regex set span sstream stack stdexcept streambuf string
string_view system_error thread tuple type_traits typeinfo unordered_map unordered_set utility variant vector
version""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def room_of(path):
    """The room that a file of the project lies in."""
    matches = [room for room in ALLOWED if path.startswith(room + "/")]
    return max(matches, key=len) if matches else None


def may_include(room, path):
    target = room_of(path)
    if target is None:
        return False
    if target == room or any(target == known or target.startswith(known + "/") for known in ALLOWED[room]):
        return True
    return room.startswith("host/app/") and PUBLIC_HOST_HEADERS.fullmatch(path) is not None


def faults_of(room, name, text, files):
    for bracket, path in INCLUDE.findall(text):
        if bracket == '"':
            if path not in files:
                yield f"{name}: \"{path}\" is not named from the project's root"
            elif not may_include(room, path):
                yield f"{name}: {room} may not know {path}"
        elif room in EXTENSION and path not in STANDARD:
            yield f"{name}: the extension may not use <{path}>"


def unit_of(path):
    """A header and its source are one unit: what either includes, both depend on."""
    return path.rsplit(".", 1)[0]


def loops(graph):
    """Sets of units that reach each other, by Tarjan's algorithm."""
    number, low, stack, found = {}, {}, [], []

    def visit(unit):
        number[unit] = low[unit] = len(number)
        stack.append(unit)
        for following in sorted(graph.get(unit, ())):
            if following not in number:
                visit(following)
            if following in stack:
                low[unit] = min(low[unit], low[following])
        if low[unit] == number[unit]:
            at = stack.index(unit)
            if len(stack) - at > 1:
                found.append(" <-> ".join(sorted(stack[at:])))
            del stack[at:]

    for start in sorted(graph):
        if start not in number:
            visit(start)
    return found


def main():
    root = pathlib.Path(sys.argv[1])
    rooms = sorted({room.split("/")[0] for room in ALLOWED})
    paths = [p for top in rooms for p in (root / top).rglob("*") if p.suffix in (".h", ".cpp")]
    files = {str(p.relative_to(root)): p.read_text(encoding="utf-8") for p in paths}
    if len(files) < 50:
        sys.exit(f"only {len(files)} files found below {root}: this looks at the wrong folder")
    faults, graph = [], {}
    for name, text in sorted(files.items()):
        room = room_of(name)
        if room is None:
            faults.append(f"{name}: lies in no room")
            continue
        faults += faults_of(room, name, text, files)
        graph.setdefault(unit_of(name), set()).update(
            unit_of(path) for bracket, path in INCLUDE.findall(text) if bracket == '"')
    faults += [f"a loop of units: {loop}" for loop in loops(graph)]
    print("\n".join(faults) if faults else f"{len(files)} files keep to the rooms")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
