"""Geometry of multilines, worked out from a vertex chain and a style.

Points are (x, y, z) in the world, lengths are drawing units, angles are
degrees. Nothing here knows a drawing file, so that the plan, its scripts and
the checks of both can share one set of formulas.
"""

import math
from dataclasses import dataclass, field

TOP, ZERO, BOTTOM = 0, 1, 2


@dataclass
class Element:
    offset: float
    colour: int = 256  # by layer
    linetype: str = "BYLAYER"
    rgb: int | None = None


@dataclass
class Style:
    name: str
    description: str
    elements: list
    flags: int = 0
    fill: int = 256
    start_angle: float = 90.0
    end_angle: float = 90.0


@dataclass
class Vertex:
    position: tuple
    axis: tuple
    miter: tuple
    lines: list = field(default_factory=list)  # one list per element
    areas: list = field(default_factory=list)


def add(a, b, factor=1.0):
    return tuple(p + q * factor for p, q in zip(a, b))


def dot(a, b):
    return sum(p * q for p, q in zip(a, b))


def cross(a, b):
    return (
        a[1] * b[2] - a[2] * b[1] + 0.0,
        a[2] * b[0] - a[0] * b[2] + 0.0,
        a[0] * b[1] - a[1] * b[0] + 0.0,
    )


def unit(v):
    length = math.hypot(*v)
    return tuple(c / length + 0.0 for c in v)  # + 0.0 turns -0.0 into 0.0


def turned(v, degrees, normal):
    """`v` turned counter-clockwise as seen against the normal."""
    side = cross(normal, v)
    if degrees == 90:
        return side
    angle = math.radians(degrees)
    return unit(add(tuple(c * math.cos(angle) for c in v), side, math.sin(angle)))


def build(style, points, closed, scale, justification, normal=(0.0, 0.0, 1.0)):
    """Vertices with axes, miters and unbroken line lists."""
    count = len(points)
    axes = [unit(add(points[(i + 1) % count], points[i], -1.0)) for i in range(count)]
    if not closed:
        axes[-1] = axes[-2]
    vertices = []
    for i, point in enumerate(points):
        if closed or 0 < i < count - 1:
            miter = cross(normal, unit(add(axes[i - 1], axes[i])))
        else:
            angle = style.start_angle if i == 0 else style.end_angle
            miter = turned(axes[i], angle, normal)
        vertices.append(Vertex(tuple(float(c) for c in point), axes[i], miter))
    offsets = element_offsets(style, scale, justification)
    for vertex in vertices:
        sine = dot(cross(vertex.axis, vertex.miter), normal)
        vertex.lines = [[offset / sine + 0.0, 0.0] for offset in offsets]
        vertex.areas = [[] for _ in offsets]
    return vertices


def element_offsets(style, scale, justification):
    """Distances of the elements from the chain, positive to its left."""
    offsets = [element.offset for element in style.elements]
    shift = {TOP: max(offsets), ZERO: 0.0, BOTTOM: min(offsets)}[justification]
    return [(offset - shift) * scale for offset in offsets]


def element_position(vertex, element):
    return add(vertex.position, vertex.miter, vertex.lines[element][0])


def distance_along(vertices, segment, element, along):
    """Distance on an element, from its own start, of a place on the chain.

    `along` is measured on the chain from the start vertex of the segment; the
    place on the element lies square across from there.
    """
    vertex = vertices[segment]
    start = element_position(vertex, element)
    return along - dot(add(start, vertex.position, -1.0), vertex.axis)


def point_along(vertices, segment, element, along):
    vertex = vertices[segment]
    start = element_position(vertex, element)
    return add(start, vertex.axis, distance_along(vertices, segment, element, along))


def element_length(vertices, segment, element):
    end = element_position(vertices[(segment + 1) % len(vertices)], element)
    return math.dist(element_position(vertices[segment], element), end)


def open_gap(vertices, first, last, elements=None):
    """Open a gap between two places (segment, distance on the chain).

    Gaps of an element have to come in ascending order: a new one lies after
    the others, and the segment it ends on has none when it ends beyond a vertex.
    """
    (segment, begin), (last_segment, end) = first, last
    for element in elements or range(len(vertices[0].lines)):
        head = vertices[segment].lines[element]
        begin_distance = distance_along(vertices, segment, element, begin)
        end_distance = distance_along(vertices, last_segment, element, end)
        tail_broken = segment != last_segment and len(vertices[last_segment].lines[element]) != 2
        if len(head) % 2 == 1 or begin_distance <= head[-1] or tail_broken:
            raise ValueError(f"gap at {begin} on segment {segment} is not after the ones before it")
        head.append(begin_distance)
        if segment == last_segment:
            head.append(end_distance)
            continue
        for between in range(segment + 1, last_segment):
            del vertices[between].lines[element][1:]
        vertices[last_segment].lines[element][1:] = [end_distance]


def drawn_stretches(vertices, closed):
    """Every drawn stretch as (segment, element, begin, end, start point, end point)."""
    count = len(vertices)
    for segment in range(count if closed else count - 1):
        for element, values in enumerate(vertices[segment].lines):
            length = element_length(vertices, segment, element)
            start = element_position(vertices[segment], element)
            axis = vertices[segment].axis
            breaks = values[1:] + ([length] if len(values) % 2 == 0 else [])
            for begin, end in zip(breaks[0::2], breaks[1::2]):
                yield segment, element, begin, end, add(start, axis, begin), add(start, axis, end)
