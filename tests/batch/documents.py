#!/usr/bin/python3
"""Plays what README, guide and manual show: documents.py PROGRAM TREE

Each block of code is a list of calls, a script or Python, and is carried out in the order of its document. Of calls
that build, measure or draw, in any document, what they name has to be there: files, presets, tests, options.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from program import Report

DOCUMENTS = ("README.md", "docs/guide.md")
SETTING_UP = ("./run", "./test")  # what builds the programs


def blocks(text):
    """Language and text of the fenced blocks, and calls on a drawing within the prose."""
    for fenced in re.finditer(r"^```(\w*)\n(.*?)^```$|`(orvex-batch [^`]*\.dxf[^`]*)`", text, re.DOTALL | re.MULTILINE):
        yield fenced[1] or "", fenced[2] or fenced[3]


def manual_example(text):
    example = re.search(r"^\.nf\n(.*?)^\.fi$", text, re.DOTALL | re.MULTILINE)[1]
    return example.replace(r"\en", r"\n").replace(r"\-", "-")


def building_calls(text):
    """The words of each call on a tool of the tree, and of files that are named alone."""
    spans = re.findall(r"`([^`\n]+)`", re.sub(r"^```.*?^```$", "", text, flags=re.DOTALL | re.MULTILINE))
    for fenced in re.finditer(r"^```\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
        spans += re.sub(r"#.*", "", fenced[1]).splitlines()
    for span in spans:
        if re.match(r"(\./\w|(tools|docs|samples|bench|tests|packaging|build)/[\w/.]+( |$)|(cmake|ctest) -)", span):
            yield span.split()


def missing(tree, words):
    """What a call names and isn't there."""
    presets = {preset["name"] for preset in json.loads((tree / "CMakePresets.json").read_text())["configurePresets"]}
    builds = "".join(path.read_text() for path in tree.glob("tests/**/CMakeLists.txt"))
    programs = set(re.findall(r"orvex_(?:test|fuzzer)\((\w+)", builds)) | {"orvex-batch", "orvex-desk", "bin", "package"}
    built = [word.split("/") for word in words if word.startswith("build/")]
    named = {option: words[words.index(option) + 1] for option in ("--preset", "--target", "-L") if option in words}
    lacking = {named.pop("--preset", "dev"), *(path[1] for path in built)} - presets
    lacking |= {*named.values(), *(path[-1] for path in built if len(path) > 2)} - programs
    if words[0] in ("cmake", "ctest"):
        return lacking
    path = tree / words[0]
    sources = list(tree.glob("tests/*/*.cpp")) if words[0].startswith("build/") else [path]
    if not path.exists() and sources == [path]:
        return {words[0]}
    code = "".join(source.read_text() for source in sources) if len(words) > 1 else ""
    return lacking | {word for word in words if re.match(r"--(?!gtest)", word) and word not in code}


class Player:
    def __init__(self, program, tree, folder, report):
        self.program, self.folder, self.report = program, folder, report
        self.environment = dict(os.environ, PATH=f"{program.parent}:{os.environ['PATH']}", HOME="/nonexistent",
                                PYTHONPATH=str(tree / "python"), PYTHONDONTWRITEBYTECODE="1")
        for name, sample in (("house", "floorplan.dxf"), ("plan", "floorplan.dxf"), ("flat", "flat.dxf")):
            shutil.copy(tree / "samples" / sample, folder / f"{name}.dxf")
        shutil.copy(tree / "samples/door.scr", folder / "doors.scr")

    def run(self, *call, text=None):
        done = subprocess.run(call, cwd=self.folder, env=self.environment, input=text, capture_output=True, text=True,
                              timeout=300)
        self.report.check(done.returncode == 0 and not re.search("warning|missed", done.stderr),
                          f"{text or call[-1]}: status {done.returncode}, {done.stderr}")

    def shell(self, text):
        if "jq" in text and shutil.which("jq") is None:
            text = "\n".join(line for line in text.splitlines() if "jq" not in line)
        self.run("/bin/bash", "-e", "-o", "pipefail", "-c", text)
        if "# the same bytes" in text:
            joined, same = ((self.folder / name).read_bytes() for name in ("joined.dxf", "same.dxf"))
            self.report.check(joined == same, f"{text}: other bytes")

    def script(self, text):
        """A script has to change something; the next calls find it as window.scr."""
        (self.folder / "window.scr").write_text(text)
        self.run(str(self.program), "run", "house.dxf", "--script", "-", "--strict", "--output", "played.dxf", text=text)
        before, after = (self.folder / name for name in ("house.dxf", "played.dxf"))
        self.report.check(after.exists() and after.read_bytes() != before.read_bytes(), f"{text}: nothing changed")

    def play(self, language, text):
        words = text.split()
        if language == "python":
            self.run(sys.executable, "-c", text)
        elif words[0] == "orvex-batch":
            self.shell(text)
        elif re.match(r"(;.*\n)*-?[A-Z]+\n", text):
            self.script(text)
        else:
            self.report.check(words[0] in SETTING_UP, f"of no known kind: {text}")


def main():
    program, tree = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    report = Report()
    with tempfile.TemporaryDirectory() as scratch:
        player = Player(program, tree, pathlib.Path(scratch), report)
        for document in DOCUMENTS:
            for language, text in blocks((tree / document).read_text()):
                player.play(language, text)
        player.shell(manual_example((tree / "apps/batch/orvex-batch.1").read_text()))
    looked = 0
    for document in (path for path in tree.rglob("*.md") if "build" not in path.parts):
        for words in building_calls(document.read_text()):
            lacking = missing(tree, words)
            report.check(not lacking, f"{document.name}: {' '.join(words)}: no {', '.join(lacking)}")
            looked += 1
    report.check(looked > 30, f"only {looked} calls and files were found")
    report.finish()


if __name__ == "__main__":
    main()
