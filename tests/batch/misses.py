#!/usr/bin/python3
"""Picks that do nothing, and what `run` says of them: misses.py PROGRAM"""

import pathlib
import sys
import tempfile

import ezdxf
from program import Report, call

VIEW = "ZOOM\nC\n50,0\n240\n"  # a pick reaches 0.6 to each side

# Walls of 2 by 100 along the axes through 50,0; a third one away from both; a frame; a circle; a wall on a locked layer.
WALLS = {"A": [(0, 0), (100, 0)], "B": [(50, -50), (50, 50)], "C": [(0, 90), (40, 90)],
         "F": [(60, 60), (90, 60), (90, 90), (60, 90)]}

# A script after the view, and what is told: lines of the script with what is said there.
CASES = [
    ("-MLEDIT\nCC\n10,1\n51,30\n\n", []),
    ("-MLEDIT\nCC\n10,20\n10,1\n51,30\n\n", [(7, "nothing here")]),
    ("-MLEDIT\nAV\n120,10\n\n", [(7, "a circle is no multiline")]),
    ("-MLEDIT\nCA\n20,-20\n\n", [(7, "on a locked layer")]),
    ("-MLEDIT\nCJ\n61,75\n\n", [(7, "a closed multiline can't be used here")]),
    ("-MLEDIT\nOC\n10,1\n20,1\n\n", [(8, "this is the same multiline")]),
    ("-MLEDIT\nCS\n10,1\n51,30\n20,1\n\n", [(8, "this is another multiline")]),
    ("-MLEDIT\nMC\n10,1\n10,91\n\n", [(8, "these two don't cross where they were picked")]),
    ("-MLEDIT\nCT\n10,1\n10,91\n\n", [(8, "these two don't cross where they were picked")]),
    ("-MLEDIT\nCA\n10,1\n20,1\nUNDO\n10,1\n20,1\n\n", []),
    ("-MLEDIT\nCA\n10,1\n10,1\n\n", [(8, "nothing changed")]),
    ("-MLEDIT\nDV\n10,1\n\n-MLEDIT\nWA\n10,1\n20,1\n\n", [(7, "nothing changed"), (12, "nothing changed")]),
    ("MLBREAK\n10,20\n", [(6, "nothing here")]),
    ("MLCONNECT\n120,10\n", [(6, "a circle is no multiline")]),
    ("REVERSE\n120,10\n10,1\n\n", [(6, "a circle is no multiline")]),
]


def make_plan(path):
    document = ezdxf.new("R2000")
    space = document.modelspace()
    for name, points in WALLS.items():
        space.add_mline(points, close=name == "F", dxfattribs={"justification": 1, "scale_factor": 2})
    document.layers.add("LOCKED").lock()
    space.add_mline([(0, -21), (40, -21)], dxfattribs={"justification": 1, "scale_factor": 2, "layer": "LOCKED"})
    space.add_circle((120, 0), 10)
    document.saveas(path)


def main():
    report = Report()
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        plan, script, out = folder / "plan.dxf", folder / "play.scr", folder / "out.dxf"
        make_plan(plan)
        for lines, told in CASES:
            script.write_text(VIEW + lines)
            run = call(sys.argv[1], "run", plan, "--script", script, "--output", out)
            warnings = [f"orvex-batch: {script}:{line}: warning: missed pick: {text}" for line, text in told]
            report.check((run.returncode, run.stderr.splitlines()) == (0, warnings), f"{lines!r}: {run}")
            report.check(out.exists(), f"{lines!r}: not saved")
            out.unlink(missing_ok=True)
            strict = call(sys.argv[1], "run", plan, "--script", script, "--output", out, "--strict")
            report.check(strict.returncode == (6 if told else 0), f"strict {lines!r}: {strict}")
            report.check(out.exists() == (not told), f"strict {lines!r}: saved or not")
            out.unlink(missing_ok=True)
    report.finish()


if __name__ == "__main__":
    main()
