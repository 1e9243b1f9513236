#!/usr/bin/python3
"""Make the sample scripts from the plan's openings.

With --check nothing is written; the exit status is 1 when the scripts here are
not what would be written. With --expected SCRIPT the line lists that the
script leaves in the walls it changes go to standard output as JSON, by handle,
worked out from the plan alone.
"""

import argparse
import json
import pathlib
import sys

import tool_scripts
from make_floorplan import make_drawing
from plan_walls import OPENINGS, opening_width
from script_writer import Session

HERE = pathlib.Path(__file__).resolve().parent
HOUSE_MIDDLE = (7000, 5000)
CLOSE = 400  # height of the view: a pixel is a third of a millimetre

# The element that is picked for an opening: the outer face, or the first line.
PICKED = {"outer": 3}


def cut_opening(session, opening):
    end = opening.begin + opening_width(opening)
    session.note(f"{opening.kind} in {opening.wall}, from {opening.begin:g} to {end:g} on segment {opening.segment}")
    places = [(opening.segment, opening.begin), (opening.segment, end)]
    if opening.swing == "right":
        places.reverse()
    return session.cut(opening.wall, *places, PICKED.get(opening.wall, 0))


def cut_script(plan):
    session = Session(*plan, "Cuts the openings of floorplan.dxf. Made by make_scripts.py from the plan.")
    session.note("Picks lie on element lines; a view of 400 mm makes the pick box 2 mm wide.")
    session.zoom(*HOUSE_MIDDLE, CLOSE)
    session.note("Doors and windows, through all elements. The picks may come in either order.")
    session.tool("CA")
    cut_openings(session)
    session.note("A slip: this wall was to stay whole. UNDO takes back the last cut only.")
    slip = session.cut("screen", (0, 300.0), (0, 600.0), 0)
    session.undo(slip)
    session.note("The corner of the cloakroom, from one segment to the next")
    session.cut("cloakroom", (1, 900.0), (2, 500.0), 0)
    session.end_tool()
    session.note("Single elements: a niche in the inner face, and the kerb lowered in front of the drive")
    session.tool("CS")
    session.cut("outer", (5, 7500.0), (5, 8600.0), 0, single=True)
    session.note("The second pick is on another element and is carried over to the first one's.")
    session.cut("road", (0, 27700.0), (0, 30700.0), 0, single=True, picked_last=1)
    session.end_tool()
    session.note("A whole command taken back: drive and boundary are as they were.")
    session.tool("CA")
    cuts = [
        session.cut("drive", (0, 1800.0), (0, 2600.0), 0),
        session.cut("boundary", (1, 12000.0), (1, 15000.0), 0),
    ]
    session.end_tool()
    session.take_back(*cuts)
    session.note("Back to the whole plan")
    session.answer("ZOOM", "E")
    return session


def door_script(plan):
    session = Session(*plan, "One door through the partition: two picks at the ends of the opening.")
    session.zoom(4600, 3800, CLOSE)
    session.tool("CA")
    cut_opening(session, next(o for o in OPENINGS if o.wall == "partition"))
    session.note("An empty line ends the tool.")
    session.end_tool()
    return session


def corner_script(plan):
    session = Session(*plan, "Gaps over corners: the picks lie on two segments.")
    session.zoom(9000, 6600, CLOSE)
    session.note("Through all elements of the cloakroom, over vertex 2")
    session.tool("CA")
    session.cut("cloakroom", (1, 900.0), (2, 500.0), 0)
    session.note("Over two vertices of the pond at once; the segment between goes altogether")
    session.cut("pond", (0, 500.0), (2, 300.0), 0)
    session.end_tool()
    session.note("Through the outermost line of the garden wall alone, over vertices 3 and 4")
    session.tool("CS")
    session.cut("garden wall", (2, 9000.0), (4, 1000.0), 0, single=True)
    session.end_tool()
    return session


def undo_script(plan):
    session = Session(*plan, "Cuts and takes everything back: the drawing comes out as it went in.")
    session.zoom(*HOUSE_MIDDLE, CLOSE)
    session.tool("CA")
    session.undo(cut_opening(session, OPENINGS[0]))
    session.end_tool()
    session.tool("CS")
    cuts = [
        session.cut("kitchen", (0, 500.0), (0, 900.0), 1, single=True),
        session.cut("kitchen", (0, 1200.0), (0, 1500.0), 1, single=True),
    ]
    session.end_tool()
    session.take_back(*cuts)
    return session


def empty_script(plan):
    return Session(*plan, "Nothing to do: the drawing is opened and saved.")


def tool_script(make, title, *more):
    return lambda plan: make(Session(*plan, title), *more)


def cut_openings(session):
    for opening in OPENINGS:
        cut_opening(session, opening)


SCRIPTS = {
    "cut.scr": cut_script,
    "door.scr": door_script,
    "corner.scr": corner_script,
    "undo.scr": undo_script,
    "empty.scr": empty_script,
    "cross.scr": tool_script(tool_scripts.cross_script, "Crossings, closed, open and merged."),
    "tee.scr": tool_script(tool_scripts.tee_script, "Tees, closed, open and merged."),
    "corner_joint.scr": tool_script(tool_scripts.corner_joint_script, "Corner joints."),
    "vertex.scr": tool_script(tool_scripts.vertex_script, "Vertices added and deleted."),
    "weld.scr": tool_script(tool_scripts.weld_script, "Gaps welded."),
    "tour.scr": tool_script(
        tool_scripts.tour_script, "All twelve tools, where the plan has a use for them.", cut_openings),
}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare, write nothing")
    parser.add_argument("--expected", choices=SCRIPTS, metavar="SCRIPT", help=", ".join(SCRIPTS))
    options = parser.parse_args()
    plan = make_drawing()
    if options.expected:
        json.dump(SCRIPTS[options.expected](plan).changed(), sys.stdout, indent=1)
        print()
        return
    stale = []
    for name, make in SCRIPTS.items():
        text = make(plan).text()
        if not options.check:
            (HERE / name).write_text(text)
        elif not (HERE / name).exists() or (HERE / name).read_text() != text:
            stale.append(name)
    if stale:
        sys.exit(f"not up to date: {', '.join(stale)}")


if __name__ == "__main__":
    main()
