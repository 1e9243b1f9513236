#!/usr/bin/python3
"""Draw the pictures of the tool palette by playing each tool.

    drawToolPictures.py ORVEX_BATCH [--enlarged FILE]

Each tool is played on multilines of a few pixels' size. What it leaves alone is
drawn dark, what it makes in colour, and what it takes away stays as a trace of
dots. The results go to pictures/ next to this script and are kept there, so a
build doesn't need it. FILE gets all of them at eight times their size.
"""

import argparse
import json
import math
import pathlib
import struct
import subprocess
import sys
import tempfile
import zlib

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "samples"))

import ezdxf  # noqa: E402
from mline_geometry import Vertex, drawn_stretches  # noqa: E402

WIDTH, HEIGHT = 41, 38
FRAME = 3  # around the paper, where the button is seen
X, Y = 20, 18  # the middle, in pixels; y goes up

CLEAR = (0, 0, 0, 0)
LINE = (38, 50, 64, 255)
MADE = (222, 84, 0, 255)
TRACE = (238, 142, 80, 255)


class Tool:
    """A tool's keyword, its multilines, its picks, and what is played beforehand."""

    def __init__(self, name, keyword, multilines, picks, offsets=(6, 0, -6), before=(), sign=None):
        self.name = name
        self.keyword = keyword
        self.multilines = multilines
        self.picks = picks
        self.offsets = offsets
        self.before = before
        self.sign = sign  # plus or minus, for the tools that change vertices


FAR = 60  # beyond every edge
UPRIGHT = [(X, -FAR), (X, FAR)]
LEVEL = [(-FAR, Y), (FAR, Y)]
STEM = [(X, -FAR), (X, Y + 10)]
ARM = [(X - 10, Y), (FAR, Y)]
CROSSING = {"multilines": [UPRIGHT, LEVEL], "picks": [(X, 5), (5, Y)]}
MEETING = {"multilines": [STEM, LEVEL], "picks": [(X, 5), (5, Y)]}
ENDS_OF_GAP = [(14, Y), (26, Y)]

TOOLS = [
    Tool("closed_cross", "CC", **CROSSING),
    Tool("open_cross", "OC", **CROSSING),
    Tool("merged_cross", "MC", **CROSSING),
    Tool("closed_tee", "CT", **MEETING),
    Tool("open_tee", "OT", **MEETING),
    Tool("merged_tee", "MT", **MEETING),
    Tool("corner_joint", "CJ", [STEM, ARM], [(X, 5), (35, Y)]),
    Tool("add_vertex", "AV", [[(8, 14), (32, 14)]], [(X, 14)], sign="+"),
    Tool("delete_vertex", "DV", [[(8, 12), (20, 25), (32, 12)]], [(20, 25)], offsets=(4, 0, -4), sign="-"),
    Tool("cut_single", "CS", [LEVEL], [(x, y + 6) for x, y in ENDS_OF_GAP]),
    Tool("cut_all", "CA", [LEVEL], ENDS_OF_GAP),
    Tool("weld_all", "WA", [LEVEL], ENDS_OF_GAP, before=["-MLEDIT", "CA", *ENDS_OF_GAP, ""]),
]


def blank_drawing(file, offsets):
    doc = ezdxf.new("R2010", setup=False)
    style = doc.mline_styles.new("PICTURE")
    for offset in offsets:
        style.elements.append(offset)
    doc.saveas(file)


def script_of(answers):
    lines = [a if isinstance(a, str) else f"{a[0]},{a[1]}" for a in answers]
    return "\n".join(["ZOOM", "C", f"{X},{Y}", "1", *lines, ""])


class Player:
    def __init__(self, batch, folder):
        self.batch = batch
        self.folder = pathlib.Path(folder)

    def play(self, drawing, answers, result):
        result = self.folder / result
        subprocess.run([self.batch, "run", drawing, "--script", "-", "--output", result],
                       input=script_of(answers), text=True, check=True, stdout=subprocess.DEVNULL)
        return result

    def multilines(self, drawing):
        told = subprocess.run([self.batch, "list", drawing, "--json"], text=True, check=True,
                              stdout=subprocess.PIPE).stdout
        for mline in json.loads(told)["multilines"]:
            yield [Vertex(v["position"], v["axis"], v["miter"], [e["line"] for e in v["elements"]])
                   for v in mline["vertices"]], bool(mline["flags"] & 2)

    def before_and_after(self, tool):
        blank = self.folder / "blank.dxf"
        blank_drawing(blank, tool.offsets)
        answers = []
        for points in tool.multilines:
            answers += ["MLINE", "ST", "PICTURE", "J", "Z", "S", "1", *points, ""]
        before = self.play(blank, answers + list(tool.before), "before.dxf")
        after = self.play(before, ["-MLEDIT", tool.keyword, *tool.picks, ""], "after.dxf")
        return list(self.multilines(before)), list(self.multilines(after))


