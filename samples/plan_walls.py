"""The multilines of the floor plan: layers, styles, walls and openings.

Millimetres throughout. A wall's `use` says what it is good for when the tools
are tried out; it ends up in README.md.
"""

from dataclasses import dataclass

from mline_geometry import BOTTOM, TOP, ZERO, Element, Style

# name: (colour, line type, state)
LAYERS = {
    "WALL-EXT": (7, "Continuous", "on"),
    "WALL-INT": (32, "Continuous", "on"),
    "WALL-BEARING": (252, "Continuous", "on"),
    "WALL-DEMOLISH": (1, "DASHED", "off"),
    "GARAGE": (42, "Continuous", "on"),
    "ROAD": (8, "Continuous", "on"),
    "PIPE": (5, "Continuous", "on"),
    "GARDEN": (94, "Continuous", "on"),
    "GRID": (9, "CENTER", "frozen"),
    "BOUNDARY": (6, "DASHDOT", "on"),
    "DOOR": (4, "Continuous", "on"),
    "WINDOW": (150, "Continuous", "on"),
    "FURNITURE": (30, "Continuous", "on"),
    "TEXT": (7, "Continuous", "on"),
    "DIM": (2, "Continuous", "on"),
    "HATCH": (253, "Continuous", "on"),
    "ROOF": (1, "HIDDEN", "off"),
}

FILLED, MITERS = 1, 2
SQUARE_START, ARCS_START, ROUND_START = 16, 32, 64
SQUARE_END, ARCS_END, ROUND_END = 256, 512, 1024
SQUARE = SQUARE_START | SQUARE_END


def elements(*rows):
    return [Element(*row) for row in rows]


STYLES = {
    style.name: style
    for style in (
        Style("Standard", "", elements((0.5,), (-0.5,))),
        Style(
            "EXT365",
            "Brick 200, insulation 140, render 25",
            elements(
                (182.5, 7),
                (-17.5, 30, "DASHED"),
                (-157.5, 8, "BYLAYER", 0x8C6B4A),
                (-182.5, 7),
            ),
            SQUARE,
        ),
        Style("BEARING240", "Concrete 240, filled", elements((120.0,), (-120.0,)), FILLED | SQUARE, 254),
        Style(
            "CAVITY300",
            "Two leaves 115, cavity 70",
            elements((150.0, 7), (35.0, 8), (0.0, 1, "CENTER"), (-35.0, 8), (-150.0, 7)),
            MITERS | SQUARE,
        ),
        Style("PART125", "Ständerwand 125", elements((62.5,), (0.0, 1, "CENTER"), (-62.5,)), SQUARE),
        Style(
            "ROUND300",
            "Garden wall with coping",
            elements((150.0, 7), (110.0, 3), (-110.0, 3), (-150.0, 7)),
            ROUND_START | ARCS_START | ROUND_END | ARCS_END,
        ),
        Style(
            "MIXEDCAPS",
            "Square start, round end with inner arcs",
            elements((100.0, 2), (60.0, 2), (-60.0, 4), (-100.0, 4)),
            SQUARE_START | ROUND_END | ARCS_END,
        ),
        Style("SKEW", "Ends at 45 and 120 degrees", elements((0.5, 3), (-0.5, 3)), SQUARE, 256, 45.0, 120.0),
        Style(
            "ROAD",
            "Kerbs, gutters and centre line, metres",
            elements((3.25, 7), (2.75, 8), (0.0, 7, "DASHED"), (-2.75, 8), (-3.25, 7)),
        ),
        Style(
            "PIPE",
            "Pipe with axis",
            elements((1.0, 5), (0.0, 1, "CENTER"), (-1.0, 5)),
            ROUND_START | ROUND_END,
        ),
        Style("FACADE", "Chain off centre", elements((0.09, 7), (0.0, 8, "HIDDEN"), (-0.275, 7)), SQUARE),
        Style("LINE1", "A single line", elements((0.0, 256, "DASHDOT"),)),
    )
}


@dataclass
class Wall:
    name: str
    layer: str
    style: str
    points: list
    use: str
    scale: float = 1.0
    justification: int = ZERO
    closed: bool = False
    gaps: tuple = ()  # ((segment, along), (segment, along)[, elements])
    flags: int = 0  # 4 no start cap, 8 no end cap
    normal: tuple = (0.0, 0.0, 1.0)
    height: float = 0.0


