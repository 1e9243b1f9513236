"""Scripts for orvex-batch whose picks are worked out from the plan.

A Session writes answers and keeps the walls' line lists as the tools leave
them, so that each pick is checked against what is drawn at that moment: the
pick has to find the wall, and the tool has to match the element and segment
meant. A pick that other entities could take gets the wall's handle. Walls that
other tools than the cuts have been at keep the lists they had, so a pick there
has to stay away from what was done.
"""

import copy
import math
from dataclasses import replace

from ezdxf import path

from make_floorplan import wall_vertices
from mline_geometry import (
    add, dot, drawn_stretches, element_length, element_position, open_gap, point_along)
from plan_walls import LAYERS, WALLS

VIEW_HEIGHT_PIXELS = 1200
PICKBOX_PIXELS = 3
DRAWN = ("LINE", "ARC", "CIRCLE", "ELLIPSE", "LWPOLYLINE", "POLYLINE", "SPLINE")


def context_strokes(doc):
    """One list of polylines for each entity of the plan that is no wall; texts by their box."""
    for entity in doc.modelspace():
        if entity.dxftype() != "MLINE":
            yield list(entity_strokes(entity))


def entity_strokes(entity):
    kind = entity.dxftype()
    if kind in ("INSERT", "DIMENSION"):
        for part in entity.virtual_entities():
            yield from entity_strokes(part)
    elif kind == "MLINE":
        for part in entity.virtual_entities():
            yield from entity_strokes(part)
    elif kind in ("TEXT", "MTEXT", "ATTRIB"):
        x, y, _ = entity.dxf.insert
        height = entity.dxf.char_height if kind == "MTEXT" else entity.dxf.height
        reach = 12 * height  # generous: the width of letters is the viewer's affair
        yield [(x - height, y - reach), (x + reach, y - reach), (x + reach, y + reach), (x - height, y + reach)]
    elif kind == "HATCH":
        for outline in path.from_hatch(entity):
            yield [(p.x, p.y) for p in outline.flattening(1.0)]
    elif kind == "SOLID":
        yield [(p.x, p.y) for p in entity.vertices() + [entity.vertices()[0]]]
    elif kind in DRAWN:
        yield [(p.x, p.y) for p in path.make_path(entity).flattening(1.0)]


def meets_box(start, end, centre, reach):
    """Whether a stroke passes through the square of half size `reach` around the centre."""
    low, high = 0.0, 1.0
    for p, q, c in zip(start, end, centre):
        if p == q:
            if abs(p - c) > reach:
                return False
            continue
        first, second = sorted(((c - reach - p) / (q - p), (c + reach - p) / (q - p)))
        low, high = max(low, first), min(high, second)
    return low <= high


def matched_place(vertices, closed, pick, radius):
    """Segment and element that a tool takes from a pick: the first that fits, not the nearest."""
    count = len(vertices)
    for segment in range(count if closed else count - 1):
        for element, values in enumerate(vertices[segment].lines):
            start = element_position(vertices[segment], element)
            axis = vertices[segment].axis
            along = dot(add(pick, start, -1.0), axis)
            foot = add(start, axis, along)
            if not 0 <= along < element_length(vertices, segment, element) or math.dist(foot, pick) >= radius:
                continue
            # The offset counts as the list's first value, so places nearer to the start than it are refused.
            before = next((i for i, value in enumerate(values) if value > along), len(values))
            if (before - 1) % 2 == 1 and before > 0:
                return segment, element
    return None


