#!/usr/bin/python3
"""Plays what README, guide and manual show: documents.py PROGRAM TREE

Each block of code is a list of calls, a script or Python, and is carried out in the order of its document.
"""

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
    report.finish()


if __name__ == "__main__":
    main()