def stroke_pixels(start, end):
    """One pixel for each step along the stroke's longer way: x, y, whether it is a dot, the direction."""
    run, rise = end[0] - start[0], end[1] - start[1]
    steps = max(1, round(max(abs(run), abs(rise))))
    direction = round(math.degrees(math.atan2(rise, run))) % 180
    for i in range(steps + 1):
        x = math.floor(start[0] + run * i / steps + 0.5)
        y = math.floor(start[1] + rise * i / steps + 0.5)
        yield x, y, (x if abs(run) > abs(rise) else y) % 2 == 0, direction


def line_pixels(multilines):
    pixels = set()
    for vertices, closed in multilines:
        for *_, start, end in drawn_stretches(vertices, closed):
            pixels.update(stroke_pixels(start, end))
    return pixels


def vertex_places(multilines):
    return {(round(v.position[0]), round(v.position[1])) for vertices, _ in multilines for v in vertices}


class Look:
    """How the three forms of a picture differ: paper, edge, and a shift to the right and down."""

    def __init__(self, name, paper, edge, shift):
        self.name = name
        self.paper = paper
        self.edge = edge
        self.shift = shift


LOOKS = [
    Look("up", (255, 255, 255, 255), (166, 174, 184, 255), 0),
    Look("down", (224, 232, 242, 255), (96, 108, 122, 255), 1),
    Look("focus", (255, 255, 255, 255), (222, 84, 0, 255), 0),
]


class Picture:
    def __init__(self, look):
        self.look = look
        self.rows = [[CLEAR] * WIDTH for _ in range(HEIGHT)]
        for row in range(FRAME, HEIGHT - FRAME):
            for x in range(FRAME, WIDTH - FRAME):
                on_edge = x in (FRAME, WIDTH - 1 - FRAME) or row in (FRAME, HEIGHT - 1 - FRAME)
                self.rows[row][x] = look.edge if on_edge else look.paper

    def set(self, x, y, colour):
        """Inside the paper's edge; y goes up."""
        row = HEIGHT - 1 - y + self.look.shift
        x += self.look.shift
        if FRAME < x < WIDTH - 1 - FRAME and FRAME < row < HEIGHT - 1 - FRAME:
            self.rows[row][x] = colour

    def square(self, x, y, reach, colour, hollow=False):
        for dx in range(-reach, reach + 1):
            for dy in range(-reach, reach + 1):
                on_edge = reach in (abs(dx), abs(dy))
                self.set(x + dx, y + dy, self.look.paper if hollow and not on_edge else colour)

    def sign(self, x, y, sign):
        for d in range(-3, 4):
            for thick in (0, 1):
                self.set(x + d, y + thick, MADE)
                if sign == "+":
                    self.set(x + thick, y + d, MADE)

    def png(self):
        data = b"".join(b"\0" + bytes(v for pixel in row for v in pixel) for row in self.rows)
        return png_file(WIDTH, HEIGHT, data)


def png_file(width, height, data):
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(data, 9))
            + chunk(b"IEND", b""))


def draw(tool, before, after, look):
    picture = Picture(look)
    was, now = line_pixels(before), line_pixels(after)
    for x, y, is_dot, _ in was - now:
        if is_dot:
            picture.set(x, y, TRACE)
    for x, y, *_ in was & now:
        picture.set(x, y, LINE)
    for x, y, *_ in now - was:
        picture.set(x, y, MADE)
    if tool.sign is not None:
        was, now = vertex_places(before), vertex_places(after)
        for place in was & now:
            picture.square(*place, 1, LINE)
        for place in now - was:
            picture.square(*place, 2, MADE)
        for place in was - now:
            picture.square(*place, 2, MADE, hollow=True)
        picture.sign(31, 27, tool.sign)
    return picture


def enlarged(pictures, factor=8, columns=6):
    rows = []
    for first in range(0, len(pictures), columns):
        group = pictures[first:first + columns]
        for y in range(HEIGHT):
            line = bytearray(b"\0")
            for picture in group:
                for pixel in picture.rows[y]:
                    line += bytes(pixel if pixel[3] else (212, 208, 200, 255)) * factor
            rows += [bytes(line)] * factor
    return png_file(WIDTH * factor * columns, len(rows), b"".join(rows))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("batch")
    parser.add_argument("--enlarged")
    call = parser.parse_args()
    pictures = []
    with tempfile.TemporaryDirectory() as folder:
        player = Player(call.batch, folder)
        for tool in TOOLS:
            before, after = player.before_and_after(tool)
            for look in LOOKS:
                picture = draw(tool, before, after, look)
                (HERE / "pictures" / f"{tool.name}_{look.name}.png").write_bytes(picture.png())
                pictures.append(picture)
    if call.enlarged:
        pathlib.Path(call.enlarged).write_bytes(enlarged(pictures))


if __name__ == "__main__":
    main()
