#!/usr/bin/python3
"""Commands that change what is drawn: edits.py PROGRAM

Each plan has other entities, a locked layer and a gap; each run is undone again.
"""

import json
import pathlib
import re
import sys
import tempfile

import ezdxf
from ezdxf.math import OCS, Vec3

from program import Checks, call, listed, make_drawing, play

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"


def chain(mline):
    return [vertex["position"][:2] for vertex in mline["vertices"]]


def line(mline, vertex, element):
    return mline["vertices"][vertex]["elements"][element]["line"]


def make_plan(path):
    """Walls along x at y 0, with a gap, 20 and 40 (locked), a line and a circle."""
    document = ezdxf.new("R2000")
    document.layers.add("KEEP").lock()
    space = document.modelspace()
    style = document.mline_styles.new("THREE")
    for offset in (1.5, 0, -0.5):
        style.elements.append(offset)
    for y, layer in ((0, "0"), (20, "0"), (40, "KEEP")):
        wall = space.add_mline([(0, y), (100, y)], dxfattribs={"justification": 1, "layer": layer})
        if y == 0:
            wall.vertices[0].line_params = [(0.5, 0.0, 30.0, 40.0), (-0.5, 0.0)]
    space.add_line((0, 60), (100, 60))
    space.add_circle((50, 80), 5)
    document.saveas(path)
    return path


