#!/usr/bin/python3
"""Make ORVEX.mln, the style library that comes with the programs, from the table below.

A library that the programs save can hold but one of a style's flags, and its colours come back
changed where they are no index. So that each of these styles loads whole, its flags are a sum, its
colours are indices without a packed value, and every element names its line type.

With --check nothing is written; the exit status is 1 when the file isn't what would be written.
"""

import argparse
import pathlib
import sys

LIBRARY = pathlib.Path(__file__).resolve().parent / "ORVEX.mln"

FILLED, JOINTS = 1, 2
START_LINE, START_INNER, START_ROUND = 16, 32, 64
END_LINE, END_INNER, END_ROUND = 256, 512, 1024
LINES = START_LINE + END_LINE
ROUND = START_ROUND + END_ROUND
INNER = START_INNER + END_INNER

BY_LAYER, RED, YELLOW, GREEN, CYAN, BLUE, WHITE, GREY, PALE = 256, 1, 2, 3, 4, 5, 7, 8, 9


def solid(*offsets, color=BY_LAYER):
    return [(offset, color, "ByLayer") for offset in offsets]


def sides(distance, color=BY_LAYER, linetype="ByLayer"):
    return [(distance, color, linetype), (-distance, color, linetype)]


# Name, description, flags, fill colour, angle of the ends in degrees, elements from left to right.
# Offsets are millimetres.
STYLES = [
    ("PARTITION-115", "Brick partition, 115 mm", LINES, BY_LAYER, 90, sides(57.5)),
    ("WALL-240", "Brick wall, 240 mm", LINES, BY_LAYER, 90, sides(120)),
    ("WALL-365", "Brick wall, 365 mm", LINES, BY_LAYER, 90, sides(182.5)),
    ("WALL-PLASTERED", "Brick 240 mm, 15 mm of plaster on both sides", LINES, BY_LAYER, 90,
     solid(135, color=PALE) + solid(120, -120) + solid(-135, color=PALE)),
    ("WALL-INSULATED", "Render 15 mm, insulation 140 mm, brick 240 mm, plaster 15 mm", LINES,
     BY_LAYER, 90,
     solid(275, color=PALE) + [(260, YELLOW, "ByLayer"), (190, YELLOW, "DASHDOT")] +
     solid(120, -120) + solid(-135, color=PALE)),
    ("WALL-CAVITY", "Facing brick 115 mm, cavity 40 mm, insulation 120 mm, brick 175 mm", LINES,
     BY_LAYER, 90,
     solid(225, 110) + [(70, YELLOW, "ByLayer"), (10, YELLOW, "DASHDOT")] + solid(-50, -225)),
    ("WALL-CONCRETE", "Concrete wall, 200 mm, filled", FILLED + LINES, GREY, 90, sides(100)),
    ("WALL-STUD", "Stud partition, 75 mm between two boards of 12.5 mm", LINES, BY_LAYER, 90,
     solid(50) + [(37.5, PALE, "ByLayer"), (0, PALE, "CENTER2"), (-37.5, PALE, "ByLayer")] +
     solid(-50)),
    ("ROAD-2-LANES", "Two lanes of 3.25 m with kerbs of 150 mm", JOINTS, BY_LAYER, 90,
     solid(3400, 3250) + [(0, WHITE, "DASHED")] + solid(-3250, -3400)),
    ("ROAD-4-LANES", "Four lanes of 3.5 m, two each way, with kerbs of 150 mm", JOINTS, BY_LAYER, 90,
     solid(7150, 7000) + [(3500, WHITE, "DASHED"), (75, WHITE, "Continuous"),
                          (-75, WHITE, "Continuous"), (-3500, WHITE, "DASHED")] +
     solid(-7000, -7150)),
    ("FOOTPATH", "Footpath, 1.5 m between edgings of 50 mm", LINES, BY_LAYER, 90,
     solid(800, 750, -750, -800)),
    ("RAILWAY", "Track of 1435 mm: rail heads of 70 mm and the centre line", 0, BY_LAYER, 90,
     solid(787.5, 717.5) + [(0, RED, "CENTER")] + solid(-717.5, -787.5)),
    ("PIPE-100", "Pipe, 110 mm outside, with its centre line", ROUND, BY_LAYER, 90,
     [(55, BLUE, "ByLayer"), (0, RED, "CENTER2"), (-55, BLUE, "ByLayer")]),
    ("PIPE-LAGGED", "Pipe of 60 mm with lagging of 40 mm", ROUND + INNER, BY_LAYER, 90,
     [(70, GREEN, "HIDDEN2"), (30, BLUE, "ByLayer"), (-30, BLUE, "ByLayer"),
      (-70, GREEN, "HIDDEN2")]),
    ("CABLE-DUCT", "Duct of 300 mm in the ground", JOINTS + LINES, BY_LAYER, 90,
     sides(150, GREEN, "HIDDEN")),
    ("CABLE-TRAY", "Tray of 200 mm with cut ends at 45 degrees", LINES, BY_LAYER, 45,
     sides(100, CYAN) + [(80, CYAN, "DOT2"), (-80, CYAN, "DOT2")]),
    ("DITCH", "Ditch, 2 m at the top, 600 mm at its bed", 0, BY_LAYER, 90,
     sides(1000, CYAN) + sides(300, CYAN, "HIDDEN")),
]


def block(name, description, flags, fill, angle, elements):
    degrees = f"{angle:.14f}"
    yield from ("MLSTYLE", "2", f" {name}", "70", f" {flags}", "3", f" {description}")
    yield from ("62", f" {fill}", "51", f" {degrees}", "52", f" {degrees}")
    yield from ("71", f" {len(elements)}")
    for offset, color, linetype in elements:
        yield from ("49", f" {offset:.14f}", "62", f" {color}", "6", f" {linetype}")
    yield "0"


def library():
    return "".join(f"{line}\n" for style in STYLES for line in block(*style)).encode()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="compare only")
    if parser.parse_args().check:
        sys.exit(0 if LIBRARY.read_bytes() == library() else f"{LIBRARY} needs to be made again")
    LIBRARY.write_bytes(library())


main()
