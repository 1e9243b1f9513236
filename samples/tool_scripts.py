"""The sample scripts of the tools that reshape walls, and the tour through all twelve tools.

A pick is a wall, a segment, a place on the chain and, where it isn't 0, an
element. Each maker takes a fresh Session and returns it.
"""

SITE_MIDDLE = (9000, 2000)
CLOSE = 400  # height of the view: a pick reaches 1.4 mm


def run_tool(session, keyword, *notes_and_picks):
    """A tool from its keyword to the empty line; a text is a note on what follows it."""
    session.tool(keyword)
    for item in notes_and_picks:
        if isinstance(item, str):
            session.note(item)
        else:
            session.edit(*item)
    session.end_tool()


def cross_script(session):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("Closed: the first is taken away under the second.")
    run_tool(
        session, "CC",
        "Three elements under three, square", (("study", 0, 1500), ("kitchen", 0, 3000)),
        "Two under four, slanting", (("fence", 0, 500), ("garden wall", 0, 3000)),
        "Two under five, slanting", (("gas", 3, 6000), ("side road", 0, 9000)),
        "Three under five, square", (("sewer", 0, 3000), ("road", 0, 18000)),
    )
    session.note("Open: the outer lines of the second open as well, its inner ones run through.")
    run_tool(
        session, "OC",
        "Five elements over two, square", (("store", 0, 2000), ("spine", 0, 12000)),
        "Two over three, slanting", (("bath", 0, 1000), ("dressing", 0, 4000)),
        "Three over three, slanting", (("drain", 0, 10000), ("sewer", 0, 12500)),
    )
    session.note("Merged: the outer lines of both open, inner ones meet those of their own depth.")
    run_tool(
        session, "MC",
        "Two elements and two, square", (("partition", 0, 1500), ("spine", 0, 1000)),
        "Five and five, slanting", (("road", 0, 30000), ("side road", 0, 2000, 4)),
        "Two and three, square", (("path", 0, 300, 1), ("porch", 1, 600)),
        "Three and four, slanting", (("hedge", 0, 500), ("garden wall", 2, 6000)),
    )
    return session


def tee_script(session):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("The stem first, picked on the part that stays; then the bar.")
    session.note("Closed: the bar stays whole.")
    run_tool(
        session, "CT",
        "Three elements that end on the face of two", (("study", 0, 4000), ("spine", 0, 7000, 1)),
        "Three on two, slanting, from the axis", (("drain", 0, 3000), ("gas", 0, 6000)),
    )
    session.note("Open: the bar's near line opens.")
    run_tool(
        session, "OT",
        "Three elements that stop short of two", (("bedroom", 0, 2000), ("partition", 0, 8000)),
        "Three that run beyond two, slanting: the part picked stays", (("dressing", 0, 3000), ("spine", 0, 7000)),
        "Two far short of five, slanting", (("path", 1, 3000), ("road", 0, 3500)),
    )
    session.note("Merged: inner lines of the stem go on to those of the bar at their own depth.")
    run_tool(
        session, "MT",
        "Three elements, to two at one end and to five at the other",
        (("kitchen", 0, 2000), ("partition", 0, 1000)),
        (("kitchen", 0, 4500), ("store", 0, 1000)),
        "Two short of five, square", (("drive", 0, 2000), ("road", 0, 24000)),
        "Two to four, to both ends; the bar is closed",
        (("spine", 0, 2000), ("outer", 5, 2000)),
        (("spine", 0, 12500), ("outer", 1, 6000)),
        "Three to four, a slanting end and a square one",
        (("shed wall", 0, 1000), ("shed west", 0, 3000)),
        (("shed wall", 1, 600), ("shed north", 0, 4500)),
    )
    return session


def garage_corners():
    return (
        "The garage: five elements with five, then five with two and two with two",
        (("garage west", 0, 3000), ("garage north", 0, 3000)),
        (("garage north", 0, 5000), ("garage east", 0, 3000)),
        (("garage east", 0, 4000), ("garage south", 0, 3000)),
        (("garage south", 0, 2000), ("garage west", 0, 2000)),
    )


def shed_corners():
    return (
        "The shed: three elements with three, three with four, four with four",
        (("shed south", 0, 2000), ("shed east", 0, 2000)),
        (("shed east", 0, 3000), ("shed north", 0, 2500)),
        (("shed north", 0, 3000), ("shed west", 0, 3500)),
        (("shed west", 0, 2500), ("shed south", 0, 3000)),
    )


def bed_corner():
    return (
        "The raised bed with itself: both loose ends go and the loop closes",
        (("raised bed", 0, 1500), ("raised bed", 3, 1500)),
    )


def corner_joint_script(session):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("Each pick is on the part that stays; what runs over goes, what stops short is drawn out.")
    run_tool(session, "CJ", *garage_corners(), *shed_corners(), *bed_corner())
    return session