class Edits(Checks):
    def __init__(self, program, folder):
        super().__init__(program, folder)
        self.plan = make_plan(folder / "plan.dxf")
        self.bytes = self.plan.read_bytes()
        self.mlines = listed(program, self.plan)["multilines"]
        self.handles = [mline["handle"] for mline in self.mlines]
        self.faults = self.errors_of(self.plan)

    @staticmethod
    def errors_of(path):
        return len(ezdxf.readfile(path).audit().errors)

    def play(self, script, status=0):
        run = play(self.program, self.plan, script, self.out)
        self.expect(f"status of {script!r} ({run.stderr})", run.returncode, status)
        return run.stdout

    # The multilines afterwards; nothing contradicts itself, and one U gives the bytes again.
    def edited(self, script):
        told = self.play(script)
        self.report.check(self.out.read_bytes() != self.bytes, f"{script!r} changed nothing: {told}")
        audit = call(self.program, "audit", self.out, "--json")
        self.expect(f"findings after {script!r}", json.loads(audit.stdout)["findings"], [])
        self.expect(f"faults after {script!r}", self.errors_of(self.out), self.faults)
        found = listed(self.program, self.out)["multilines"]
        self.others_keep_their_bytes(script, found)
        self.play(script + "U\n")
        self.expect(f"bytes after {script!r} and U", self.out.read_bytes() == self.bytes, True)
        return found

    # The records that differ are those of multilines that list otherwise, and the header.
    def others_keep_their_bytes(self, script, found):
        before, after = ({mline["handle"]: mline for mline in mlines} for mlines in (self.mlines, found))
        old, new = (set(re.split(r"(?m)^(?=  0\n)", path.read_text())) for path in (self.plan, self.out))
        for gone, ours, theirs in ((old - new, before, after), (new - old, after, before)):
            handles = {re.search(r"(?m)^  5\n(\w+)$", record)[1] for record in gone if record.split("\n")[1] == "MLINE"}
            self.expect(f"records after {script!r}", handles, {each for each in ours if ours[each] != theirs.get(each)})
        kinds = {record.split("\n")[1] for record in new - old}
        self.expect(f"new records after {script!r}", kinds - {"MLINE", "SECTION"}, set())

    def unchanged(self, script, word):
        told = self.play(script)
        self.expect(f"bytes after {script!r}", self.out.read_bytes() == self.bytes, True)
        self.report.check(word in told, f"{script!r} prints {told}, expected {word!r}")

    def rest(self, found):
        """What no script here selects: the locked wall."""
        return [mline for mline in found if mline["handle"] == self.handles[2]]

    def erasing(self):
        found = self.edited("ERASE\nALL\n\n")
        self.expect("left over", [mline["handle"] for mline in found], self.handles[2:])
        found = self.edited("ERASE\n50,60\n50,0.5 #%s\n\n" % self.handles[1])
        self.expect("left over", [mline["handle"] for mline in found], [self.handles[0], self.handles[2]])
        self.unchanged("ERASE\n\n", "Nothing selected.")

    def motions(self):
        self.expect("others left", "2 other than multilines left out." in self.play("MOVE\nALL\n\n0,0\n10,5\n"), True)
        found = self.edited("MOVE\nALL\n\n0,0\n10,5\n")
        self.expect("moved", [chain(mline) for mline in found],
                    [[[10, 5], [110, 5]], [[10, 25], [110, 25]], [[0, 40], [100, 40]]])
        self.expect("gap", line(found[0], 0, 0), [0.5, 0, 30, 40])
        found = self.edited("COPY\n50,20.5\n\n0,0\n0,100\n0,200\n\n")
        self.expect("copies", [chain(mline)[0] for mline in found[3:]], [[0, 120], [0, 220]])
        found = self.edited(f"ROTATE\n#{self.handles[0]}\n\n0,0\n90\n")
        self.expect("turned", chain(found[0]), [[0, 0], [0, 100]])
        found = self.edited(f"MIRROR\n#{self.handles[0]}\n\n50,0\n50,10\n")
        self.expect("mirrored", chain(found[0]), [[100, 0], [0, 0]])
        # Along -x the upper element lies on the right.
        self.expect("upper", line(found[0], 0, 0), [-0.5, 0, 30, 40])
        for there_and_back in ("MOVE\nALL\n\n0,0\n3,4\nMOVE\nALL\n\n3,4\n0,0\n",
                               "ROTATE\nALL\n\n7,7\n90\nROTATE\nALL\n\n7,7\n-90\n",
                               "MIRROR\nALL\n\n0,0\n1,0\nMIRROR\nALL\n\n1,0\n0,0\n"):
            self.unchanged(there_and_back, "2 of 2 multilines")
        self.unchanged("MIRROR\nALL\n\n5,5\n5,5\n", "the mirror line has no length")
        self.unchanged("MOVE\nALL\n\n0,0\n1e300,0\n", "fall together")
        self.unchanged("MOVE\nALL\n\n0,0\n*CANCEL*\n", "Second point")

    def reshaping(self):
        found = self.edited("STRETCH\n-5,-5\n5,45\n0,0\n-10,0\n")
        self.expect("stretched", [chain(mline) for mline in found],
                    [[[-10, 0], [100, 0]], [[-10, 20], [100, 20]], [[0, 40], [100, 40]]])
        # 10 further from the start, at the same place.
        self.expect("gap", line(found[0], 0, 0), [0.5, 0, 40, 50])
        found = self.edited("STRETCH\n-5,-5\n105,5\n0,0\n0,-7\n")
        self.expect("taken along", (chain(found[0]), line(found[0], 0, 0)), ([[0, -7], [100, -7]], [0.5, 0, 30, 40]))
        found = self.edited("REVERSE\nALL\n\n")
        self.expect("turned", (chain(found[0]), found[0]["scale"]), ([[100, 0], [0, 0]], -1))
        self.expect("gap", line(found[0], 0, 0), [-0.5, 0, 60, 70])
        self.unchanged("REVERSE\nALL\n\nREVERSE\nALL\n\n", "2 of 2 multilines reversed")
        # Along 3, 4 and back, all of it in whole numbers but for one root.
        handle = self.handles[1]
        found = self.edited(f"MLVERTEX\n#{handle}\n1\nMove\n60,100\n")
        self.expect("end", found[1]["vertices"][1]["miter"], [-0.8, 0.6, 0])
        self.unchanged(f"MLVERTEX\n#{handle}\n1\nMove\n150,20\nMLVERTEX\n#{handle}\n1\nMove\n100,20\n", "New place")
        self.unchanged("STRETCH\n-5,-5\n5,5\n0,0\n10,0\nSTRETCH\n5,-5\n15,5\n10,0\n0,0\n", "1 of 1")
        self.unchanged("STRETCH\n-5,-5\n5,5\n0,0\n100,0\n", "has no length")
        self.unchanged("STRETCH\n-5,-5\n5,5\n0,0\n0,0,9\n", "plane")

    def settings(self):
        first = f"MLCHANGE\n#{self.handles[0]}\n\n"
        found = self.edited(first + "SC\n20\nJ\nT\n\n")
        self.expect("scaled", (chain(found[0]), line(found[0], 0, 0), line(found[0], 0, 1)[0]),
                    ([[0, 0], [100, 0]], [0, 0, 30, 40], -20))
        found = self.edited(first + "J\nB\nKeepLines\n\n")
        down = [[round(x, 9), round(y, 9)] for x, y in chain(found[0])]
        self.expect("lines kept", (down, line(found[0], 0, 0)), ([[0, -0.5], [100, -0.5]], [1, 0, 30, 40]))
        # The gap is the upper element's alone: the nearest of 1.5, 0 and -0.5 to 0.5 is 0.
        found = self.edited(first + "ST\nthree\nLA\nKEEP\nCA\nEnd\n\n")
        self.expect("restyled", [line(found[0], 0, e) for e in range(3)], [[1.5, 0], [0, 0, 30, 40], [-0.5, 0]])
        self.expect("layer and caps", (found[0]["layer"], found[0]["flags"] & 12), ("KEEP", 4))
        self.unchanged("MLCHANGE\nALL\n\nCL\n\n", "three vertices")
        self.unchanged(first + "SC\n0\n\n", "a number other than 0")
        self.unchanged(first + "ST\nnone such\n\n", "There is no style 'none such'")
        self.unchanged(first + "LA\nnone such\n\n", "There is no layer 'none such'")
        self.unchanged(first + "SC\n20\n*CANCEL*\n", "Scale")
        self.unchanged(first + "SC\n20\n\n" + first + "SC\n1\n\n", "1 of 1 multilines changed")
        found = self.edited("MLRESTYLE\nSTANDARD\nTHREE\n")
        self.expect("all but the locked one", [mline["style"] for mline in found], ["THREE", "THREE", "Standard"])
        self.unchanged("MLRESTYLE\nnone such\nTHREE\n", "There is no style")

    def closing(self):
        corner = make_drawing(self.out.with_name("corner.dxf"), [(0, 0), (100, 0), (100, 50)])
        play(self.program, corner, "MLCHANGE\nALL\n\nCL\n\n", self.out)
        closed = listed(self.program, self.out)["multilines"][0]
        self.expect("closed", (closed["flags"] & 2, chain(closed)), (2, [[0, 0], [100, 0], [100, 50]]))
        self.expect("findings", "0 findings" in call(self.program, "audit", self.out).stdout, True)
        play(self.program, corner, "MLCHANGE\nALL\n\nCL\n\nMLCHANGE\nALL\n\nO\n\n", self.out)
        before, after = (listed(self.program, path)["multilines"][0] for path in (corner, self.out))
        ends = [[[round(value, 9) for value in vertex["miter"]] for vertex in mline["vertices"]] for mline in (before, after)]
        self.expect("opened again", (chain(after), after["flags"], ends[1]), (chain(before), before["flags"], ends[0]))

    # A gap that its segment doesn't hold any more is told, and so is one whose segment goes.
    def losing_gaps(self):
        told = self.play("STRETCH\n95,-5\n105,5\n100,0\n35,0\n")
        self.expect("stretched " + told, "1 gap cut or gone" in told, True)
        ring = make_drawing(self.out.with_name("ring.dxf"), [(0, 0), (100, 0), (100, 50)])
        handle = listed(self.program, ring)["multilines"][0]["handle"]
        script = f"MLCHANGE\nALL\n\nCL\n\nMLSTOPS\n#{handle}\n2\n0\n0\n20\n30\n\nMLCHANGE\nALL\n\nO\n\n"
        told = play(self.program, ring, script, self.out).stdout
        self.expect("opened " + told, "1 gap cut or gone" in told, True)

    def parting(self):
        pick = f"MLBREAK\n50,0.5 #{self.handles[0]}\n"
        # In the gap the lower element goes on, so that it isn't a gap of all.
        for script, ends in ((pick + "35,0\n\n", [35, 35]), (pick + "70,3\n50,-3\n", [50, 70])):
            found = self.edited(script)
            self.expect(script, [chain(mline) for mline in found if mline["vertices"][0]["position"][1] == 0],
                        [[[0, 0], [ends[0], 0]], [[ends[1], 0], [100, 0]]])
        self.expect("gap", line(found[0], 0, 0), [0.5, 0, 30, 40])
        cut = f"-MLEDIT\nCA\n50,20.5 #{self.handles[1]}\n60,20.5 #{self.handles[1]}\n\n*CANCEL*\n"
        self.play(cut + f"MLBREAK\n10,20.5 #{self.handles[1]}\n55,20\n\n")
        found = listed(self.program, self.out)["multilines"]
        self.expect("at a gap", [chain(found[1]), chain(found[3])], [[[0, 20], [50, 20]], [[60, 20], [100, 20]]])
        self.expect("lists", (line(found[1], 0, 0), line(found[3], 0, 0)), ([0.5, 0], [0.5, 0]))
        found = self.edited(pick + "0,0\n20,0\n")
        self.expect("cut off", (chain(found[0]), line(found[0], 0, 0)), ([[20, 0], [100, 0]], [0.5, 0, 10, 20]))
        self.unchanged(pick + "0,0\n\n", "ends there already")
        self.unchanged(pick + "-5,0\n200,0\n", "nothing would be left")
        parted = self.play(pick + "70,0\n\nMLCONNECT\n50,0.5\n90,0.5\n")
        found = listed(self.program, self.out)["multilines"]
        self.expect("one again " + parted, [chain(mline) for mline in found][0], [[0, 0], [70, 0], [100, 0]])
        self.expect("as many", len(found), 3)
        self.play(pick + "70,0\n\nMLCONNECT\n50,0.5\n90,0.5\nU\nU\n")
        self.expect("bytes after U", self.out.read_bytes() == self.bytes, True)
        self.unchanged(f"MLCONNECT\n50,-0.5\n50,20.5\n", "don't meet")
        self.unchanged(f"MLCONNECT\n50,-0.5\n60,-0.5\n", "picked twice")
        told = self.play("LIST\nALL\n\n")
        self.report.check(f"multiline {self.handles[0]}: style Standard, scale 1, zero, open, layer 0, 2 vertices, length 100"
                          in told and "2 other than multilines" in told, told)

    # What has no shape afterwards, or none before, stays as it is and is told.
    def refusing(self):
        path = self.out.with_name("odd.dxf")
        document = ezdxf.new("R2000")
        space, at_zero = document.modelspace(), {"justification": 1}
        many = document.mline_styles.new("MANY")
        for number in range(17):
            many.elements.append(number / 10)
        odd = space.add_mline([(0, 0), (100, 0)], dxfattribs=at_zero)
        odd.vertices[0].line_params = [(0.5, 0.0, 60.0, 20.0, 40.0, 10.0), (-0.5, 0.0)]
        sharp = space.add_mline([(0, 50), (100, 50), (0, 51)], dxfattribs=at_zero)
        ring = space.add_mline([(200, 0), (300, 0), (300, 50)], close=True, dxfattribs=at_zero)
        tilt = Vec3(0.3, 0.2, 1).normalize()
        steep = space.add_mline(list(OCS(tilt).points_to_wcs(Vec3.generate([(0, 90), (100, 90), (100, 150)]))),
                                dxfattribs={**at_zero, "extrusion": tilt})
        space.add_mline([(150, -50), (150, 60)], dxfattribs=at_zero)
        document.saveas(path)
        odd, sharp, ring, steep, bar = (mline["handle"] for mline in listed(self.program, path)["multilines"])
        contradiction = "contradict each other"
        for script, word in ((f"STRETCH\n90,-9\n110,9\n0,0\n9,3\n", contradiction),
                             (f"MLBREAK\n50,0 #{odd}\n55,0\n\n", contradiction), (f"REVERSE\n#{odd}\n\n", contradiction),
                             (f"MLEND\n98,0 #{odd}\n120,0\n", contradiction),
                             (f"EXTEND\n150,9 #{bar}\nA\n98,0 #{odd}\n\n", contradiction),
                             (f"MLCONNECT\n98,0 #{odd}\n2,50 #{sharp}\n", contradiction),
                             (f"MLVERTEX\n#{odd}\n1\nM\n9,9\n", contradiction),
                             (f"MLCHANGE\n#{odd}\n\nSC\n2\n\n", contradiction),
                             (f"MLCHANGE\n#{sharp}\n\nSC\n1e307\n\n", "too large"),
                             (f"MLCHANGE\n#{ring}\n\nST\nMANY\n\n", "1 to 16 elements"),
                             (f"MLVERTEX\n#{ring}\n1\nRemove\n", "three vertices or more"),
                             (f"MLVERTEX\n#{sharp}\n0\nMove\n100,50\n", "its neighbour"),
                             (f"EXTEND\n150,9 #{bar}\nA\n2,90 #{steep}\n\n", "the plane of the bar"),
                             (f"ROTATE\n#{steep}\n\n0,0\n30\n", "leave its plane"),
                             (f"MIRROR\n#{steep}\n\n0,0\n30,1\n", "leave its plane")):
            run = play(self.program, path, script, self.out)
            self.report.check(word in run.stdout, f"{script!r} prints {run.stdout}, expected {word!r}")
            self.expect(f"bytes after {script!r}", self.out.read_bytes() == path.read_bytes(), True)

    # Bars of width 10 at x = 100 and x = 200, a wall from 20 to 80 and one from 20 to 130 below it.
    def bars(self):
        path = self.out.with_name("bars.dxf")
        document = ezdxf.new("R2000")
        for points, scale in (([(100, -50), (100, 50)], 10), ([(200, -50), (200, 50)], 10), ([(20, 0), (80, 0)], 1),
                              ([(20, 10), (130, 10)], 1)):
            document.modelspace().add_mline(points, dxfattribs={"justification": 1, "scale_factor": scale})
        document.saveas(path)
        bar, _, wall, long = [mline["handle"] for mline in listed(self.program, path)["multilines"]]
        pick = f"95,-30 #{bar}\n"
        near, end, start = f"79,0.5 #{wall}\n", f"129,10.5 #{long}\n", f"21,10.5 #{long}\n"
        for script, ends in ((f"EXTEND\n{pick}Axis\n{near}\n", (100, 130)), (f"EXTEND\n{pick}O\n{near}\n", (95, 130)),
                             (f"TRIM\n{pick}A\n7,7\n{end}\n", (80, 100)), (f"TRIM\n{pick}O\n{end}\n", (80, 95)),
                             (f"TRIM\n{pick}O\n{start}\n", (80, 130)), (f"TRIM\n{pick}O\n{near}\n", (80, 130)),
                             (f"EXTEND\n{pick}A\n{end}\n", (80, 130)), (f"EXTEND\n{pick}A\n-5,-50 #{bar}\n\n", (80, 130))):
            play(self.program, path, script, self.out)
            found = listed(self.program, self.out)["multilines"]
            self.report.check(all(abs(chain(mline)[1][0] - x) < 1e-9 for mline, x in zip(found[2:], ends)),
                              f"{script!r} gives {[chain(mline) for mline in found[2:]]}, expected ends at {ends}")
            self.expect(f"findings after {script!r}", "0 findings" in call(self.program, "audit", self.out).stdout, True)
            play(self.program, path, script + ("U\n" if ends != (80, 130) or start in script else ""), self.out)
            self.expect(f"bytes after {script!r} and U", self.out.read_bytes() == path.read_bytes(), True)

    # The sample's house rebuilt: nothing missed, nothing that contradicts itself, and all of it can be taken back.
    def sample(self):
        plan, script = SAMPLES / "floorplan.dxf", (SAMPLES / "changes.scr").read_text()
        run = call(self.program, "run", plan, "--script", SAMPLES / "changes.scr", "--output", self.out, "--strict")
        self.expect(f"status ({run.stderr})", run.returncode, 0)
        refused = [line for line in run.stdout.splitlines() if "left as it is" in line or "Nothing" in line or "gone" in line]
        self.expect("refused", refused, [])
        self.expect("findings", json.loads(call(self.program, "audit", self.out, "--json").stdout)["findings"], [])
        self.expect("faults", self.errors_of(self.out), self.errors_of(plan))
        before, after = (len(listed(self.program, path)["multilines"]) for path in (plan, self.out))
        self.expect("multilines", after, before)  # a copy and a half more; one erased, one exploded
        play(self.program, plan, script + "U\n" * 40, self.out)
        self.expect("bytes after all U", self.out.read_bytes() == plan.read_bytes(), True)


def main():
    with tempfile.TemporaryDirectory() as folder:
        edits = Edits(sys.argv[1], pathlib.Path(folder))
        edits.erasing()
        edits.motions()
        edits.reshaping()
        edits.settings()
        edits.closing()
        edits.losing_gaps()
        edits.parting()
        edits.bars()
        edits.refusing()
        edits.sample()
        edits.report.finish()


if __name__ == "__main__":
    main()
