"""Where the multilines of a generated drawing lie, so that picks follow from the index.

Multiline i stands in column i % columns and row i // columns of a grid of
cells, with as many columns as make the grid square. Its chain starts at the
cell's origin and its first segment runs 1600 to the east. Its style has
2 + i % 4 elements; element 0 lies 100 to the left, the last one 100 to the
right. It has 2 + i // 4 % 3 vertices. Every eighth has a gap from 1300 to 1400
on its first segment.
"""

import math

CELL = 2000.0
FIRST_SEGMENT = 1600.0
HALF_WIDTH = 100.0
# Origins don't lie on whole numbers, as few places in real drawings do.
SHIFT = 1234.5678

CUT_START, CUT_STEP, CUT_LENGTH, CUTS_PER_MULTILINE = 300.0, 100.0, 40.0, 9


def columns(count):
    return math.ceil(math.sqrt(count))


def origin(index, count):
    return SHIFT + index % columns(count) * CELL, SHIFT + index // columns(count) * CELL


def offsets(index):
    """Element offsets of a multiline, the greatest first."""
    elements = 2 + index % 4
    return [HALF_WIDTH - 2 * HALF_WIDTH * i / (elements - 1) for i in range(elements)]


def chain(index):
    """Vertices from the cell's origin."""
    turns = [(FIRST_SEGMENT, 0.0), (FIRST_SEGMENT + 150.0, 900.0), (300.0, 1100.0)]
    return [(0.0, 0.0)] + turns[: 1 + index // 4 % 3]


def pick(index, count, along):
    """A point on element 0 of a multiline, on its first segment."""
    x, y = origin(index, count)
    return x + along, y + HALF_WIDTH


def cut_picks(cycle, count):
    """Both picks of a cut; cycle after cycle another multiline, then another place on each."""
    turn = cycle // count
    if turn >= CUTS_PER_MULTILINE:
        raise ValueError(f"{count} multilines have room for {count * CUTS_PER_MULTILINE} cuts")
    # A stride that is prime to most counts, so that cuts don't follow the order of the file.
    index = cycle * 7919 % count if math.gcd(7919, count) == 1 else cycle % count
    start = CUT_START + CUT_STEP * turn
    return pick(index, count, start), pick(index, count, start + CUT_LENGTH)


VIEW_HEIGHT = 400.0  # a pick box of a millimetre to each side


def script(cycles, count):
    """A script of so many cuts in one run of the tool."""
    x, y = origin(0, count)
    lines = ["ZOOM", "C", f"{x:.4f},{y:.4f}", f"{VIEW_HEIGHT:g}"]
    if cycles:
        lines += ["-MLEDIT", "CA"]
        lines += [f"{px:.4f},{py:.4f}" for cycle in range(cycles) for px, py in cut_picks(cycle, count)]
        lines.append("")
    return "\n".join(lines) + "\n"


def one_pick_script(count):
    """A script of a single pick, on the multiline in the middle of the file, and then a cancel."""
    x, y = origin(0, count)
    px, py = pick(count // 2, count, CUT_START)
    lines = ["ZOOM", "C", f"{x:.4f},{y:.4f}", f"{VIEW_HEIGHT:g}", "-MLEDIT", "CA", f"{px:.4f},{py:.4f}", "*CANCEL*"]
    return "\n".join(lines) + "\n"
