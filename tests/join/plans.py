"""Random floor plans whose right answer is known before anything is joined.

A plan is laid out cleanly: every wall knows where its ends belong (free, on another wall, in a corner with another end).
From the clean layout come the polygons that the walls should cover once they are joined. What is written as a drawing
is the careless version: ends too short or too long by less than the tolerance, walls reversed, entities shuffled, the
whole turned and moved away from the origin.

Points are complex numbers. A strip's sides are offsets to the left of the direction of travel.
"""

import cmath
import math
import random
from dataclasses import dataclass, field

import ezdxf

TOP, ZERO, BOTTOM = 0, 1, 2
SPARE = 0.05  # half widths that two meetings on a line keep apart


@dataclass
class Style:
    name: str
    offsets: list  # greatest first


@dataclass
class End:
    kind: str = "free"  # free, tee, corner
    other: "Wall" = None
    segment: int = 0  # of the bar
    other_end: int = 0  # of the corner's partner: 0 or -1


@dataclass(eq=False)
class Wall:
    points: list  # the chain
    style: Style
    scale: float
    justification: int
    closed: bool = False
    ends: list = field(default_factory=lambda: [End(), End()])

    def sides(self):
        """Offsets of the two outer lines, left first."""
        high, low = max(self.style.offsets), min(self.style.offsets)
        base = {TOP: high, ZERO: 0.0, BOTTOM: low}[self.justification]
        return (high - base) * self.scale, (low - base) * self.scale

    def half(self):
        left, right = self.sides()
        return (left - right) / 2

    def middle(self):
        return sum(self.sides()) / 2

    def segments(self):
        count = len(self.points)
        return [(self.points[i], self.points[(i + 1) % count]) for i in range(count if self.closed else count - 1)]

    def line(self, segment, offset):
        """A point and the direction of a parallel of a segment."""
        start, stop = self.segments()[segment]
        direction = (stop - start) / abs(stop - start)
        return start + 1j * direction * offset, direction


def crossing(first, second):
    (p, u), (q, v) = first, second
    det = (u.conjugate() * v).imag
    return p + u * (((q - p).conjugate() * v).imag / det)


def sine(first, second):
    return abs((first.conjugate() * second).imag)


def outline(wall):
    """The polygons of a wall in the clean plan: one, or outer and inner loop of a ring."""
    loops = []
    for offset in wall.sides():
        loops.append(side_points(wall, offset))
    if wall.closed:
        return loops
    return [loops[0] + loops[1][::-1]]


def side_points(wall, offset):
    count = len(wall.segments())
    points = []
    for vertex in range(len(wall.points)):
        before, after = vertex - 1, vertex
        if wall.closed or 0 < vertex < len(wall.points) - 1:
            first, second = wall.line(before % count, offset), wall.line(after % count, offset)
            straight = sine(first[1], second[1]) < 1e-9
            points.append(second[0] if straight else crossing(first, second))
        else:
            points.append(end_point(wall, 0 if vertex == 0 else -1, offset))
    return points


def end_point(wall, end, offset):
    """Where a side of a strip ends in the clean plan."""
    target = wall.ends[end]
    own = wall.line(0 if end == 0 else len(wall.segments()) - 1, offset)
    if target.kind == "tee":
        return crossing(own, target.other.line(target.segment, target.other.middle()))
    if target.kind == "corner":
        other = target.other
        sides = list(other.sides())
        index = wall.sides().index(offset)
        # Travelling through the corner, left goes on as left; ends that face each other swap sides.
        if (end == 0) == (target.other_end == 0):
            index = 1 - index
        partner = other.line(0 if target.other_end == 0 else len(other.segments()) - 1, sides[index])
        return crossing(own, partner)
    return wall.points[end] + 1j * own[1] * offset


def free_ends(wall):
    """The caps of a wall's free ends: pairs of points."""
    if wall.closed:
        return []
    left, right = wall.sides()
    return [(end_point(wall, end, left), end_point(wall, end, right))
            for end in (0, -1) if wall.ends[end].kind == "free"]


# ---- laying out ---------------------------------------------------------------------------------

