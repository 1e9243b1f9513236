"""Calls orvex-batch on small drawings of its own making."""

import json
import pathlib
import subprocess
import sys

import ezdxf

ORIGIN = (0, 0, 0)


def call(program, *arguments, script=None):
    return subprocess.run([str(program), *map(str, arguments)], input=script, capture_output=True, text=True, timeout=60)


def play(program, drawing, script, output):
    """Plays a script given as text and saves."""
    return call(program, "run", drawing, "--script", "-", "--output", output, script=script)


def listed(program, drawing):
    run = call(program, "list", drawing, "--json")
    assert run.returncode == 0, run.stderr
    return json.loads(run.stdout)


def make_drawing(path, *walls):
    """A drawing with multilines in STANDARD, zero justification, scale 1: a chain of points each."""
    document = ezdxf.new("R2000")
    for points in walls:
        document.modelspace().add_mline(points, dxfattribs={"justification": 1})
    document.saveas(path)
    return pathlib.Path(path)


class Report:
    """Collects what is wrong and how many checks ran."""

    def __init__(self):
        self.count = 0
        self.wrong = []

    def check(self, good, text):
        self.count += 1
        if not good:
            self.wrong.append(text)

    def finish(self):
        print("\n".join(self.wrong) or f"{self.count} checks passed")
        sys.exit(1 if self.wrong or not self.count else 0)


class Checks:
    """Checks of a program's results, which it writes into a folder."""

    def __init__(self, program, folder):
        self.program = program
        self.folder = folder
        self.out = folder / "out.dxf"
        self.report = Report()

    def expect(self, what, found, wanted):
        self.report.check(found == wanted, f"{what}: {found}, expected {wanted}")