HOUSE = [
    Wall("outer", "WALL-EXT", "EXT365",
         [(0, 0), (14000, 0), (14000, 7000), (10500, 7000), (10500, 10000), (0, 10000)],
         "closed, 4 elements, chain on the outer face; bar of tees; door and window openings", 1.0, BOTTOM, True),
    Wall("spine", "WALL-BEARING", "BEARING240", [(365, 5200), (13635, 5200)],
         "filled; ends on the inner faces of outer (tees 2 to 4); crossed square by partition (2x2), "
         "store (2x5) and slanting by dressing (2x3)"),
    Wall("partition", "WALL-INT", "Standard", [(4600, 365), (4600, 9635)],
         "crosses spine square (2x2); bar of kitchen and bedroom", 115.0),
    Wall("study", "WALL-INT", "PART125", [(8200, 365), (8200, 5080)],
         "stem that ends on the face of spine (tee 3 to 2); crosses kitchen square (3x3)"),
    Wall("kitchen", "WALL-INT", "PART125", [(4600, 2600), (11250, 2600)],
         "crosses study square (3x3); starts on the axis of partition (tee 3 to 2), "
         "ends on the face of store (tee 3 to 5)"),
    Wall("store", "WALL-INT", "CAVITY300", [(11400, 365), (11400, 6635)],
         "5 elements, miters shown; crosses spine square (5x2); bar of kitchen"),
    Wall("bedroom", "WALL-INT", "PART125", [(365, 7600), (4300, 7600)],
         "stem that stops 242 mm short of partition (tee 3 to 2)"),
    Wall("bath", "WALL-INT", "Standard", [(7400, 5320), (7400, 9635)],
         "crossed slanting by dressing (2x3)", 100.0),
    Wall("dressing", "WALL-INT", "PART125", [(5300, 5000), (9600, 9635)],
         "slanting; crosses bath (3x2); runs 200 mm past the axis of spine (tee 3 to 2, stem too long)"),
    Wall("shaft", "WALL-INT", "Standard", [(7700, 8950), (8300, 8950), (8300, 9500), (7700, 9500)],
         "closed, 4 vertices, 2 elements; cuts on the closing segment", 60.0, ZERO, True),
    Wall("cloakroom", "WALL-INT", "Standard", [(8300, 5320), (8300, 6900), (9600, 6900), (9600, 5320)],
         "4 vertices, two right turns, chain on the left face; gap over a corner", 100.0, TOP),
    Wall("larder", "WALL-INT", "PART125", [(365, 2300), (1000, 2300), (1700, 1600), (1700, 365)],
         "4 vertices with half-right turns, chain on the right face", 1.0, BOTTOM),
    Wall("fireplace", "WALL-INT", "PART125",
         [(2900, 3600), (2500, 4000), (1900, 4000), (1500, 3600), (1900, 3200), (2500, 3200)],
         "closed hexagon, 3 elements, chain on the outer face", 0.8, BOTTOM, True),
    Wall("utility", "WALL-INT", "Standard", [(11550, 2900), (13635, 2900)],
         "has a door gap through both elements already, 400 to 1285: weld", 115.0, ZERO, False,
         (((0, 400.0), (0, 1285.0)),)),
    Wall("niche", "WALL-INT", "PART125", [(8262.5, 3900), (11250, 3900)],
         "gaps in single elements: 0 from 600 to 1000 and 1800 to 2100, 1 from 800 to 1600: weld", 1.0, ZERO, False,
         (((0, 600.0), (0, 1000.0), [0]), ((0, 1800.0), (0, 2100.0), [0]), ((0, 800.0), (0, 1600.0), [1]))),
    Wall("closet", "WALL-INT", "Standard", [(365, 8700), (1700, 8700), (1700, 9635)],
         "has a gap over its corner, from 1000 on the first to 400 on the second segment: weld", 115.0, ZERO, False,
         (((0, 1000.0), (1, 400.0)),)),
    Wall("stringer", "WALL-INT", "SKEW", [(5100, 3000), (5100, 4700)],
         "ends at 45 and 120 degrees", 150.0),
    Wall("screen", "WALL-INT", "MIXEDCAPS", [(9000, 1400), (9900, 1400), (10600, 900)],
         "3 vertices, square and round cap, inner arcs"),
    Wall("porch", "WALL-EXT", "FACADE", [(5600, 0), (5600, -1300), (8400, -1300), (8400, 0)],
         "offsets not symmetric; crossed by path (3x2)", 1000.0),
    Wall("terrace", "WALL-BEARING", "BEARING240", [(13880, 7000), (13880, 9880), (10500, 9880)],
         "filled, with a gap that the area lists follow, 1200 to 2400 on the first segment; no end cap", 1.0, ZERO,
         False, (((0, 1200.0), (0, 2400.0)),), 8),
    Wall("old wall", "WALL-DEMOLISH", "Standard", [(9300, 2662.5), (9300, 3837.5)],
         "on a layer that is off: never picked by place", 115.0),
    Wall("grid", "GRID", "LINE1", [(-1500, 5200), (15500, 5200)],
         "1 element on a frozen layer, on the axis of spine"),
]