def vertex_script(session):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("A new vertex stands where the pick is, and the wall looks as before.")
    run_tool(
        session, "AV",
        "Open wall", (("garden wall", 2, 6000),),
        "Closed wall, on the segment that closes it", (("shaft", 3, 250),),
    )
    session.note("The vertex nearer to the pick goes; the two segments beside it become one.")
    session.tool("DV")
    session.note("Open wall, an inner vertex")
    session.delete_vertex("gas", 3, 2, 3800)
    session.note("Open wall, its last vertex")
    session.delete_vertex("larder", 3, 2, 1000)
    session.note("Closed wall")
    session.delete_vertex("pond", 3, 2, 700)
    session.end_tool()
    session.note("A bend that is deleted leaves the lines beside it a hair off: lay them right.")
    session.lay_right("gas")
    return session


def weld(session, note, name, first, last, element=0):
    session.note(note)
    session.pick_gap(name, *first, element)
    session.pick_gap(name, *last, element)


def weld_script(session):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("Picks in a gap or at its end name the wall by its handle: nothing is drawn there.")
    session.tool("WA")
    weld(session, "A door walled up, from end to end of the gap", "utility", (0, 400), (0, 1285))
    weld(session, "Several gaps in single elements, from before the first to after the last",
         "niche", (0, 300), (0, 2500))
    weld(session, "A gap over a corner", "closet", (0, 1000), (1, 400))
    session.end_tool()
    return session


def tour_script(session, cut_openings):
    session.zoom(*SITE_MIDDLE, CLOSE)
    session.note("1. The house gets its doors and windows.")
    session.tool("CA")
    cut_openings(session)
    session.end_tool()
    session.note("2. A niche for the radiator in the inner face of the west wall: one element alone")
    session.tool("CS")
    session.cut("outer", (5, 7500.0), (5, 8600.0), 0, single=True)
    session.end_tool()
    session.note("3. Two doors that were given up are walled up again.")
    session.tool("WA")
    weld(session, "Utility room", "utility", (0, 400), (0, 1285))
    weld(session, "Closet, over its corner", "closet", (0, 1000), (1, 400))
    session.end_tool()
    session.note("4. Partitions butt against the bearing wall, which stays whole.")
    run_tool(
        session, "CT",
        "Study", (("study", 0, 4000), ("spine", 0, 7500, 1)),
        "Dressing room: its end in the hall goes", (("dressing", 0, 4000), ("spine", 0, 7500)),
    )
    session.note("5. Partitions of one make join: the near face opens.")
    run_tool(session, "OT", "Bedroom to partition", (("bedroom", 0, 1500), ("partition", 0, 8000)))
    session.note("6. Walls bonded into each other, and the drive opened into the road")
    run_tool(
        session, "MT",
        "Bearing wall into both outer walls",
        (("spine", 0, 1500), ("outer", 5, 2000)),
        (("spine", 0, 12500), ("outer", 1, 5200)),
        "Kitchen wall between partition and store",
        (("kitchen", 0, 1000), ("partition", 0, 1500)),
        (("kitchen", 0, 5000), ("store", 0, 600)),
        "Drive into the road, over its kerb and gutter", (("drive", 0, 2000), ("road", 0, 24000)),
        "Shed wall", (("shed wall", 0, 1000), ("shed west", 0, 3000)),
        (("shed wall", 1, 600), ("shed north", 0, 4500)),
    )
    session.note("7. Walls that cross are bonded, and so do the roads.")
    run_tool(
        session, "MC",
        "Partition and bearing wall", (("partition", 0, 1500), ("spine", 0, 1500)),
        "Store and bearing wall", (("store", 0, 3000), ("spine", 0, 12500)),
        "Study and kitchen", (("study", 0, 3500), ("kitchen", 0, 1000)),
        "Road and side road", (("road", 0, 31000), ("side road", 0, 2000, 4)),
    )
    session.note("8. The gas main loses a bend.")
    session.tool("DV")
    session.delete_vertex("gas", 2, 2, 500)
    session.end_tool()
    session.lay_right("gas")
    session.note("9. What runs below: nothing of it shows under what lies above.")
    run_tool(
        session, "CC",
        "Gas under the side road", (("gas", 2, 6000), ("side road", 0, 9000)),
        "Gas under the drive", (("gas", 2, 2000), ("drive", 0, 2500)),
        "Gas under the path", (("gas", 1, 3500), ("path", 0, 300, 1)),
        "Sewer under gas", (("sewer", 0, 1000), ("gas", 1, 6500)),
        "Fence under the garden wall's coping", (("fence", 0, 500), ("garden wall", 0, 3000)),
    )
    session.note("10. Crossings that open both ways, while the axis on top runs through")
    run_tool(
        session, "OC",
        "Drain and sewer, below the road", (("drain", 0, 17500), ("sewer", 0, 13000)),
        "Bathroom wall and dressing room wall", (("bath", 0, 3500), ("dressing", 0, 4000)),
    )
    session.note("11. Corners of garage, shed and raised bed")
    run_tool(session, "CJ", *garage_corners(), *shed_corners(), *bed_corner())
    session.note("12. Garden wall: a vertex where a gate is to be set, to be moved later.")
    run_tool(session, "AV", (("garden wall", 2, 3000),))
    session.answer("ZOOM", "E")
    return session
