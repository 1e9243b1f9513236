#!/usr/bin/python3
"""Whole runs of orvex-batch: runs.py PROGRAM

Expected lists are worked out by hand beside each run.
"""

import math
import pathlib
import sys
import tempfile

import ezdxf
from program import Checks, call, listed, make_drawing, play


def lines(mline):
    return [[element["line"] for element in vertex["elements"]] for vertex in mline["vertices"]]


def close(left, right):
    if isinstance(left, list):
        return len(left) == len(right) and all(close(a, b) for a, b in zip(left, right))
    return math.isclose(left, right, abs_tol=1e-9)


class Runs(Checks):
    def play(self, drawing, script):
        run = play(self.program, drawing, script, self.out)
        self.report.check(run.returncode == 0, f"{script!r}: status {run.returncode}, {run.stderr}")
        return run

    def expect(self, what, found, wanted):
        self.report.check(close(found, wanted) if isinstance(wanted, list) else found == wanted,
                          f"{what}: {found}, expected {wanted}")

    # A wall of 100 by 1 from the origin; the picks cut 30 to 40 out of the left element alone.
    def cut(self):
        wall = make_drawing(self.folder / "cut.dxf", [(0, 0), (100, 0)])
        script = "SETVAR\nPICKBOX\n2\nZOOM\nC\n35,0\n24\n-MLEDIT\ncs\n30,0.5\n40,0.5\n\n"
        run = self.play(wall, script)
        cut = listed(self.program, self.out)["multilines"][0]
        self.expect("cut", lines(cut)[0], [[0.5, 0, 30, 40], [-0.5, 0]])
        self.expect("last prompt", run.stdout.splitlines()[-1].startswith("Select"), True)
        # U, UNDO, and a script that changes nothing give the same bytes.
        for back in (script + "U\n", script[:-1] + "undo\n\n", "ZOOM\nE\n", "", "; nothing\n"):
            self.play(wall, back)
            self.expect(f"bytes after {back!r}", self.out.read_bytes() == wall.read_bytes(), True)

    def cut_and_save_in_place(self):
        wall = make_drawing(self.folder / "place.dxf", [(0, 0), (100, 0)])
        handle = listed(self.program, wall)["multilines"][0]["handle"]
        script = f"-MLEDIT\nCA\n30,0.5 #{handle}\n40,0.5 #{handle.lower()}\n"
        call(self.program, "run", wall, "--script", "-", script=script)
        self.expect("not saved", lines(listed(self.program, wall)["multilines"][0])[0][0], [0.5, 0])
        run = play(self.program, wall, script, wall)
        self.expect("status in place", run.returncode, 0)
        self.expect("in place", lines(listed(self.program, wall)["multilines"][0])[0],
                    [[0.5, 0, 30, 40], [-0.5, 0, 30, 40]])

    # A new multiline, then a cross with an old one: the first is cut between the second's elements.
    def draw_and_cross(self):
        wall = make_drawing(self.folder / "cross.dxf", [(0, 0), (100, 0)])
        script = ("SETVAR\nCMLJUST\n1\nMLINE\nS\n4\n50,-50\n50,50\n\n"
                  "-MLEDIT\nCC\n20,0.5\n52,20\n\n")
        self.play(wall, script)
        old, new = listed(self.program, self.out)["multilines"]
        # The new one is 4 wide: its elements lie at 48 and 52.
        self.expect("crossed", lines(old)[0], [[0.5, 0, 48, 52], [-0.5, 0, 48, 52]])
        self.expect("new", lines(new)[0], [[2, 0], [-2, 0]])
        self.expect("new miter", new["vertices"][0]["miter"], [-1, 0, 0])
        self.expect("new place", [new["vertices"][1]["position"]], [[50, 50, 0]])
        self.expect("block", new["block"].upper(), "*MODEL_SPACE")
        self.expect("flags", (new["flags"], new["scale"], new["justification"]), (1, 4, 1))

    # A zoom's centre is a point like any other, a pick is none.
    def relative_points(self):
        wall = make_drawing(self.folder / "relative.dxf", [(0, 0), (100, 0)])
        drawn = "MLINE\n{}\n{}\n{}\n\nZOOM\nC\n{}\n24\n-MLEDIT\nCS\n10,0.5\n*CANCEL*\nMLINE\n{}\n{}\nC\n"
        self.play(wall, drawn.format("5,5", "8,9", "8,20", "10,0", "13,4", "13,14\n3,4"))
        absolute = self.out.read_bytes()
        self.play(wall, drawn.format("@5,5", "@3,4", "@11<90", "@2,-20", "@3,4", "@10<90\n@-10,-10,0"))
        self.expect("relative", self.out.read_bytes() == absolute, True)
        self.out.unlink()
        for line, word in (("5", "bare length"), ("mid", "snap word"), ("@5<", "character 4"), ("1,x", "'x'")):
            run = play(self.program, wall, f"MLINE\n1,1\n{line}\n", self.out)
            self.expect(line, (run.returncode, word in run.stderr, "3" in run.stderr), (5, True, True))
            self.expect("saved", self.out.exists(), False)

    def picks(self):
        wall = make_drawing(self.folder / "picks.dxf", [(0, 0), (100, 0)])
        # Beside the wall, an unknown handle, a style's handle: nothing found, and asked again.
        style = listed(self.program, wall)["styles"][0]["handle"]
        script = f"-MLEDIT\nCS\n50,20\n50,0.5 #FFFF\n50,0.5 #{style}\n*CANCEL*\nZOOM\nE\n"
        run = self.play(wall, script)
        self.expect("asked four times", run.stdout.count("Select"), 4)
        self.expect("bytes", self.out.read_bytes() == wall.read_bytes(), True)

    def list_text(self):
        wall = make_drawing(self.folder / "list.dxf", [(0, 0), (100, 0)])
        run = call(self.program, "list", wall)
        for word in ("multiline", "vertex 1  100,0,0", "unbroken", "style", "STANDARD"):
            self.report.check(word.upper() in run.stdout.upper(), f"list without {word}: {run.stdout}")
        style = listed(self.program, wall)["styles"][0]
        self.expect("angles", (style["startAngle"], style["endAngle"]), (90, 90))
        self.expect("offsets", [each["offset"] for each in style["elements"]], [0.5, -0.5])

    # Numbers are the doubles that the file has.
    def json_numbers(self):
        wall = make_drawing(self.folder / "numbers.dxf", [(0.1, 1 / 3), (1e-17, 123456789.123456789), (5e15 / 3, 2.5)])
        tags = wall.read_text().split("\n")
        pairs = list(zip(tags[::2], tags[1::2]))
        mline = pairs[pairs.index(("  0", "MLINE")):]
        written = [float(value) for code, value in mline if code in (" 11", " 21")]
        found = [vertex["position"][:2] for vertex in listed(self.program, wall)["multilines"][0]["vertices"]]
        self.expect("numbers", sum(found, []) == written[:6], True)

    def pictures(self):
        wall = make_drawing(self.folder / "show.dxf", [(0, 0), (100, 0)])
        for ending, start in ((".svg", b"<svg"), (".png", b"\x89PNG"), (".pdf", b"%PDF")):
            picture = self.folder / ("wall" + ending)
            run = call(self.program, "show", wall, "--output", picture, "--size", "320x240")
            self.expect("show", (run.returncode, run.stderr), (0, ""))
            self.report.check(picture.exists() and picture.read_bytes().startswith(start), f"no picture {ending}")

    # A tower of blocks that doubles at each floor has more lines than anybody draws: its picture comes with a warning.
    def partly_drawn(self):
        document = ezdxf.new("R2000")
        document.blocks.new("FLOOR0").add_line((0, 0), (1, 1))
        for floor in range(1, 34):
            block = document.blocks.new(f"FLOOR{floor}")
            for place in (0, 2**floor):
                block.add_blockref(f"FLOOR{floor - 1}", (place, 0))
        tower = document.modelspace().add_blockref("FLOOR33", (0, 0))
        drawing = self.folder / "tower.dxf"
        document.saveas(drawing)
        run = call(self.program, "show", drawing, "--output", self.folder / "tower.png", "--size", "320x240")
        self.expect("partly drawn", run.returncode, 0)
        warning = f"orvex-batch: {drawing}: warning: "
        self.report.check(run.stderr.startswith(warning) and f"insert #{tower.dxf.handle}\n" in run.stderr, run.stderr)


def main():
    with tempfile.TemporaryDirectory() as scratch:
        runs = Runs(sys.argv[1], pathlib.Path(scratch))
        for run in (runs.cut, runs.cut_and_save_in_place, runs.draw_and_cross, runs.relative_points, runs.picks, runs.list_text,
                    runs.json_numbers, runs.pictures, runs.partly_drawn):
            run()
        runs.report.finish()


if __name__ == "__main__":
    main()
