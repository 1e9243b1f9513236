#!/usr/bin/env python3
"""Checks that a room can reach the headers of those rooms and subjects only that lie below it, and that headers and
tests are named as CONTRIBUTING.md says.

usage: checkIncludes.py SOURCE_TREE COMPILE_COMMANDS

The rules are in RULES; all that isn't allowed there is forbidden, so a new room needs a row. What is tried is the
compiler's own view: for each room a source is made up and preprocessed with the very command that compiles the room.
"""

import collections
import concurrent.futures
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

SUBJECTS = ["base", "resources", "registry", "database", "prompt", "view"]
WINDOWS = ["window", "ui"]


def host(*rooms):
    """The interface of a subject together with the room that makes it."""
    return interface(*rooms) + ["host/" + room for room in rooms]


def interface(*subjects):
    return ["host/include/" + subject for subject in subjects]


def desk(*rooms):
    return ["apps/desk/" + room for room in rooms]


DESK_ROOMS = desk("commands", "files", "help", "panels", "pointing", "typing", "widgets")
DESK = host(*SUBJECTS, *WINDOWS) + ["host/change", "host/drawing", "host/join", "host/session", "apps/common", "apps/canvas"]

# room: the folders, besides its own, whose headers it may include.
RULES = {
    # The host. It never sees a module.
    "host/base": host("base"),
    "host/resources": host("base", "resources"),
    "host/registry": host("base", "resources", "registry"),
    # Knows no file format, no view and no widget, or no drawing could be changed without them.
    "host/database": host("base", "database"),
    # Geometry and edits of contents: a multiline in, a multiline out, whoever asks.
    "host/change": host("base", "database"),
    # Pure: values of the database alone.
    "host/join": host("base", "database"),
    "host/prompt": host("base", "database", "prompt"),
    "host/view": host("base", "database", "prompt", "view") + ["host/change"],
    "host/drawing": host("base", "database"),
    # Puts the others together, without a window.
    "host/session": host(*SUBJECTS) + ["host/change", "host/drawing", "host/join"],
    "host/window": host("base", "window"),
    "host/ui": host("base", "ui") + interface("window"),
    # The module. It takes the host's interface, never its insides.
    "primitives": interface("base", "database", "prompt", "view"),
    "streams": interface("base", "database"),
    "record": interface("base", "database", "prompt"),
    "engine": interface("base", "database", "prompt", "view", "resources") + ["record", "primitives", "resources"],
    "controls": interface("base", "window"),
    "dialogs": interface("base", "database", "prompt", "view", "resources", *WINDOWS)
    + ["controls", "engine", "record", "primitives", "resources"],
    "module": interface(*SUBJECTS, *WINDOWS)
    + ["dialogs", "controls", "engine", "record", "primitives", "resources"],
    # The programs. The module is a file to them.
    "apps/common": host(*SUBJECTS) + ["host/change", "host/drawing", "host/join", "host/session"],
    "apps/batch": host(*SUBJECTS) + ["host/change", "host/drawing", "host/join", "host/session", "apps/common"],
    "apps/canvas": host(*SUBJECTS) + ["host/change", "host/drawing", "host/join", "host/session", "apps/common"],
    "apps/desk": DESK + DESK_ROOMS,
    # Each can be read without its neighbours: they meet in the window.
    "apps/desk/widgets": DESK,
    "apps/desk/commands": DESK + desk("widgets"),
    "apps/desk/typing": DESK + desk("commands", "widgets"),
    "apps/desk/files": DESK + desk("commands", "widgets"),
    "apps/desk/pointing": DESK + desk("commands", "widgets"),
    "apps/desk/help": DESK + desk("commands", "widgets"),
    "apps/desk/panels": DESK + desk("commands", "pointing", "widgets"),
}

# Headers from outside the tree, and the only rooms that may reach them.
OUTSIDE = {
    "QWidget": ["host/window", "host/ui", "controls", "dialogs", "module", "apps/canvas", "apps/desk", *DESK_ROOMS],
}

NOT_ROOMS = ("tests", "bench", "build", "out", "docs", "samples", "tools", "cmake")


def room_of(folder):
    """The room that a folder belongs to: itself, or the nearest one above it that has a rule or is a subject."""
    for candidate in (folder, *folder.parents):
        if str(candidate) in RULES or str(candidate.parent) == "host/include":
            return str(candidate)
    return str(folder)


def collect(tree):
    """Room to the names of its headers, and room to its files of any kind."""
    headers = collections.defaultdict(set)
    files = collections.defaultdict(list)
    for path in sorted(tree.rglob("*")):
        place = path.relative_to(tree)
        if place.parts[0] in NOT_ROOMS or place.parts[0].startswith(".") or len(place.parts) < 2:
            continue
        if path.suffix == ".h":
            headers[room_of(place.parent)].add(path.name)
        if path.suffix in (".h", ".cpp"):
            files[room_of(place.parent)].append(path)
    return headers, files


