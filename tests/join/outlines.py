"""Compares what a joined plan draws with the union of the strips that its walls should cover.

The union is made by an independent polygon library on integers about the plan's middle.
"""

import pyclipper

from plans import free_ends, outline

UNITS = 1e5  # integers to a drawing unit
EPSILON = 2e-3  # drawing units, for plans near the origin


def tolerance(plan):
    """Far off, the tools' rounding is more: some 1e-9 of the coordinates, at 15 degrees four times that."""
    return max(EPSILON, 4e-9 * abs(plan.centre))



def scaled(points, centre):
    return [(round((p.real - centre.real) * UNITS), round((p.imag - centre.imag) * UNITS)) for p in points]


def union(plan):
    """Edges of the union as pairs of complex points about the plan's centre, in drawing units, and its paths."""
    clipper = pyclipper.Pyclipper()
    for wall in plan.walls:
        clipper.AddPaths(strip_paths(wall, plan.centre), pyclipper.PT_SUBJECT, True)
    paths = clipper.Execute(pyclipper.CT_UNION, pyclipper.PFT_NONZERO, pyclipper.PFT_NONZERO)
    edges = []
    for path in paths:
        points = [complex(x, y) / UNITS for x, y in path]
        edges += [(a, b) for a, b in zip(points, points[1:] + points[:1]) if a != b]
    return edges, paths


def strip_paths(wall, centre):
    """The area of a wall's strip: one path, or outer and inner path of a ring."""
    paths = [scaled(loop, centre) for loop in outline(wall)]
    paths.sort(key=lambda path: -abs(pyclipper.Area(path)))
    if len(paths) == 1:
        return [path if pyclipper.Orientation(path) else path[::-1] for path in paths]
    ring = pyclipper.Pyclipper()
    ring.AddPath(paths[0], pyclipper.PT_SUBJECT, True)
    ring.AddPath(paths[1], pyclipper.PT_CLIP, True)
    return ring.Execute(pyclipper.CT_DIFFERENCE, pyclipper.PFT_NONZERO, pyclipper.PFT_NONZERO)


def overlaps(plan):
    """The areas that two strips share, their edges included: there the upper wall of a closed joint goes on."""
    strips = [strip_paths(wall, plan.centre) for wall in plan.walls]
    shared = []
    for i, first in enumerate(strips):
        for second in strips[i + 1:]:
            both = pyclipper.Pyclipper()
            both.AddPaths(first, pyclipper.PT_SUBJECT, True)
            both.AddPaths(second, pyclipper.PT_CLIP, True)
            shared += both.Execute(pyclipper.CT_INTERSECTION, pyclipper.PFT_NONZERO, pyclipper.PFT_NONZERO)
    grown = pyclipper.PyclipperOffset()
    grown.AddPaths(shared, pyclipper.JT_MITER, pyclipper.ET_CLOSEDPOLYGON)
    return grown.Execute(tolerance(plan) * UNITS)


def drawn(multiline, centre, elements, epsilon):
    """The drawn stretches of some elements, as pairs of complex points about the centre."""
    vertices = multiline["vertices"]
    closed = bool(multiline["flags"] & 2)
    places = [[complex(*v["position"][:2]) - centre + complex(*v["miter"][:2]) * e["line"][0] if e["line"] else None
               for e in v["elements"]] for v in vertices]
    stretches = []
    for i, vertex in enumerate(vertices[:len(vertices) if closed else len(vertices) - 1]):
        for j in elements:
            line = vertex["elements"][j]["line"]
            start, stop = places[i][j], places[(i + 1) % len(vertices)][j]
            if not line or start is None or stop is None or start == stop:
                continue
            direction = (stop - start) / abs(stop - start)
            stops = line[1:]
            if len(stops) % 2:
                stops = stops + [abs(stop - start)]
            for low, high in zip(stops[::2], stops[1::2]):
                if high - low > epsilon:
                    stretches.append((start + direction * low, start + direction * high))
    return stretches


def uncovered(edge, others, epsilon):
    """Intervals of an edge that no collinear one of the others covers, longer than the tolerance."""
    start, stop = edge
    length = abs(stop - start)
    direction = (stop - start) / length
    covered = []
    for a, b in others:
        u, v = ((p - start) * direction.conjugate() for p in (a, b))
        low, high = sorted((u.real, v.real))
        if high < 0 or low > length:
            continue
        # Distance at the places that lie beside the edge.
        if high - low < epsilon:
            continue
        slope = (v.imag - u.imag) / (v.real - u.real)
        ends = [u.imag + slope * (min(max(x, 0.0), length) - u.real) for x in (low, high)]
        if max(map(abs, ends)) < epsilon:
            covered.append((low, high))
    covered.sort()
    gaps, reached = [], 0.0
    for low, high in covered + [(length, length)]:
        if low - reached > 2 * epsilon:
            gaps.append((start + direction * reached, start + direction * min(low, length)))
        reached = max(reached, high)
    return gaps


def near(place, forgiven):
    return any(abs(place - centre) < radius for centre, radius in forgiven)


def differences(plan, listing, forgiven=(), upper=()):
    """What a joined plan draws wrongly: lines of text. `forgiven`: (place, radius) of places that were left apart;
    `upper`: paths within which more may be drawn than the outline."""
    centre, epsilon = plan.centre, tolerance(plan)
    edges, paths = union(plan)
    caps = [(a - centre, b - centre) for wall in plan.walls for a, b in free_ends(wall)]
    styles = {style["name"]: [e["offset"] for e in style["elements"]] for style in listing["styles"]}
    outer, inner = [], []
    for multiline in listing["multilines"]:
        offsets = styles[multiline["style"]]
        ends = {offsets.index(max(offsets)), offsets.index(min(offsets))}
        outer += drawn(multiline, centre, ends, epsilon)
        inner += drawn(multiline, centre, set(range(len(offsets))) - ends, epsilon)
    forgiven = [(place - centre, radius) for place, radius in forgiven]
    wrong = []
    for what, some, others in (("drawn, but no outline", outer, edges), ("outline, but not drawn", edges, outer + caps)):
        for piece in some:
            for a, b in uncovered(piece, others, epsilon):
                middle = (a + b) / 2
                if near(middle, forgiven) or covers(upper, middle):
                    continue
                wrong.append(f"{what}: {abs(b - a):.4f} at {middle + centre:.3f}")
    for a, b in inner:
        for place in (a + (b - a) * 1e-6, (a + b) / 2, b + (a - b) * 1e-6):
            if not near(place, forgiven) and not covers(paths, place):
                wrong.append(f"an inner line outside at {place + centre:.3f}")
                break
    return wrong


def covers(paths, place):
    """Whether a place lies in one of the paths or on its edge; holes count as outside."""
    count = 0
    point = (round(place.real * UNITS), round(place.imag * UNITS))
    for path in paths:
        where = pyclipper.PointInPolygon(point, path)
        if where == -1:
            return True
        count += where
    return count % 2 == 1
