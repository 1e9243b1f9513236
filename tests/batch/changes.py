#!/usr/bin/python3
"""Commands that put multilines right, selections and locks: changes.py PROGRAM

Expected values are worked out by hand beside each run.
"""

import json
import pathlib
import sys
import tempfile

import ezdxf

from program import Checks, call, listed, make_drawing, play


def lines(mline):
    return [[element["line"] for element in vertex["elements"]] for vertex in mline["vertices"]]


def audit(program, drawing, *options):
    run = call(program, "audit", drawing, "--json", *options)
    assert run.returncode == 0, run.stderr
    return json.loads(run.stdout)["findings"]


class Changes(Checks):
    def play(self, drawing, script, status=0):
        run = play(self.program, drawing, script, self.out)
        self.expect(f"status of {script!r} ({run.stderr})", run.returncode, status)
        return run.stdout

    # Both elements at the start stand off by 2: found, repaired, and the same again through MLLAY.
    def laid_right(self):
        good = make_drawing(self.folder / "good.dxf", [(0, 0), (100, 0)])
        handle = listed(self.program, good)["multilines"][0]["handle"]
        self.expect("a drawn one", audit(self.program, good), [])
        document = ezdxf.readfile(good)
        vertex = document.modelspace()[0].vertices[0]
        vertex.line_params = [(2.5, 0.0, 30.0, 40.0), (1.5, 0.0)]
        bad = self.folder / "bad.dxf"
        document.saveas(bad)
        finding = {"handle": handle, "vertex": 0, "element": 0, "code": "position", "was": 2.5, "should": 0.5,
                   "result": "found"}
        other = {**finding, "element": 1, "was": 1.5, "should": -0.5}
        self.expect("found", audit(self.program, bad), [finding, other])
        repaired = audit(self.program, bad, "--output", self.out)
        self.expect("repaired", [each["result"] for each in repaired], ["repaired"] * 2)
        self.expect("none left", audit(self.program, self.out), [])
        by_audit = self.out.read_bytes()
        # The gap's ends keep their x: 30 and 40 along a line that rises from -2 at its start.
        left = listed(self.program, self.out)["multilines"][0]
        slope = (100**2 + 2**2) ** 0.5 / 100
        gap = lines(left)[0][0][2:]
        self.report.check(all(abs(a - b / slope) < 1e-9 for a, b in zip(gap, (30, 40))), f"gap {gap}")
        for script in ("MLLAY\nALL\n\n", f"MLLAY\n#{handle}\n\n", "MLAUDIT\n\nRepair\n", "MLLAY\nSTYLE\nstandard\n\n",
                       "MLLAY\nW\n-5,-5\n105,5\n\n", "MLLAY\nC\n50,-5\n51,5\n\n", "MLLAY\n50,0.5\n\n",
                       "MLLAY\nLAYER\n0\n\n", "MLLAY\nALL\nR\n50,0.5\nA\n50,0.5\n\n",
                       "MLLAY\nALL\n\nU\nMLLAY\nP\n\n"):
            self.play(bad, script)
            self.expect(f"bytes after {script!r}", self.out.read_bytes() == by_audit, True)
        for script in ("MLLAY\nALL\n\nU\n", "MLLAY\n\n", "MLLAY\nW\n-5,-5\n50,5\n\n", "MLLAY\nC\n50,-0.1\n51,0.1\n\n",
                       "MLLAY\nALL\nR\nALL\n\n", "MLLAY\nALL\n*CANCEL*\n", "MLAUDIT\nALL\n\nLook\n", "MLLAY\n7,7\n\n"):
            self.play(bad, script)
            self.expect(f"bytes after {script!r}", self.out.read_bytes() == bad.read_bytes(), True)
        self.play(bad, "MLLAY\nSTYLE\nnone such\n\n", status=5)

    def ends_and_breaks(self):
        wall = make_drawing(self.folder / "wall.dxf", [(0, 0), (100, 0), (100, 50)])
        handle = listed(self.program, wall)["multilines"][0]["handle"]
        script = f"MLEND\n98,50 #{handle}\n77,80\nMLSTOPS\n#{handle}\n1\n0\n0\n12.5\n40\n\n"
        self.play(wall, script)
        moved = listed(self.program, self.out)["multilines"][0]
        self.expect("end", moved["vertices"][2]["position"], [100, 80, 0])
        self.expect("breaks", lines(moved)[1][0][1:], [0, 12.5, 40])
        self.expect("finding", audit(self.program, self.out), [])
        for back in ("U\nU\n",):
            self.play(wall, script + back)
            self.expect("bytes after U", self.out.read_bytes() == wall.read_bytes(), True)
        for refused in (f"MLEND\n98,50 #{handle}\n100,-5\n", f"MLSTOPS\n#{handle}\n2\n0\n\n",
                        f"MLSTOPS\n#{handle}\n0\n0\n9\n5\n\n", f"MLSTOPS\n#{handle}\n0\n0\n1\n*CANCEL*\n"):
            self.play(wall, refused)
            self.expect(f"bytes after {refused!r}", self.out.read_bytes() == wall.read_bytes(), True)
        self.play(wall, f"MLSTOPS\n#{handle}\n0.5\n", status=5)

    # What lies on a locked layer is seen, but neither picked nor selected.
    def locks(self):
        path = self.folder / "locked.dxf"
        document = ezdxf.new("R2000")
        document.layers.add("KEEP").lock()
        for y, layer in ((0, "KEEP"), (20, "0")):
            document.modelspace().add_mline([(0, y), (100, y)], dxfattribs={"justification": 1, "layer": layer})
        document.saveas(path)
        locked, free = [mline["handle"] for mline in listed(self.program, path)["multilines"]]
        cut = "-MLEDIT\nCA\n30,{y} #{h}\n40,{y} #{h}\n\n*CANCEL*\n"
        self.play(path, cut.format(y=0.5, h=locked))
        self.expect("locked", self.out.read_bytes() == path.read_bytes(), True)
        self.play(path, "-MLEDIT\nCA\n30,0.5\n40,0.5\n\n*CANCEL*\n")
        self.expect("locked, by place", self.out.read_bytes() == path.read_bytes(), True)
        self.play(path, cut.format(y=20.5, h=free))
        self.expect("free", lines(listed(self.program, self.out)["multilines"][1])[0][0], [0.5, 0, 30, 40])
        told = self.play(path, "MLLAY\nALL\n\n")
        self.expect("counted", "1 on locked layers left out." in told and "of 1 multilines" in told, True)
        self.play(path, f"MLSTOPS\n#{locked}\n")
        self.play(path, f"MLEND\n0,0.5 #{locked}\n5,5\n", status=5)

    def bad_calls(self):
        self.expect("no drawing", call(self.program, "audit").returncode, 2)
        self.expect("missing", call(self.program, "audit", self.folder / "none.dxf").returncode, 3)
        empty = make_drawing(self.folder / "empty.dxf")
        self.expect("empty", audit(self.program, empty, "--output", self.out), [])
        self.expect("unchanged", self.out.read_bytes() == empty.read_bytes(), True)
        unwritable = call(self.program, "audit", empty, "--output", self.folder / "no" / "out.dxf")
        self.expect("unwritable", unwritable.returncode, 4)


def main():
    with tempfile.TemporaryDirectory() as folder:
        changes = Changes(sys.argv[1], pathlib.Path(folder))
        changes.laid_right()
        changes.ends_and_breaks()
        changes.locks()
        changes.bad_calls()
        changes.report.finish()


if __name__ == "__main__":
    main()