def commands(tree, database):
    """Room to the command that compiles its first source, without its input and output."""
    found = {}
    for entry in json.loads(database.read_text()):
        source = pathlib.Path(entry["file"])
        if not source.is_relative_to(tree) or source.is_relative_to(database.parent):
            continue
        room = room_of(source.relative_to(tree).parent)
        if room in found or room.split("/")[0] in NOT_ROOMS:
            continue
        words = shlex.split(entry["command"])
        cut = words.index("-o")
        words = words[:cut] + [word for word in words[cut + 2:] if word not in ("-c", entry["file"])]
        found[room] = (words, entry["directory"])
    return found


def preprocess(command, text):
    words, directory = command
    with tempfile.TemporaryDirectory() as scratch:
        source = pathlib.Path(scratch) / "probe.cpp"
        source.write_text(text)
        return subprocess.run([*words, "-E", "-P", str(source)], cwd=directory, capture_output=True, text=True)


def check_room(room, command, headers):
    """Tries all headers that the room must not reach; gives the number of tries and the complaints."""
    allowed = {room, *RULES[room]}
    forbidden = {name: folder for folder, names in headers.items() if folder not in allowed for name in names}
    forbidden |= {name: "outside" for name, rooms in OUTSIDE.items() if room not in rooms}
    complaints = []

    probe = "".join(f'#if __has_include("{name}")\nREACHED {name}\n#endif\n' for name in sorted(forbidden))
    run = preprocess(command, probe)
    if run.returncode != 0:
        return 0, [f"{room}: the probe itself doesn't compile:\n{run.stderr}"]
    for name in re.findall(r"^REACHED (\S+)$", run.stdout, re.MULTILINE):
        complaints.append(f"{room} can include {name} of {forbidden[name]}")

    # The probe must be able to tell: what is the room's own is found, and a plain #include of the rest is an error.
    for name in sorted(headers.get(room, set()))[:1]:
        if "REACHED" not in preprocess(command, f'#if __has_include("{name}")\nREACHED\n#endif\n').stdout:
            complaints.append(f"{room} can't include its own {name}")
    for name in sorted(forbidden)[:1]:
        if not complaints and preprocess(command, f'#include "{name}"\n').returncode == 0:
            complaints.append(f"{room} compiles with {name} of {forbidden[name]}")
    return len(forbidden), complaints


def check_spelling(tree, files):
    """A path inside an #include would get round the include folders."""
    pattern = re.compile(r'^\s*#\s*include\s*(".*/.*"|<Qt[A-Z]\w*/.*>)', re.MULTILINE)
    complaints = []
    for room in files:
        for path in files[room]:
            for match in pattern.finditer(path.read_text(encoding="utf-8")):
                complaints.append(f"{path.relative_to(tree)}: a path in #include {match[1]}")
    return complaints


def sources(tree, *suffixes):
    """All files with these suffixes that belong to the tree and aren't made by a build."""
    for path in sorted(tree.rglob("*")):
        top = path.relative_to(tree).parts[0]
        if path.suffix in suffixes and top not in ("build", "out") and not top.startswith("."):
            yield path


def check_names(tree):
    """Includes are flat, so a name stands for one header only, also where upper and lower case are the same."""
    owners = collections.defaultdict(list)
    for path in sources(tree, ".h"):
        owners[path.name.lower()].append(str(path.relative_to(tree)))
    return [f"one name for {' and '.join(paths)}" for _, paths in sorted(owners.items()) if len(paths) > 1]


def check_tests(tree):
    """Tests are statements in camel case, in sources called after what they test."""
    pattern = re.compile(r"^TEST(?:_F|_P)?\((\w+),\s*(\w+)\)", re.MULTILINE)
    complaints = []
    for path in sources(tree / "tests", ".cpp"):
        found = pattern.findall(path.read_text(encoding="utf-8"))
        name = path.relative_to(tree)
        if found and not path.stem.endswith("Test"):
            complaints.append(f"{name}: a source with tests is called xTest.cpp")
        complaints += [f"{name}: {suite}.{test} isn't in camel case" for suite, test in found
                       if not re.fullmatch(r"[a-z][A-Za-z0-9]*", test)]
    return complaints


def check_programs(tree):
    """A room's test program is <room>_test and a fuzzer <name>_fuzzer, as their labels in CTest are."""
    pattern = re.compile(r"^\s*orvex_(test|fuzzer)\((\w+)", re.MULTILINE)
    return [f"{path.relative_to(tree)}: {name} doesn't end with _{kind}"
            for path in sorted((tree / "tests").rglob("CMakeLists.txt"))
            for kind, name in pattern.findall(path.read_text(encoding="utf-8"))
            if not name.endswith("_" + kind)]


def main():
    tree = pathlib.Path(sys.argv[1]).resolve()
    headers, files = collect(tree)
    complaints = check_spelling(tree, files) + check_names(tree) + check_tests(tree) + check_programs(tree)
    tried = 0
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        tasks = []
        for room, command in sorted(commands(tree, pathlib.Path(sys.argv[2]).resolve()).items()):
            if room in RULES:
                tasks.append(pool.submit(check_room, room, command, headers))
            else:
                complaints.append(f"{room} has no row in RULES")
        for task in tasks:
            count, more = task.result()
            tried += count
            complaints += more
    print(f"{len(tasks)} rooms, {tried} forbidden includes tried")
    if tried == 0:
        complaints.append("nothing was tried")
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
