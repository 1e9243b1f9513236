"""Drawings with multilines, read and edited from Python.

    import orvex

    plan = orvex.open("flat.dxf")
    for wall in plan.multilines:
        print(wall.layer, wall.length)
    print(plan.join().counts["joined"])
    plan.save("joined.dxf")

All work is done by the program ``orvex-batch``, which the variable ``ORVEX_BATCH`` of the
environment names, or which is found in the path. What fails raises a subclass of `OrvexError`
with the file and the line.
"""

from .drawing import Drawing, open
from .errors import (
    CallError,
    InterruptedRunError,
    MissedPickError,
    OrvexError,
    PlayError,
    ProgramFaultError,
    ReadError,
    WriteError,
)
from .script import Script
from .values import Color, Element, Finding, Joint, JoinReport, Multiline, Style, Vertex

__all__ = [
    "CallError",
    "Color",
    "Drawing",
    "Element",
    "Finding",
    "InterruptedRunError",
    "Joint",
    "JoinReport",
    "MissedPickError",
    "Multiline",
    "OrvexError",
    "PlayError",
    "ProgramFaultError",
    "ReadError",
    "Script",
    "Style",
    "Vertex",
    "WriteError",
    "open",
]
