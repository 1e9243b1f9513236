"""What a drawing holds, as plain values. Lengths are in drawing units."""

from __future__ import annotations

import math
from dataclasses import dataclass
from typing import Any

Point = tuple[float, float, float]


def point_of(numbers: list[float]) -> Point:
    """A point as the program writes it."""
    x, y, z = numbers
    return x, y, z


@dataclass(frozen=True)
class Color:
    """``index`` as in the drawing; ``rgb`` ("#RRGGBB") and ``book`` where it has them."""

    index: int
    rgb: str | None = None
    book: str | None = None


@dataclass(frozen=True)
class Element:
    """A line of a style; ``offset`` at scale 1."""

    offset: float
    color: Color
    linetype: str


@dataclass(frozen=True)
class Style:
    """A multiline style; angles in degrees."""

    handle: str
    name: str
    description: str
    flags: int
    start_angle: float
    end_angle: float
    fill: Color
    elements: tuple[Element, ...]

    @classmethod
    def from_json(cls, data: dict[str, Any]) -> Style:
        elements = tuple(Element(each["offset"], Color(**each["color"]), each["linetype"]) for each in data["elements"])
        return cls(data["handle"], data["name"], data["description"], data["flags"], data["startAngle"],
                   data["endAngle"], Color(**data["fill"]), elements)


@dataclass(frozen=True)
class Vertex:
    """A vertex of a chain. ``lines`` and ``areas`` have the parameters of each element."""

    position: Point
    axis: Point
    miter: Point
    lines: tuple[tuple[float, ...], ...]
    areas: tuple[tuple[float, ...], ...]


@dataclass(frozen=True)
class Multiline:
    """A multiline; ``flags`` and ``justification`` as in the drawing."""

    handle: str
    block: str
    layer: str
    style: str
    scale: float
    justification: int
    flags: int
    normal: Point
    vertices: tuple[Vertex, ...]

    @property
    def is_closed(self) -> bool:
        return bool(self.flags & 2)

    @property
    def length(self) -> float:
        """Of the chain of vertices."""
        points = [vertex.position for vertex in self.vertices]
        return sum(map(math.dist, points, points[1:] + points[:1] if self.is_closed else points[1:]))

    @classmethod
    def from_json(cls, data: dict[str, Any]) -> Multiline:
        vertices = tuple(
            Vertex(point_of(each["position"]), point_of(each["axis"]), point_of(each["miter"]),
                   tuple(tuple(element["line"]) for element in each["elements"]),
                   tuple(tuple(element["area"]) for element in each["elements"]))
            for each in data["vertices"])
        return cls(data["handle"], data["block"], data["layer"], data["style"], data["scale"],
                   data["justification"], data["flags"], point_of(data["normal"]), vertices)


@dataclass(frozen=True)
class Joint:
    """A place where multilines meet. ``code`` and ``reason`` say why it was left."""

    kind: str
    at: Point
    handles: tuple[str, ...]
    result: str
    code: str | None = None
    reason: str | None = None

    @classmethod
    def from_json(cls, data: dict[str, Any]) -> Joint:
        reason = data.get("reason", {})
        return cls(data["kind"], point_of(data["at"]), tuple(data["handles"]), data["result"], reason.get("code"),
                   reason.get("text"))


@dataclass(frozen=True)
class JoinReport:
    """What `Drawing.join` did; ``counts`` has a number for each result and each reason."""

    joints: tuple[Joint, ...]
    counts: dict[str, int]


@dataclass(frozen=True)
class Finding:
    """Where a multiline contradicts its style or itself."""

    handle: str
    vertex: int
    element: int | None
    code: str
    was: float | None
    should: float | None
    result: str