class Session:
    def __init__(self, doc, handles, title):
        self.lines = ["; " + line for line in title.splitlines()]
        self.handles = handles
        self.walls = {wall.name: wall for wall in WALLS}
        self.vertices = {wall.name: wall_vertices(wall) for wall in WALLS}
        self.reshaped = set()  # walls whose lists are no longer followed
        self.context = list(context_strokes(doc))
        self.pixel = None

    def note(self, text):
        self.lines.append("; " + text)

    def answer(self, *lines):
        self.lines += lines

    def zoom(self, x, y, height):
        self.pixel = height / VIEW_HEIGHT_PIXELS
        self.answer("ZOOM", "C", f"{x:g},{y:g}", f"{height:g}")

    def tool(self, keyword):
        self.answer("-MLEDIT", keyword)

    def end_tool(self):
        self.answer("")

    def pick(self, name, segment, along, element, by_handle=False):
        """A pick on an element, square across from a place on the chain."""
        wall, vertices = self.walls[name], self.vertices[name]
        point = tuple(round(c, 3) for c in point_along(vertices, segment, element, along))
        reach = PICKBOX_PIXELS * self.pixel
        found = matched_place(vertices, wall.closed, point, reach * math.sqrt(2))
        if found != (segment, element):
            raise ValueError(f"pick {point} on {name} means {found}, not {(segment, element)}")
        text = ",".join(f"{c:.3f}".rstrip("0").rstrip(".") for c in point[:2])
        if by_handle or not self.visible(wall) or self.taken_by_others(name, point[:2], reach):
            text += f" #{self.handles[name]}"
        self.answer(text)

    def pick_gap(self, name, segment, along, element):
        """A pick where the element may be open, which finds its wall by handle only."""
        x, y = point_along(self.vertices[name], segment, element, along)[:2]
        place = ",".join(f"{c:.3f}".rstrip("0").rstrip(".") for c in (x, y))
        self.answer(f"{place} #{self.handles[name]}")
        self.reshaped.add(name)

    def lay_right(self, name):
        self.answer("MLLAY", f"#{self.handles[name]}", "")

    def edit(self, *picks):
        """The picks of a tool that reshapes walls, each a wall, segment, place on the chain and, if not 0, element."""
        for name, segment, along, *element in picks:
            self.pick(name, segment, along, *element or [0])
        self.reshaped.update(name for name, *_ in picks)

    def delete_vertex(self, name, vertex, segment, along):
        """A pick that takes the vertex out of the chain; later picks go by the chain that is left."""
        self.edit((name, segment, along))
        wall = self.walls[name]
        self.walls[name] = replace(wall, points=wall.points[:vertex] + wall.points[vertex + 1:], gaps=())
        self.vertices[name] = wall_vertices(self.walls[name])

    @staticmethod
    def visible(wall):
        return LAYERS[wall.layer][2] in ("on", "locked")

    def taken_by_others(self, name, point, reach):
        strokes = [(line[i], line[i + 1]) for lines in self.context for line in lines for i in range(len(line) - 1)]
        for other, wall in self.walls.items():
            if other != name and self.visible(wall):
                strokes += [s[4:] for s in drawn_stretches(self.vertices[other], wall.closed)]
        return any(meets_box(start[:2], end[:2], point, reach) for start, end in strokes)

    def cut(self, name, first, last, element, single=False, picked_last=None):
        """A gap from place to place, (segment, distance on the chain) each, in either order."""
        kept = copy.deepcopy(self.vertices[name])
        self.pick(name, *first, element)
        self.pick(name, *last, element if picked_last is None else picked_last)
        open_gap(self.vertices[name], *sorted((first, last)), [element] if single else None)
        return name, kept

    def undo(self, cut):
        name, kept = cut
        self.answer("UNDO")
        self.vertices[name] = kept

    def take_back(self, *cuts):
        self.answer("U")
        for name, kept in reversed(cuts):
            self.vertices[name] = kept

    def changed(self):
        """Line lists, by handle, of the walls that cuts have changed and nothing else has."""
        return {
            self.handles[name]: [vertex.lines for vertex in vertices]
            for name, vertices in self.vertices.items()
            if name not in self.reshaped and vertices != wall_vertices(self.walls[name])
        }

    def text(self):
        return "\n".join(self.lines) + "\n"
