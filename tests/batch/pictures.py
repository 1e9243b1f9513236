#!/usr/bin/python3
"""What orvex-batch show draws: pictures.py PROGRAM"""

import pathlib
import re
import sys
import tempfile

import ezdxf

from program import Checks, call, listed


def make_plan(path, unit=0):
    """A wall of 10,000 along x on WALLS, a line and an insert, which has a circle on FITTINGS and a line on 0."""
    document = ezdxf.new("R2000", units=unit)
    document.layers.add("WALLS", lineweight=70)
    document.layers.add("FITTINGS")
    space = document.modelspace()
    for _ in range(2):
        space.add_mline([(0, 0), (10000, 0)], dxfattribs={"justification": 1, "scale_factor": 200, "layer": "WALLS"})
    space.add_line((0, 5000), (10000, 5000), dxfattribs={"lineweight": 13})
    block = document.blocks.new("PART")
    block.add_circle((0, 0), 100, dxfattribs={"layer": "FITTINGS"})
    block.add_line((0, 0), (700, 700))
    space.add_blockref("PART", (4000, 3000))
    document.saveas(path)
    return path


def make_nest(path):
    """10 inserts of a block of 10 of a block of 10 of ... 6 deep: 10,000,000 lines."""
    document = ezdxf.new("R2000")
    document.blocks.new("B0").add_line((0, 0), (1, 0))
    for depth in range(1, 7):
        block = document.blocks.new(f"B{depth}")
        for index in range(10):
            block.add_blockref(f"B{depth - 1}", (index * 10**depth, 0))
    for index in range(10):
        document.modelspace().add_blockref("B6", (0, index))
    document.saveas(path)
    return path


def chains(svg):
    """The points of all lines."""
    return [[tuple(map(float, point.split())) for point in chain.split("L")]
            for data in re.findall(r'<path stroke[^>]* d="M([^"]*)"', svg) for chain in data.split("M")]