GARAGE = [
    Wall("garage west", "GARAGE", "CAVITY300", [(16150, 0), (16150, 7300)],
         "corner with garage north (5x5, both run over); corner with garage south (5x2)"),
    Wall("garage north", "GARAGE", "CAVITY300", [(15700, 6850), (22100, 6850)],
         "corner with garage west (5x5, both run over); stops short of garage east (5x2)"),
    Wall("garage east", "GARAGE", "Standard", [(22380, 6500), (22380, 600)],
         "stops short at both ends: corner joints 2x5 and 2x2", 240.0),
    Wall("garage south", "GARAGE", "Standard", [(21800, 120), (16600, 120)],
         "stops short at both ends: corner joints 2x2 and 2x5", 240.0),
    Wall("shed south", "GARAGE", "PART125", [(15800, 9000), (21200, 9000)],
         "corner with shed east (3x3, both run over) and shed west (3x4)", 2.0),
    Wall("shed east", "GARAGE", "PART125", [(20900, 8700), (20900, 13400)],
         "corner with shed south (3x3) and shed north (3x4)", 2.0),
    Wall("shed west", "GARAGE", "EXT365", [(16200, 8600), (16200, 13500)],
         "corner with shed north (4x4) and shed south (4x3); bar of the shed wall"),
    Wall("shed north", "GARAGE", "EXT365", [(15800, 13100), (21300, 13100)],
         "corner with shed west (4x4) and shed east (4x3)"),
    Wall("shed wall", "GARAGE", "PART125", [(16700, 10200), (18500, 11400), (18500, 12600)],
         "slanting stem that stops short of shed west (tee 3 to 4); other end short of shed north (tee 3 to 4)"),
]

