#!/usr/bin/python3
"""Make floorplan.dxf and README.md from the tables of plan_walls.py.

The result is the same bytes each time. With --check nothing is written; the
exit status is 1 when the files here are not what would be written.
"""

import argparse
import pathlib
import sys

import ezdxf
from ezdxf.entities.mline import MLineStyleElements, MLineVertex
from ezdxf.math import Vec3

import plan_context
from mline_geometry import ZERO, build, drawn_stretches, open_gap
from plan_walls import LAYERS, STYLES, WALLS
from stable_dxf import drawing_text

HERE = pathlib.Path(__file__).resolve().parent

LINETYPES = {  # patterns in drawing units, for a plan in millimetres
    "DASHED": ("Dashed __ __ __", [300.0, 200.0, -100.0]),
    "HIDDEN": ("Hidden _ _ _ _", [150.0, 100.0, -50.0]),
    "CENTER": ("Center ____ _ ____ _", [500.0, 320.0, -60.0, 60.0, -60.0]),
    "DASHDOT": ("Dash dot __ . __ .", [400.0, 280.0, -60.0, 0.0, -60.0]),
}


class TrueColourElements(MLineStyleElements):
    """ezdxf keeps no true colour of an element: write it after the index."""

    def __init__(self, elements):
        super().__init__()
        self.rgb = [element.rgb for element in elements]
        for element in elements:
            self.append(element.offset, element.colour, element.linetype)

    def export_dxf(self, tagwriter):
        tagwriter.write_tag2(71, len(self.elements))
        for (offset, colour, linetype), rgb in zip(self.elements, self.rgb):
            tagwriter.write_tag2(49, offset)
            tagwriter.write_tag2(62, colour)
            if rgb is not None:
                tagwriter.write_tag2(420, rgb)
            tagwriter.write_tag2(6, linetype)


def make_tables(doc):
    for name, (description, pattern) in LINETYPES.items():
        doc.linetypes.add(name, pattern, description=description)
    for name, (colour, linetype, state) in LAYERS.items():
        layer = doc.layers.add(name, color=colour, linetype=linetype)
        {"on": lambda: None, "off": layer.off, "frozen": layer.freeze, "locked": layer.lock}[state]()
    doc.styles.add("PLAN", font="arial.ttf")
    doc.appids.add("PLAN_DATA")
    dimension = doc.dimstyles.new("PLAN")
    dimension.dxf.dimtxt = 200.0
    dimension.dxf.dimasz = 120.0
    dimension.dxf.dimexo = 100.0
    dimension.dxf.dimexe = 100.0
    dimension.dxf.dimgap = 60.0
    dimension.dxf.dimtxsty = "PLAN"
    for style in STYLES.values():
        record = doc.mline_styles.get(style.name) or doc.mline_styles.new(style.name)
        record.dxf.description = style.description
        record.dxf.flags = style.flags
        record.dxf.fill_color = style.fill
        record.dxf.start_angle = style.start_angle
        record.dxf.end_angle = style.end_angle
        record.elements = TrueColourElements(style.elements)


def add_vertices(mline, vertices):
    mline.vertices = [
        MLineVertex.new(v.position, v.axis, v.miter, [tuple(l) for l in v.lines], [tuple(a) for a in v.areas])
        for v in vertices
    ]


def add_multiline(layout, layer, style, points, scale, justification=ZERO, closed=False):
    """A plain multiline outside of the table of walls."""
    attribs = {"layer": layer, "style_name": style, "scale_factor": scale, "justification": justification}
    mline = layout.add_mline([], close=closed, dxfattribs=attribs)
    points = [(x, y, 0.0) for x, y in points]
    add_vertices(mline, build(STYLES[style], points, closed, scale, justification))
    return mline


def wall_vertices(wall):
    points = [(x, y, wall.height) for x, y in wall.points]
    vertices = build(STYLES[wall.style], points, wall.closed, wall.scale, wall.justification, wall.normal)
    for gap in wall.gaps:
        open_gap(vertices, *gap)
    if wall.gaps and STYLES[wall.style].flags & 1:
        for vertex in vertices:  # the fill is interrupted where the lines are
            vertex.areas = [list(values) for values in vertex.lines]
    return vertices


def add_wall(msp, wall):
    attribs = {
        "layer": wall.layer, "style_name": wall.style, "scale_factor": wall.scale,
        "justification": wall.justification, "flags": 1 | wall.flags, "extrusion": Vec3(wall.normal),
    }
    mline = msp.add_mline([], close=wall.closed, dxfattribs=attribs)
    add_vertices(mline, wall_vertices(wall))
    return mline


def set_extents(doc):
    """Extents of the visible walls: nothing else of the plan reaches farther."""
    visible = [wall for wall in WALLS if LAYERS[wall.layer][2] in ("on", "locked")]
    ends = [
        end
        for wall in visible
        for stretch in drawn_stretches(wall_vertices(wall), wall.closed)
        for end in stretch[4:]
    ]
    doc.header["$EXTMIN"] = tuple(map(min, zip(*ends)))
    doc.header["$EXTMAX"] = tuple(map(max, zip(*ends)))