class Pictures(Checks):
    def __init__(self, program, folder):
        super().__init__(program, folder)
        self.plan = make_plan(folder / "plan.dxf")

    def near(self, what, found, wanted):
        good = len(found) == len(wanted) and all(abs(a - b) < 0.02 for a, b in zip(found, wanted))
        self.report.check(good, f"{what}: {found}, expected {wanted}")

    def show(self, *options, drawing=None, name="out.svg", status=0, told=""):
        picture = self.folder / name
        run = call(self.program, "show", drawing or self.plan, "--output", picture, *options)
        self.expect(f"status of {options} ({run.stderr})", run.returncode, status)
        self.report.check(told in run.stderr and bool(told) == bool(run.stderr), f"{options} told {run.stderr!r}")
        return picture.read_bytes() if name.endswith(("png", "pdf")) else picture.read_text()

    # The frame of 1600 by 1200 pixels shows 16,000 by 12,000 units around the window's middle.
    def windows(self):
        self.expect("the usual ones", self.show("--background", "light", "--limit", 50000), self.show())
        svg = self.show("--window", "16000,-7000,0,5000")
        line = [chain for chain in chains(svg) if chain[0][1] == chain[-1][1] == 0]
        self.near("line at the top", [x for point in line[0] for x in point], [0, 0, 1000, 0])
        self.expect("nothing there", chains(self.show("--window", "20000,0,20010,10")), [])

    # On A3 at 1:50, 10 m are 200 mm; a pixel is a tenth of a millimetre.
    def paper(self):
        for unit, options in ((0, ()), (4, ()), (6, ("--unit", "mm")), (1, ("--unit", "mm"))):
            drawing = make_plan(self.folder / "units.dxf", unit)
            svg = self.show("--paper", "A3", "--scale", "1:50", *options, drawing=drawing)
            self.report.check('width="420mm" height="297mm" viewBox="0 0 4200 2970"' in svg, svg[:200])
            widths = {round(abs(chain[0][0] - chain[-1][0]), 2) for chain in chains(svg)}
            self.report.check(2000.0 in widths, f"unit {unit}: {widths}")
        metres = make_plan(self.folder / "units.dxf", 6)
        told = "larger than the paper"
        self.show("--paper", "A3", "--scale", "1:50", drawing=metres, told=told)
        svg = self.show("--paper", "a4", "--scale", "1:50000", "--window", "0,0,5000,10000", drawing=metres)
        self.report.check('width="210mm" height="297mm"' in svg, svg[:200])
        self.show("--paper", "A4", "--scale", "2:1", told=told)
        pdf = self.show("--paper", "A3", "--scale", "1:50", name="out.pdf")
        box = [float(number) for number in re.search(rb"/MediaBox \[([^]]*)\]", pdf).group(1).split()]
        self.report.check(abs(box[2] - 1190.55) < 1 and abs(box[3] - 841.89) < 1, f"page {box}")

    def layers_and_marks(self):
        count = len(re.findall(r"[ML]", "".join(re.findall(r' d="([^"]*)"', self.show()))))
        walls = chains(self.show("--layers", "walls"))
        fittings = chains(self.show("--layers", "FITTINGS"))
        self.report.check(len(walls) == 4 and len(fittings) == 1 and len(fittings[0]) > 100 and count > 100,
                          f"{walls} {fittings}")
        first, second = [mline["handle"] for mline in listed(self.program, self.plan)["multilines"]]
        svg = self.show("--numbers", "--layers", "WALLS")
        numbers = re.findall(r'<text x="([\d.]+)" y="([\d.]+)"[^>]*>(\w+)</text>', svg)
        self.expect("handles", [number[2] for number in numbers], [first, second])
        self.report.check(float(numbers[0][1]) - float(numbers[1][1]) > 12, f"one over the other: {numbers}")
        marked = self.show("--highlight", f"{first},{second}")
        self.expect("marked", len(re.findall(r"#ff7a00", marked)) > 0, True)
        self.report.check("#ff7a00" not in self.show(), "marked without")
        weighed = self.show("--lineweights")  # at 96 pixels an inch
        widths = {float(width) for width in re.findall(r'stroke-width="([\d.]+)"', weighed)}
        self.report.check({2.65, 0.5}.issubset(widths), f"widths {widths}")
        self.report.check('fill="#1e2127"' in self.show("--background", "dark"), "no dark ground")
        self.report.check("<rect" not in self.show("--background", "transparent"), "a ground")
        for ground, kind in (("light", 2), ("dark", 2), ("transparent", 6)):
            self.expect(ground, self.show("--background", ground, name="out.png")[25], kind)

    # Without a limit it would be hundreds of megabytes.
    def nests(self):
        nest = make_nest(self.folder / "nest.dxf")
        limited = self.show(drawing=nest, told="repeat too often")
        self.report.check(len(limited) < 20_000_000, f"{len(limited)} bytes")
        small = self.show("--limit", 1000, drawing=nest, told="repeat too often")
        more = self.show("--limit", 5000, drawing=nest, told="repeat too often")
        sizes = [len(re.findall("M", text)) for text in (small, more, limited)]
        self.report.check(sizes[0] < sizes[1] < sizes[2], f"lines {sizes}")

    def bad_calls(self):
        for options in (("--window", "1,2,3"), ("--window", "1,1,1,5"), ("--window", "a,b,c,d"), ("--window", "0,0,1,nan"),
                        ("--layers", "NONE"), ("--background", "pink"), ("--paper", "A3"), ("--scale", "1:50"),
                        ("--paper", "B9", "--scale", "1:50"), ("--paper", "A3", "--scale", "50"),
                        ("--paper", "A3", "--scale", "1:0"), ("--paper", "A3", "--scale", "1:50", "--size", "10x10"),
                        ("--unit", "mm"), ("--paper", "A3", "--scale", "1:50", "--unit", "ell"),
                        ("--highlight", "FFFF"), ("--highlight", "xyz"), ("--limit", "0"), ("--limit", "many")):
            run = call(self.program, "show", self.plan, "--output", self.folder / "bad.svg", *options)
            self.report.check(run.returncode == 2 and run.stderr.startswith("orvex-batch: "), f"{options}: {run}")
        run = call(self.program, "show", self.plan, "--output", self.folder / "bad.png", "--paper", "A3", "--scale", "1:50")
        self.expect("a .png on paper", run.returncode, 2)
        self.expect("left behind", list(self.folder.glob("bad.*")), [])


def main():
    with tempfile.TemporaryDirectory() as folder:
        pictures = Pictures(sys.argv[1], pathlib.Path(folder))
        pictures.windows()
        pictures.paper()
        pictures.layers_and_marks()
        pictures.nests()
        pictures.bad_calls()
        pictures.report.finish()


if __name__ == "__main__":
    main()