SITE = [
    Wall("road", "ROAD", "ROAD", [(-10000, -9000), (34000, -9000)],
         "5 elements; crossed slanting by side road (5x5), square by sewer (5x3), slanting by drain (5x3)", 1000.0),
    Wall("side road", "ROAD", "ROAD", [(25500, -15000), (30000, 14000)],
         "5 elements, slanting; crosses road (5x5) and gas (5x2)", 1000.0),
    Wall("drive", "ROAD", "Standard", [(19200, -600), (19200, -5000)],
         "stem that stops short of road (tee 2 to 5); crossed square by gas (2x2)", 3000.0),
    Wall("path", "ROAD", "Standard", [(7000, -300), (7000, -3000), (2500, -5500)],
         "3 vertices; crosses porch (2x3) and gas (2x2) square; slanting stem that stops short of road (tee 2 to 5)",
         1200.0),
    Wall("sewer", "PIPE", "PIPE", [(9800, -400), (9800, -14000)],
         "crosses road square (3x5), gas square (3x2), drain slanting (3x3)", 100.0),
    Wall("gas", "PIPE", "Standard",
         [(-6000, -4000), (2000, -2000), (11500, -2000), (15000, -4200), (33000, -4200)],
         "5 vertices; crosses path (2x2), sewer (2x3), drive (2x2), side road (2x5), boundary (2x1)", 150.0),
    Wall("drain", "PIPE", "PIPE", [(-2000, -3000), (13500, -13500)],
         "slanting; crosses sewer (3x3) and road (3x5); starts on the axis of gas (tee 3 to 2)", 75.0),
    Wall("garden wall", "GARDEN", "ROUND300",
         [(-3500, -1500), (-3500, 11500), (-1500, 13500), (9000, 13500), (11500, 12000), (14500, 12000)],
         "6 vertices, round caps with inner arcs; crossed slanting by fence (4x2) and hedge (4x3)"),
    Wall("pond", "GARDEN", "ROUND300",
         [(6000, 11200), (6000, 12000), (5400, 12600), (4600, 12600), (4000, 12000), (4000, 11200),
          (4600, 10600), (5400, 10600)],
         "closed, 8 vertices, 4 elements", 0.5, TOP, True),
    Wall("fence", "GARDEN", "Standard", [(-6000, 5000), (-1200, 8000)],
         "slanting; crosses garden wall (2x4)", 80.0),
    Wall("hedge", "GARDEN", "PIPE", [(800, 15500), (2500, 11000)],
         "slanting; crosses garden wall (3x4)", 300.0),
    Wall("boundary", "BOUNDARY", "LINE1", [(24000, -5000), (24000, 15500), (-7500, 15500), (-7500, -5200)],
         "1 element, 4 vertices; crosses gas (1x2), touches hedge (1x3)"),
    Wall("mirrored", "GARDEN", "FACADE", [(12500, 10800), (16000, 10800)],
         "normal points down, as after mirroring; offsets lie to the right", 1000.0, ZERO, False, (), 0,
         (0.0, 0.0, -1.0)),
    Wall("overhead", "PIPE", "PIPE", [(-5000, -1000), (15500, -5500)],
         "at height 2800: meets garden wall, gas, path and sewer in plan but not in space", 60.0, ZERO, False, (), 0,
         (0.0, 0.0, 1.0), 2800.0),
    Wall("raised bed", "GARDEN", "PART125",
         [(-6900, -200), (-4700, -200), (-4700, 2600), (-6500, 2600), (-6500, -600)],
         "5 vertices; runs over itself where it should close: corner joint of its first and last segment"),
]

WALLS = HOUSE + GARAGE + SITE


@dataclass
class Opening:
    kind: str  # a block of the plan
    wall: str
    segment: int
    begin: float  # on the chain, from the segment's start vertex
    swing: str = "left"  # hinge and side of a door


OPENINGS = [
    Opening("WINDOW-2010", "outer", 0, 2200.0),
    Opening("DOOR-1010", "outer", 0, 6500.0, "left"),
    Opening("WINDOW-1510", "outer", 0, 9200.0),
    Opening("WINDOW-1010", "outer", 0, 12100.0),
    Opening("WINDOW-1010", "outer", 1, 1000.0),
    Opening("WINDOW-1510", "outer", 1, 3200.0),
    Opening("DOOR-885", "outer", 1, 5500.0, "left"),
    Opening("WINDOW-2010", "outer", 3, 500.0),
    Opening("WINDOW-1010", "outer", 4, 1100.0),
    Opening("WINDOW-1510", "outer", 4, 4200.0),
    Opening("WINDOW-2010", "outer", 4, 6500.0),
    Opening("WINDOW-1510", "outer", 5, 5300.0),
    Opening("DOOR-885", "spine", 0, 2500.0, "left"),
    Opening("DOOR-1010", "spine", 0, 5600.0, "right"),
    Opening("DOOR-885", "spine", 0, 9700.0, "left"),
    Opening("DOOR-885", "partition", 0, 3000.0, "left"),
    Opening("DOOR-885", "partition", 0, 5400.0, "right"),
    Opening("DOOR-885", "study", 0, 1000.0, "right"),
    Opening("DOOR-885", "kitchen", 0, 1800.0, "left"),
    Opening("DOOR-885", "store", 0, 800.0, "right"),
    Opening("DOOR-885", "bedroom", 0, 2600.0, "left"),
    Opening("DOOR-885", "bath", 0, 600.0, "right"),
    Opening("DOOR-885", "dressing", 0, 1600.0, "left"),
]


def opening_width(opening):
    return float(opening.kind.split("-")[1])