class Maker:
    def __init__(self, seed):
        self.random = random.Random(seed)
        self.walls = []
        self.crosses = 0
        self.joints = 0
        self.styles = [self.make_style(i) for i in range(self.random.randint(1, 4))]

    def make_style(self, number):
        pick = self.random
        count = pick.choice([2, 2, 2, 3, 4, 5, 8, 16])
        width = pick.choice([60, 100, 150, 200, 240, 300, 365, 500])
        low = -width / 2 if pick.random() < 0.5 else -pick.uniform(0.05, 0.95) * width
        inner = sorted((low + width * pick.uniform(0.1, 0.9) for _ in range(count - 2)), reverse=True)
        return Style(f"WALL{number}", [low + width, *inner, low])

    def wall(self, points, closed=False):
        pick = self.random
        wall = Wall(list(points), pick.choice(self.styles), pick.choice([1, 1, 1, 0.5, 1.25]),
                    pick.choice([TOP, ZERO, ZERO, BOTTOM]), closed)
        self.walls.append(wall)
        return wall

    def tee(self, wall, end, bar, segment):
        wall.ends[end] = End("tee", bar, segment)

    def corner(self, a, end_a, b, end_b):
        a.ends[end_a] = End("corner", b, 0, end_b)
        b.ends[end_b] = End("corner", a, 0, end_a)

    def frame(self):
        """The outer walls, counter-clockwise; gives (wall, segment) of bottom, right, top, left."""
        pick = self.random
        width, height = pick.uniform(12000, 24000), pick.uniform(12000, 24000)
        loose = pick.choice([0.08, 0.2]) * min(width, height)
        corners = [complex(x + pick.uniform(-loose, loose), y + pick.uniform(-loose, loose))
                   for x, y in ((0, 0), (width, 0), (width, height), (0, height))]
        kind = pick.choice(["ring", "four", "chain"])
        if kind == "ring":
            ring = self.wall(corners, closed=True)
            return corners, [(ring, i) for i in range(4)]
        if kind == "four":
            sides = [self.wall([corners[i], corners[(i + 1) % 4]]) for i in range(4)]
            for i in range(4):
                self.corner(sides[i], -1, sides[(i + 1) % 4], 0)
            return corners, [(side, 0) for side in sides]
        chain = self.wall(corners)
        last = self.wall([corners[3], corners[0]])
        self.corner(chain, -1, last, 0)
        self.corner(last, -1, chain, 0)
        return corners, [(chain, 0), (chain, 1), (chain, 2), (last, 0)]

    def inner(self, corners, sides):
        pick = self.random

        def at(side, fraction):
            return corners[side] + (corners[(side + 1) % 4] - corners[side]) * fraction

        columns, rows = pick.randint(0, 3), pick.randint(0, 3)
        levels = [(i + 1) / (rows + 1) + pick.uniform(-0.03, 0.03) for i in range(rows)]
        uprights = []
        for i in range(columns):
            x = (i + 1) / (columns + 1) + pick.uniform(-0.04, 0.04)
            slant = pick.uniform(-0.1, 0.1) if columns < 3 else pick.uniform(-0.03, 0.03)
            points = [at(0, x), at(2, 1 - x - slant)]
            bends = pick.choice([0, 0, 1, 2, 3]) if levels else 0
            points[1:1] = [points[0] + (points[1] - points[0]) * (j + 1) / (bends + 1)
                           + pick.uniform(-0.05, 0.05) * abs(corners[1] - corners[0]) for j in range(bends)]
            wall = self.wall(points)
            self.tee(wall, 0, *sides[0])
            if pick.random() < 0.25 and len(points) == 2:
                wall.points[-1] = points[0] + (points[1] - points[0]) * pick.uniform(0.35, 0.8)
            else:
                self.tee(wall, -1, *sides[2])
            uprights.append(wall)
        for y in levels:
            start, stop = at(3, 1 - y), at(1, y + pick.uniform(-0.03, 0.03))
            wall = self.wall([start, stop])
            self.tee(wall, 0, *sides[3])
            target = pick.choice(uprights) if uprights and pick.random() < 0.4 else None
            segment = target and segment_met(target, start, stop)
            if segment is None or target is None:
                self.tee(wall, -1, *sides[1])
            else:
                self.tee(wall, -1, target, segment)
                wall.points[-1] = crossing(wall.line(0, 0), target.line(segment, 0))

    def stubs(self, corners, sides):
        """Short walls outside, some bent, some with one that faces them from inside, some close together."""
        pick = self.random
        for side in range(4):
            for _ in range(pick.choice([0, 0, 1, 2, 3])):
                along = corners[(side + 1) % 4] - corners[side]
                foot = corners[side] + along * pick.uniform(0.1, 0.9)
                turn = math.radians(pick.choice([90, 90, pick.uniform(15.2, 164.8), pick.uniform(40, 140)]))
                out = along / abs(along) * cmath.exp(-1j * turn)
                wall = self.stub(foot, out * pick.uniform(2500, 4000), sides[side])
                if pick.random() < 0.3:
                    wall.points.insert(0, wall.points[0] + out * cmath.exp(1j * pick.uniform(-1.5, 1.5)) * 1500)
                elif pick.random() < 0.4:
                    shift = pick.choice([0, 0, pick.uniform(-1, 1) * wall.half()])
                    self.stub(foot + shift * along / abs(along), -out * pick.uniform(1500, 2500), sides[side])
                if pick.random() < 0.3:
                    width = 2 * wall.half() + 2 * max(s.offsets[0] - s.offsets[-1] for s in self.styles)
                    beside = foot + along / abs(along) * pick.uniform(0.3, 1) * width / math.sin(turn)
                    self.stub(beside, out * pick.uniform(2500, 4000), sides[side])

    def stub(self, foot, out, side):
        wall = self.wall([foot + out, foot])
        self.tee(wall, -1, *side)
        return wall

    def court(self, corners):
        """A ring somewhere inside, which other walls may cross."""
        pick = self.random
        if pick.random() < 0.35:
            centre = corners[0] + (corners[2] - corners[0]) * pick.uniform(0.3, 0.7)
            count, turn = pick.choice([3, 4, 5, 6]), pick.uniform(0, 7)
            self.wall([centre + cmath.rect(pick.uniform(1500, 4000), turn + i * math.tau / count)
                       for i in range(count)], closed=True)

    def settle(self):
        """Puts the chain's ends where the clean plan has them, for what measures from them."""
        for wall in self.walls:
            for end in (0, -1):
                if wall.closed or wall.ends[end].kind == "free":
                    continue
                index = 0 if end == 0 else len(wall.segments()) - 1
                own = wall.line(index, wall.middle())
                target = wall.ends[end]
                if target.kind == "tee":
                    place = crossing(own, target.other.line(target.segment, target.other.middle()))
                else:
                    other = target.other
                    place = crossing(own, other.line(0 if target.other_end == 0 else len(other.segments()) - 1,
                                                     other.middle()))
                wall.points[end] = place - 1j * own[1] * wall.middle()