def make_drawing():
    """The drawing and the handle of each wall."""
    doc = ezdxf.new("R2013", units=4)
    make_tables(doc)
    doc.header["$CMLSCALE"] = 115.0
    doc.header["$CMLJUST"] = ZERO
    doc.header["$LTSCALE"] = 1.0
    plan_context.make_blocks(doc, add_multiline)
    msp = doc.modelspace()
    entities = {wall.name: add_wall(msp, wall) for wall in WALLS}
    # Data of another application and a dictionary of a wall's own: both have to survive edits.
    entities["spine"].set_xdata("PLAN_DATA", [(1000, "F90"), (1040, 240.0), (1070, 90)])
    entities["outer"].new_extension_dict().add_dictionary_var("UVALUE", "0.24")
    plan_context.add_openings(msp, {wall.name: wall for wall in WALLS})
    plan_context.add_furniture(msp)
    plan_context.add_labels(msp)
    plan_context.add_dimensions(msp)
    plan_context.add_paving(msp)
    for x, angle, scale in ((15200, 0, 1.0), (-2200, 90, 1.5)):
        msp.add_blockref("PLANTER", (x, 3000), dxfattribs={
            "layer": "GARDEN", "rotation": angle, "xscale": scale, "yscale": scale, "zscale": scale})
    plan_context.add_sheet(doc, add_multiline)
    audit = doc.audit()
    if audit.has_errors or audit.has_fixes:
        sys.exit("\n".join(entry.message for entry in audit.errors + audit.fixes))
    set_extents(doc)
    return doc, {name: mline.dxf.handle for name, mline in entities.items()}


README_HEAD = """# Samples

`floorplan.dxf` is a ground floor with its garage, shed, roads, pipes and garden, in millimetres, whose walls
are multilines. `./run` in the project's root plays `play`, which takes all twelve tools through the plan and draws it
before and after.

| file | what it is |
|---|---|
| `floorplan.dxf` | the plan; made by `make_floorplan.py` from the tables in `plan_walls.py` and `plan_context.py` |
| `flat.dxf` | 40 walls of a flat, drawn in a hurry, for `orvex-batch join`; made by `make_flat.py` |
| `cut.scr` | cuts all doors and windows, one gap over a corner and some single lines, with a slip taken back |
| `door.scr` | one door, two picks: the shortest useful script |
| `corner.scr` | gaps over a corner, through all lines and through one |
| `cross.scr` | closed, open and merged crossings, square and slanting, of two to five elements |
| `tee.scr` | closed, open and merged tees; stems that end on, short of and beyond the bar |
| `corner_joint.scr` | the corners of garage and shed, and a bed that closes with itself |
| `vertex.scr` | vertices added to and deleted from open and closed walls |
| `weld.scr` | gaps closed again, by picks in them |
| `tour.scr` | all twelve tools, each where the plan has a use for it |
| `undo.scr` | cuts and takes everything back: the drawing comes out as it went in |
| `empty.scr` | nothing: opened and saved, a drawing stays the same byte for byte |
| `drawn_flat.scr` | a flat of 20 walls drawn in the window by hand, slips taken back, joined, doors cut; begins with `drawn_flat.dxf`, a new drawing with three wall styles |
| `changes.scr` | the house rebuilt: walls moved, stretched, given other styles and ends, a pipe parted, bent and connected again, the road exploded; gaps stay |
| `play` | the script behind `./run --script`: plays the tour, joins the flat, draws, undoes |
| `runs.txt` | runs that every build has to play alike |

The scripts are made by `make_scripts.py`, with those of the joints in `tool_scripts.py`. It works out every pick from
the plan and makes sure that it can mean one wall only. Both makers take `--check`, which writes nothing and says
whether the files are up to date.

## The walls

Vertices are those of the chain. "Standard 115" is the style at that scale; T, Z and B are the justification.
Crossings are given as elements of this wall by elements of the other; a tee names its stem first.

| wall | handle | layer | style | elements | chain | good for |
|---|---|---|---|---|---|---|
"""


def readme_text(handles):
    rows = []
    for wall in WALLS:
        style = wall.style if wall.scale == 1 else f"{wall.style} {wall.scale:g}"
        chain = " ".join(f"({x:g}, {y:g})" for x, y in wall.points) + (" closed" if wall.closed else "")
        count = len(STYLES[wall.style].elements)
        rows.append(
            f"| {wall.name} | {handles[wall.name]} | {wall.layer} | {style}, {'TZB'[wall.justification]} "
            f"| {count} | {chain} | {wall.use} |"
        )
    return README_HEAD + "\n".join(rows) + """

Besides, a multiline stands in the block `PLANTER` (inserted twice, once turned and enlarged), one in the active
paper space and one on the sheet `Detail`. Layer `GRID` is frozen, `WALL-DEMOLISH` and `ROOF` are off.
"""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="compare, write nothing")
    check = parser.parse_args().check
    doc, handles = make_drawing()
    stale = []
    for name, text in (("floorplan.dxf", drawing_text(doc)), ("README.md", readme_text(handles))):
        path = HERE / name
        if check:
            if not path.exists() or path.read_bytes() != text.encode():
                stale.append(name)
        else:
            path.write_bytes(text.encode())
    if stale:
        sys.exit(f"not up to date: {', '.join(stale)}")


if __name__ == "__main__":
    main()
