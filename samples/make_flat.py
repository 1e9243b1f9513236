#!/usr/bin/python3
"""Make flat.dxf: a ground floor of 40 walls as somebody in a hurry draws it, for the joining of whole plans.

The walls stand in a clean table. What is drawn differs from it: ends up to 80 mm too short or too long, walls up to
0.3 degrees askew, about half of them drawn the other way round. The result is the same bytes each time. With --check
nothing is written; the exit status is 1 when the file here is not what would be written.
"""

import argparse
import math
import pathlib
import random
import sys

import ezdxf

from make_floorplan import LINETYPES, TrueColourElements, add_vertices
from mline_geometry import ZERO, build
from plan_walls import LAYERS, STYLES
from stable_dxf import drawing_text

HERE = pathlib.Path(__file__).resolve().parent
DRAWING = HERE / "flat.dxf"
USED_LAYERS = ("WALL-EXT", "WALL-BEARING", "WALL-INT", "GARDEN")

# Layer, style, scale, and the middle of the wall in millimetres.
EXT, BEARING, PART, THIN, GARDEN = (
    ("WALL-EXT", "EXT365", 1.0), ("WALL-BEARING", "BEARING240", 1.0), ("WALL-INT", "PART125", 1.0),
    ("WALL-INT", "Standard", 100.0), ("GARDEN", "Standard", 150.0))

WALLS = [
    # The outer walls, a recess at the upper right.
    (EXT, (0, 0), (16000, 0)), (EXT, (16000, 0), (16000, 8000)), (EXT, (16000, 8000), (11000, 8000)),
    (EXT, (11000, 8000), (11000, 11000)), (EXT, (11000, 11000), (0, 11000)), (EXT, (0, 11000), (0, 0)),
    # Bearing walls, through the whole house.
    (BEARING, (0, 5500), (16000, 5500)), (BEARING, (7000, 0), (7000, 11000)),
    # Rooms in the south.
    (PART, (2500, 0), (2500, 5500)), (PART, (4600, 0), (4600, 5500)), (PART, (0, 2600), (4600, 2600)),
    (PART, (4600, 3900), (7000, 3900)), (PART, (9800, 0), (9800, 5500)), (PART, (12800, 0), (12800, 5500)),
    (THIN, (7000, 2200), (12800, 2200)), (PART, (12800, 3700), (16000, 3700)), (THIN, (14400, 3700), (14400, 5500)),
    (THIN, (8400, 2200), (8400, 1000), (7000, 1000)), (PART, (5600, 5500), (7000, 4700)),
    # Rooms in the north.
    (PART, (2200, 5500), (2200, 11000)), (PART, (4700, 5500), (4700, 11000)), (PART, (0, 8300), (7000, 8300)),
    (THIN, (2200, 9700), (4700, 9700)), (PART, (9000, 5500), (9000, 11000)), (PART, (7000, 7400), (9000, 7400)),
    (THIN, (9000, 9000), (11000, 9000)), (PART, (13300, 5500), (13300, 8000)), (THIN, (11600, 5500), (11600, 8000)),
    (PART, (13300, 6500), (16000, 7000)),
    # Wing walls that end in the room.
    (THIN, (0, 4300), (1500, 4300)), (THIN, (5800, 8300), (5800, 9900)), (THIN, (11300, 2200), (11300, 900)),
    (THIN, (9000, 6400), (10200, 6400)),
    # Balcony and bin store.
    (GARDEN, (16000, 1000), (17500, 1000)), (GARDEN, (17500, 1000), (17500, 4500)), (GARDEN, (17500, 4500), (16000, 4500)),
    (GARDEN, (3000, 0), (3000, -2000)), (GARDEN, (3000, -2000), (6000, -2000)), (GARDEN, (6000, -2000), (6000, 0)),
]
SHAFT = [(7700, 9700), (8300, 9700), (8300, 10300), (7700, 10300)]  # stands free
FREE_ENDS = {29: (1,), 30: (1,), 31: (1,), 32: (1,)}  # index in WALLS: ends that nothing is near


def careless(pick, points, free):
    """The chain as it is drawn: askew about its middle, its ends too short or too long."""
    middle = [sum(c) / len(points) for c in zip(*points)]
    angle = math.radians(pick.uniform(-0.3, 0.3))
    turned = [(middle[0] + (x - middle[0]) * math.cos(angle) - (y - middle[1]) * math.sin(angle),
               middle[1] + (x - middle[0]) * math.sin(angle) + (y - middle[1]) * math.cos(angle)) for x, y in points]
    drawn = list(turned)
    for end, neighbour in ((0, 1), (-1, -2)):
        length = math.dist(turned[end], turned[neighbour])
        shift = 0.0 if end % len(points) in free else pick.uniform(-80.0, 80.0)
        drawn[end] = tuple(e + (e - n) * shift / length for e, n in zip(turned[end], turned[neighbour]))
    return [(round(x, 3), round(y, 3)) for x, y in drawn]


def make_drawing():
    doc = ezdxf.new("R2013", units=4)
    for name, (description, pattern) in LINETYPES.items():
        doc.linetypes.add(name, pattern, description=description)
    for name in USED_LAYERS:
        colour, linetype, _ = LAYERS[name]
        doc.layers.add(name, color=colour, linetype=linetype)
    for style in {kind[1]: STYLES[kind[1]] for kind, *_ in WALLS}.values():
        record = doc.mline_styles.get(style.name) or doc.mline_styles.new(style.name)
        record.dxf.description = style.description
        record.dxf.flags = style.flags
        record.dxf.fill_color = style.fill
        record.elements = TrueColourElements(style.elements)
    doc.header["$CMLSCALE"] = 100.0
    doc.header["$CMLJUST"] = ZERO
    msp = doc.modelspace()
    pick = random.Random(40)
    chains = [(kind, careless(pick, points, FREE_ENDS.get(i, ())), False) for i, (kind, *points) in enumerate(WALLS)]
    chains.append((THIN, SHAFT, True))
    for i, ((layer, style, scale), points, closed) in enumerate(chains):
        if i % 2 and not closed and style != "EXT365":  # whose leaves have an inner and an outer side
            points = points[::-1]
        mline = msp.add_mline([], close=closed, dxfattribs={
            "layer": layer, "style_name": style, "scale_factor": scale, "justification": ZERO})
        points = [(x, y, 0.0) for x, y in points]
        add_vertices(mline, build(STYLES[style], points, closed, scale, ZERO))
    doc.header["$EXTMIN"], doc.header["$EXTMAX"] = (-300.0, -2200.0, 0.0), (17700.0, 11300.0, 0.0)
    return doc


def main():
    parser = argparse.ArgumentParser(description="Make flat.dxf")
    parser.add_argument("--check", action="store_true")
    settings = parser.parse_args()
    data = drawing_text(make_drawing()).encode("utf-8")
    if not settings.check:
        DRAWING.write_bytes(data)
    elif not DRAWING.is_file() or DRAWING.read_bytes() != data:
        sys.exit("flat.dxf is not what make_flat.py makes")


if __name__ == "__main__":
    main()