def segment_met(wall, start, stop):
    for index, (a, b) in enumerate(wall.segments()):
        direction = stop - start
        det = (direction.conjugate() * (b - a)).imag
        if abs(det) < 1e-9:
            continue
        along = ((a - start).conjugate() * (b - a)).imag / det
        across = ((direction.conjugate() * (start - a)).imag) / det
        if 0.2 < along <= 1 and 0.05 < across < 0.95:
            return index
    return None


# ---- which plans are fair ------------------------------------------------------------------------

def own_segment(wall, end):
    return 0 if end == 0 else len(wall.segments()) - 1


def partner(wall, end):
    """The wall and segment that an end belongs to; nothing for a free end."""
    target = wall.ends[end]
    if target.kind == "tee":
        return target.other, target.segment
    return (target.other, own_segment(target.other, target.other_end)) if target.kind == "corner" else None


def carelessness(wall, end):
    """How far from where the middles cross an end is drawn at most."""
    if wall.closed or wall.ends[end].kind == "free":
        return 0.0
    other, segment = partner(wall, end)
    s = sine(wall.line(own_segment(wall, end), 0)[1], other.line(segment, 0)[1])
    return other.half() / s + 0.95 * min(wall.half(), other.half())


def end_room(wall, segment, which):
    """How far a segment's end may lie from where the clean plan has it: an open end by carelessness, a bend by its
    miter."""
    end = ends_of(wall, segment)[which]
    if end is not None:
        return carelessness(wall, end)
    vertex = (segment + which) % len(wall.points)
    return max(abs(side_points(wall, side)[vertex] - wall.points[vertex]) for side in wall.sides())


def along(line, place):
    return ((place - line[0]) * line[1].conjugate()).real


def ends_of(wall, segment):
    """The chain's ends at a segment's start and end, None at a bend."""
    last = not wall.closed and segment == len(wall.segments()) - 1
    return 0 if segment == 0 and not wall.closed else None, -1 if last else None


