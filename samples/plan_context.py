"""What stands in the floor plan beside the walls: doors, windows, furniture,
labels, dimensions, paving and a sheet in paper space."""

import math

from mline_geometry import add, cross
from plan_walls import OPENINGS


def make_blocks(doc, add_multiline):
    for width in (885, 1010):
        door = doc.blocks.new(f"DOOR-{width}")
        leaf = width - 40.0
        door.add_line((20, 0), (20, leaf), dxfattribs={"layer": "DOOR"})
        door.add_line((60, 0), (60, leaf), dxfattribs={"layer": "DOOR"})
        door.add_arc((20, 0), leaf, 0, 90, dxfattribs={"layer": "DOOR"})
    for width in (1010, 1510, 2010):
        window = doc.blocks.new(f"WINDOW-{width}")
        for y in (95, 130):
            window.add_line((40, y), (width - 40, y), dxfattribs={"layer": "WINDOW"})
        window.add_lwpolyline(
            [(40, 60), (width - 40, 60), (width - 40, 165), (40, 165)], close=True, dxfattribs={"layer": "WINDOW"}
        )
    tag = doc.blocks.new("ROOMTAG")
    tag.add_circle((0, 0), 260, dxfattribs={"layer": "TEXT"})
    centred = {"layer": "TEXT", "height": 170, "halign": 1, "align_point": (0, -80)}
    tag.add_attdef("NUMBER", (0, -80), dxfattribs=centred)
    planter = doc.blocks.new("PLANTER", base_point=(500, 0))
    add_multiline(planter, "0", "Standard", [(0, 0), (1000, 0), (1000, 600), (0, 600)], 60.0, closed=True)
    planter.add_circle((500, 300), 180, dxfattribs={"color": 3})


def opening_frame(wall_points, opening):
    """Insertion point and direction of an opening, on the wall's chain."""
    start = wall_points[opening.segment] + (0.0,)
    end = wall_points[(opening.segment + 1) % len(wall_points)] + (0.0,)
    length = math.dist(start, end)
    axis = tuple((e - s) / length for s, e in zip(start, end))
    return add(start, axis, opening.begin), axis


def add_openings(msp, walls):
    for opening in OPENINGS:
        origin, axis = opening_frame(walls[opening.wall].points, opening)
        attribs = {"layer": opening.kind.split("-")[0], "rotation": math.degrees(math.atan2(axis[1], axis[0]))}
        if opening.kind.startswith("WINDOW"):
            # The chain of the outer wall is its outer face: sink the frame into it.
            origin = add(origin, cross((0.0, 0.0, 1.0), axis), 70.0)
        if opening.swing == "right":
            # Mirrored on the wall's axis: the leaf opens to the other side.
            attribs["yscale"] = -1.0
        msp.add_blockref(opening.kind, origin[:2], dxfattribs=attribs)


def add_furniture(msp):
    attribs = {"layer": "FURNITURE"}
    tub = [(8450, 7500, 0), (10000, 7500, 0), (10000, 8200, 0), (9150, 8200, 0)]
    msp.add_lwpolyline(tub, format="xyb", close=True, dxfattribs=attribs)
    msp.add_lwpolyline(
        [(9500, 7600, 0.4142135623730951), (9900, 7850, 0.4142135623730951), (9500, 8100, 0)],
        format="xyb", close=True, dxfattribs=attribs,
    )
    msp.add_ellipse((8950, 6450), major_axis=(0, 280), ratio=0.7, dxfattribs=attribs)
    msp.add_ellipse((8950, 5800), (200, 0), 0.6, 0, math.pi, dxfattribs=attribs)
    msp.add_circle((3200, 1500), 550, dxfattribs=attribs)
    for x, y in ((2400, 1500), (4000, 1500), (3200, 700), (3200, 2300)):
        msp.add_solid([(x - 180, y - 180), (x + 180, y - 180), (x - 180, y + 180), (x + 180, y + 180)],
                      dxfattribs={"layer": "FURNITURE", "color": 31})
    msp.add_polyline2d([(600, 5700), (2600, 5700), (2600, 7100), (600, 7100)], close=True, dxfattribs=attribs)
    msp.add_polyline2d([(600, 6200), (2600, 6200)], dxfattribs=attribs)
    msp.add_arc((5900, 1500), 700, 200, 340, dxfattribs=attribs)
    msp.add_spline([(5200, 8900), (5800, 9300), (6400, 8700), (7000, 9200)], dxfattribs=attribs)
    msp.add_lwpolyline([(8700, 3300), (10900, 3300), (10900, 3050), (8700, 3050)], close=True, dxfattribs=attribs)
    for step in range(7):  # the stairs beside the stringer
        y = 3100 + 260 * step
        msp.add_line((5400, y), (6300, y), dxfattribs=attribs)
    msp.add_line((5850, 3000), (5850, 4800), dxfattribs={"layer": "FURNITURE", "linetype": "DASHED"})
    msp.add_lwpolyline([(16900, 1000), (18600, 1000), (18600, 5400, 400, 0), (18600, 5800)], dxfattribs=attribs)
    msp.add_polyline3d([(-500, -500, 0), (14500, -500, 0), (14500, 10500, 2600), (-500, 10500, 2600)], close=True,
                       dxfattribs={"layer": "ROOF"})


