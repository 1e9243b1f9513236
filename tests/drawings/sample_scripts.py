#!/usr/bin/python3
"""Play the sample scripts on the floor plan and compare with what the plan says they leave behind.

    sample_scripts.py PROGRAM [--promote]

What cuts leave is worked out from the plan's geometry. What the other tools
leave has been looked at in pictures and is kept in expected/; --promote
writes it anew, to be reviewed before it is committed. All other multilines
have to stay as they were, an audit may find nothing new, and another reader
has to find the multilines that `orvex-batch list` finds.
"""

import argparse
import json
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

EXPECTED = pathlib.Path(__file__).parent / "expected"
PLAN = SAMPLES / "floorplan.dxf"
# Picks are rounded to a thousandth in x and y, so a distance on a slanting wall may be off by that much.
TOLERANCE = 0.001


def multilines(path):
    return {entity["handle"]: entity for entity in lists(load(path))["multilines"]}


def line_lists(entity):
    return [[element["line"] for element in vertex["elements"]] for vertex in entity["vertices"]]


def alike(left, right, tolerance):
    if isinstance(left, dict):
        return left.keys() == right.keys() and all(alike(left[key], right[key], tolerance) for key in left)
    if isinstance(left, list):
        return len(left) == len(right) and all(alike(a, b, tolerance) for a, b in zip(left, right))
    if isinstance(left, float):
        return math.isclose(left, right, rel_tol=0.0, abs_tol=tolerance)
    return left == right


def listed(program, drawing):
    run = subprocess.run([program, "list", str(drawing), "--json"], capture_output=True, text=True, check=True)
    return {entity["handle"]: entity for entity in json.loads(run.stdout)["multilines"]}


def complaints(program, name, make, before, known, promote):
    by_plan = make(make_drawing()).changed()
    golden = EXPECTED / (name + ".json")
    with tempfile.TemporaryDirectory() as scratch:
        output = pathlib.Path(scratch) / "out.dxf"
        command = [program, "run", str(PLAN), "--script", str(SAMPLES / name), "--output", str(output)]
        run = subprocess.run(command, capture_output=True, text=True, timeout=60)
        if run.returncode != 0:
            yield f"status {run.returncode}: {run.stderr.strip()}"
            return
        after = multilines(output)
        if not alike(listed(program, output), after, 0.0):
            yield "the list differs from what another reader finds"
        reshaped = {handle: entity for handle, entity in after.items()
                    if handle not in by_plan and entity != before.get(handle)}
        if promote and reshaped:
            golden.write_text(json.dumps(reshaped, indent=1) + "\n")
        expected = json.loads(golden.read_text()) if golden.exists() else {}
        if not (by_plan or expected) and output.read_bytes() != PLAN.read_bytes():
            yield "changes nothing, but saves other bytes"
        if after.keys() != before.keys():
            yield f"other multilines: {after.keys() ^ before.keys()}"
            return
        for handle, entity in after.items():
            if handle in by_plan:
                if not alike(line_lists(entity), by_plan[handle], TOLERANCE):
                    yield f"multiline {handle}: {line_lists(entity)}, expected {by_plan[handle]}"
            elif not alike(entity, expected.get(handle, before[handle]), 1e-9):
                yield f"multiline {handle} differs from {golden.name if handle in expected else 'the plan'}"
        yield from (text for text in faults(output) if text not in known)
        audit = subprocess.run([program, "audit", str(output), "--json"], capture_output=True, text=True, check=True)
        yield from (f"audit: {finding}" for finding in json.loads(audit.stdout)["findings"])


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--promote", action="store_true", help="renew expected/ by what the program does")
    options = parser.parse_args()
    before, known = multilines(PLAN), faults(PLAN)
    bad = [
        f"{name}: {text}" for name, make in SCRIPTS.items()
        for text in complaints(options.program, name, make, before, known, options.promote)
    ]
    print("\n".join(bad) or f"{len(SCRIPTS)} scripts left what was expected")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