def passes(wall, segment, other, other_segment):
    """Whether a segment, however carelessly drawn, goes on past another by more than the tolerance."""
    line, across = wall.line(segment, wall.middle()), other.line(other_segment, other.middle())
    start, stop = wall.segments()[segment]
    reach = other.half() / sine(line[1], across[1]) + min(wall.half(), other.half()) + 1
    at = along(line, crossing(line, across))
    return end_room(wall, segment, 0) + reach < at < abs(stop - start) - end_room(wall, segment, 1) - reach


def stays(wall, end):
    """Whether the far end of a wall's last segment is clear of what this end belongs to."""
    segment, (other, other_segment) = own_segment(wall, end), partner(wall, end)
    line, across = wall.line(segment, wall.middle()), other.line(other_segment, other.middle())
    start, stop = wall.segments()[segment]
    length = abs(stop - start) - end_room(wall, segment, 0 if end == -1 else 1)
    return length > other.half() / sine(line[1], across[1]) + min(wall.half(), other.half()) + 1


def block(wall, segment):
    """What a segment may occupy, its ends over and with the tolerance: four corners."""
    start, stop = wall.segments()[segment]
    direction = (stop - start) / abs(stop - start)
    before, after = (wall.half() + end_room(wall, segment, which) for which in (0, 1))
    left, right = wall.sides()
    return [p + 1j * direction * side for p in (start - direction * before, stop + direction * after)
            for side in (left, right)]


def apart(first, second):
    """Whether a line along an edge of one of two blocks parts them."""
    for corners in (first, second):
        for direction in (corners[1] - corners[0], corners[2] - corners[0]):
            one, two = ([(p * direction.conjugate()).real for p in block] for block in (first, second))
            if max(one) < min(two) or max(two) < min(one):
                return True
    return False


def facing(first, second):
    """Stems that come to one bar from both sides in one direction."""
    if not (first.ends[-1].kind == second.ends[-1].kind == "tee" and partner(first, -1) == partner(second, -1)):
        return False
    turn = (first.points[-1] - first.points[-2]).conjugate() * (second.points[-1] - second.points[-2])
    return turn.real < 0 and abs(turn.imag) < 1e-9 * abs(turn)


def claims(walls):
    """What meetings take of each outer line, as {(wall, segment, side): [(from, to)]}, and the number of crosses; None
    where a meeting is no clean one."""
    taken = {}
    known = set()

    def claim(wall, segment, side, crossed, open_end=None):
        line = wall.line(segment, wall.sides()[side])
        places = [along(line, crossing(line, other)) for other in crossed]
        low = -math.inf if open_end == 0 else min(places)
        taken.setdefault((wall, segment, side), []).append((low, math.inf if open_end == -1 else max(places)))

    def outer(wall, segment):
        return [wall.line(segment, offset) for offset in wall.sides()]

    for wall in walls:
        for end in (0, -1):
            if wall.closed or wall.ends[end].kind == "free":
                continue
            segment, (other, other_segment) = own_segment(wall, end), partner(wall, end)
            known |= {(wall, segment, other, other_segment), (other, other_segment, wall, segment)}
            if sine(wall.line(segment, 0)[1], other.line(other_segment, 0)[1]) < math.sin(math.radians(15)):
                return None
            lines = outer(other, other_segment)
            if wall.ends[end].kind == "tee":
                base = other.line(other_segment, other.middle())
                start, stop = wall.segments()[segment]
                near = 0 if (((start if end == -1 else stop) - base[0]) * base[1].conjugate()).imag > 0 else 1
                if not passes(other, other_segment, wall, segment) or not stays(wall, end):
                    return None
                claim(other, other_segment, near, outer(wall, segment))
                lines = [lines[near]] * 2
            else:
                if not stays(wall, end):
                    return None
                if (end == 0) == (wall.ends[end].other_end == 0):
                    lines.reverse()
            for side in (0, 1):
                claim(wall, segment, side, [lines[side]], end)
    crosses = 0
    pieces = [(wall, segment, block(wall, segment)) for wall in walls for segment in range(len(wall.segments()))]
    for i, (wall, a, own) in enumerate(pieces):
        for other, b, its in pieces[i + 1:]:
            neighbours = wall is other and (b == a + 1 or (wall.closed and a == 0 and b == len(wall.segments()) - 1))
            if neighbours or (wall, a, other, b) in known or apart(own, its) or facing(wall, other):
                continue
            flat = sine(wall.line(a, 0)[1], other.line(b, 0)[1]) < math.sin(math.radians(15))
            if flat or wall is other or not passes(wall, a, other, b) or not passes(other, b, wall, a):
                return None
            crosses += 1
            for side in (0, 1):
                claim(wall, a, side, outer(other, b))
                claim(other, b, side, outer(wall, a))
    return taken, crosses