def add_labels(msp):
    rooms = [("1", "Wohnen", 2900, 4500), ("2", "Treppe", 7250, 4150), ("3", "Diele", 6000, 2000),
             ("4", "Büro", 9900, 2100), ("5", "Vorräte", 12500, 2300), ("6", "Schlafen", 3300, 6900),
             ("7", "Ankleide", 5700, 8100), ("8", "Bad", 9350, 8500), ("9", "Technik", 12300, 6100),
             ("10", "Küche", 9700, 4500)]
    for number, name, x, y in rooms:
        msp.add_text(name, dxfattribs={"layer": "TEXT", "height": 200, "insert": (x, y), "style": "PLAN"})
        tag = msp.add_blockref("ROOMTAG", (x - 400, y + 80), dxfattribs={"layer": "TEXT"})
        tag.add_auto_attribs({"NUMBER": number})
    msp.add_text("Garage", dxfattribs={"layer": "TEXT", "height": 300, "rotation": 90, "insert": (20600, 3000),
                                       "halign": 1, "valign": 2, "align_point": (20600, 3000), "style": "PLAN"})
    msp.add_mtext("Fußweg\\PGefälle 2 %", dxfattribs={
        "layer": "TEXT", "char_height": 220, "insert": (3100, -3500), "width": 2500, "attachment_point": 1,
        "style": "PLAN"})
    msp.add_mtext("{\\fArial|b1;Abwasser} DN 200\\P北側道路", dxfattribs={
        "layer": "TEXT", "char_height": 220, "insert": (10100, -7000), "width": 4000, "attachment_point": 1,
        "style": "PLAN"})
    for x, y in ((-10000, -9000), (34000, -9000), (24000, 15500)):
        msp.add_point((x, y), dxfattribs={"layer": "BOUNDARY"})


def add_dimensions(msp):
    for base, p1, p2, angle in (
        ((0, -700), (0, 0), (5600, 0), 0),
        ((0, 10900), (0, 10000), (10500, 10000), 0),
        ((-900, 0), (0, 0), (0, 10000), 90),
        ((14800, 0), (14000, 0), (14000, 7000), 90),
    ):
        msp.add_linear_dim(base=base, p1=p1, p2=p2, angle=angle, dimstyle="PLAN",
                           dxfattribs={"layer": "DIM"}).render()


def add_paving(msp):
    paving = msp.add_hatch(dxfattribs={"layer": "HATCH"})
    paving.set_pattern_fill("ANSI31", scale=120)
    paving.paths.add_polyline_path([(10500, 7000), (13760, 7000), (13760, 9760), (10500, 9760)], is_closed=True)
    island = msp.add_hatch(dxfattribs={"layer": "HATCH", "color": 92})
    edges = island.paths.add_edge_path()
    edges.add_arc((5000, 11600), 350, 0, 180)
    edges.add_line((4650, 11600), (5350, 11600))


def add_sheet(doc, add_multiline):
    """A sheet with a legend in the active paper space, a detail on a second one."""
    sheet = doc.layout("Layout1")
    sheet.page_setup(size=(420, 297), margins=(0, 0, 0, 0), units="mm")
    sheet.add_lwpolyline([(10, 10), (410, 10), (410, 287), (10, 287)], close=True)
    sheet.add_viewport(center=(180, 150), size=(320, 230), view_center_point=(12000, 500), view_height=32000)
    sheet.add_text("Erdgeschoß 1:100", dxfattribs={"height": 7, "insert": (300, 20), "style": "PLAN"})
    add_multiline(sheet, "WALL-EXT", "EXT365", [(350, 40), (400, 40)], 0.02)
    detail = doc.layouts.new("Detail")
    detail.page_setup(size=(297, 210), margins=(0, 0, 0, 0), units="mm")
    add_multiline(detail, "WALL-INT", "CAVITY300", [(30, 30), (30, 150), (200, 150)], 0.1)
