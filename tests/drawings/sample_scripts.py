#!/usr/bin/python3
"""Play the sample scripts on the floor plan and compare with what the plan says they leave behind.

    sample_scripts.py PROGRAM

The expected lists come from the plan's geometry, not from the program. All
other multilines have to stay as they were, and an audit may find nothing new.
"""

import math
import pathlib
import subprocess
import sys
import tempfile

from audit import faults
from lists import lists, load

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
sys.path.insert(0, str(SAMPLES))
from make_floorplan import make_drawing  # noqa: E402
from make_scripts import SCRIPTS  # noqa: E402

PLAN = SAMPLES / "floorplan.dxf"
# Picks are rounded to a thousandth in x and y, so a distance on a slanting wall may be off by that much.
TOLERANCE = 0.001


def line_lists(path):
    return {
        entity["handle"]: [[element["line"] for element in vertex["elements"]] for vertex in entity["vertices"]]
        for entity in lists(load(path))["multilines"]
    }


def alike(left, right, tolerance):
    if isinstance(left, list):
        return len(left) == len(right) and all(alike(a, b, tolerance) for a, b in zip(left, right))
    return math.isclose(left, right, rel_tol=0.0, abs_tol=tolerance)


def complaints(program, name, make, before, known):
    expected = make(make_drawing()).changed()
    with tempfile.TemporaryDirectory() as scratch:
        output = pathlib.Path(scratch) / "out.dxf"
        command = [program, "run", str(PLAN), "--script", str(SAMPLES / name), "--output", str(output)]
        run = subprocess.run(command, capture_output=True, text=True, timeout=60)
        if run.returncode != 0:
            yield f"status {run.returncode}: {run.stderr.strip()}"
            return
        if not expected and output.read_bytes() != PLAN.read_bytes():
            yield "changes nothing, but saves other bytes"
        after = line_lists(output)
        if after.keys() != before.keys():
            yield f"other multilines: {after.keys() ^ before.keys()}"
            return
        for handle, values in after.items():
            wanted = expected.get(handle, before[handle])
            if not alike(values, wanted, TOLERANCE if handle in expected else 0.0):
                yield f"multiline {handle}: {values}, expected {wanted}"
        yield from (text for text in faults(output) if text not in known)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    before, known = line_lists(PLAN), faults(PLAN)
    bad = [
        f"{name}: {text}" for name, make in SCRIPTS.items()
        for text in complaints(sys.argv[1], name, make, before, known)
    ]
    print("\n".join(bad) or f"{len(SCRIPTS)} scripts left what was expected")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