def fair(walls):
    """The number of crosses; None where meetings reach into each other or beyond a segment."""
    found = claims(walls)
    if found is None:
        return None
    for (wall, segment, side), wanted in found[0].items():
        offset = wall.sides()[side]
        line, points = wall.line(segment, offset), side_points(wall, offset)
        wanted += [(-math.inf, along(line, points[segment]))] if wanted and min(wanted)[0] > -math.inf else []
        if max(wanted, key=lambda c: c[1])[1] < math.inf:
            wanted.append((along(line, points[(segment + 1) % len(points)]), math.inf))
        wanted.sort()
        if any(one[1] + SPARE * wall.half() > two[0] for one, two in zip(wanted, wanted[1:])):
            return None
    return found[1]


# ---- the careless version --------------------------------------------------------------------------

def spoil(maker):
    """Moves the ends along their own direction, within what the default tolerance still takes."""
    pick = maker.random
    shifts = []
    for wall in maker.walls:
        for end in (0, -1):
            target = wall.ends[end]
            if wall.closed or target.kind == "free":
                continue
            limit = carelessness(wall, end)
            own = wall.line(own_segment(wall, end), 0)
            shift = pick.choice([0.0, pick.uniform(-limit, limit), pick.uniform(-limit, limit)])
            shifts.append((wall, end, (own[1] if end == -1 else -own[1]) * shift))
    for wall, end, shift in shifts:
        wall.points[end] += shift


@dataclass
class Plan:
    walls: list  # clean, turned and moved
    careless: list  # (points, wall) in drawing order
    joints: int
    centre: complex


def make_plan(seed):
    """A fair plan of some 5 to 25 walls; the same for the same seed."""
    for attempt in range(2000):
        maker = Maker(seed * 10007 + attempt)
        corners, sides = maker.frame()
        maker.inner(corners, sides)
        maker.stubs(corners, sides)
        maker.court(corners)
        maker.settle()
        crosses = fair(maker.walls)
        if crosses is None:
            continue
        tees = sum(w.ends[e].kind == "tee" for w in maker.walls for e in (0, -1))
        corner_ends = sum(w.ends[e].kind == "corner" for w in maker.walls for e in (0, -1))
        pick = maker.random
        turn = cmath.exp(1j * math.radians(pick.choice([0, 0.18, 30, 90, pick.uniform(0, 360)])))
        move = pick.choice([0, complex(1e5, -2e5), complex(1e6, 1e6), complex(-1e6, 3e5), complex(1e7, -1e7)])
        clean = [list(w.points) for w in maker.walls]
        spoil(maker)
        careless = []
        for wall, points in zip(maker.walls, clean):
            careless.append(([p * turn + move for p in wall.points], wall))
            wall.points = [p * turn + move for p in points]
        order = list(range(len(careless)))
        pick.shuffle(order)
        return Plan(maker.walls, [reversed_or_not(pick, *careless[i]) for i in order],
                    crosses + tees + corner_ends // 2, sum(corners) / 4 * turn + move)
    raise RuntimeError(f"no fair plan for seed {seed}")


def reversed_or_not(pick, points, wall):
    """Half of the walls are drawn the other way round, with the style mirrored by justification where that works."""
    symmetric = all(math.isclose(a, -b) for a, b in zip(wall.style.offsets, reversed(wall.style.offsets)))
    if pick.random() < 0.5 and symmetric:
        other = {TOP: BOTTOM, ZERO: ZERO, BOTTOM: TOP}[wall.justification]
        return points[::-1], wall, other
    return points, wall, wall.justification


def write(plan, path):
    document = ezdxf.new("R2000")
    for style in {wall.style.name: wall.style for wall in plan.walls}.values():
        made = document.mline_styles.new(style.name)
        for offset in style.offsets:
            made.elements.append(offset)
    for points, wall, justification in plan.careless:
        document.modelspace().add_mline(
            [(p.real, p.imag) for p in points], close=wall.closed,
            dxfattribs={"style_name": wall.style.name, "scale_factor": wall.scale, "justification": justification})
    document.saveas(path)
