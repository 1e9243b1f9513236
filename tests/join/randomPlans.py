#!/usr/bin/env python3
"""Joins random plans and compares the result with the outline that they should have.

usage: randomPlans.py PROGRAM COUNT [FIRST_SEED] [--keep FOLDER]

For each plan: the drawn outer lines are the outline of the union of its walls, but near places that were left; the
script that was saved plays to the same bytes; joining again changes nothing. At most one place in a hundred is left.
With --keep the plans that came out wrong stay in FOLDER.
"""

import argparse
import json
import pathlib
import random
import subprocess
import sys
import tempfile

import outlines
import plans


def call(program, *arguments):
    return subprocess.run([program, *map(str, arguments)], capture_output=True, text=True, timeout=120)


def kinds_for(seed):
    """Mostly as people call it, sometimes with other kinds."""
    pick = random.Random(seed)
    if pick.random() < 0.6:
        return []
    return ["--cross", pick.choice(["closed", "open", "merged"]), "--tee", pick.choice(["closed", "open", "merged"])]


def check_plan(program, seed, folder):
    """Lines that say what is wrong, and the counts of the results."""
    plan = plans.make_plan(seed)
    source, joined, again, played, script = (folder / name for name in
                                             ("in.dxf", "joined.dxf", "again.dxf", "played.dxf", "joints.scr"))
    plans.write(plan, source)
    kinds = kinds_for(seed)
    run = call(program, "join", source, "--output", joined, "--save-script", script, "--json", *kinds)
    if run.returncode != 0:
        return [f"status {run.returncode}: {run.stderr.strip()}"], {}
    report = json.loads(run.stdout)
    counts = report["counts"]
    wrong = []
    if len(report["joints"]) != plan.joints:
        wrong.append(f"{len(report['joints'])} places found for {plan.joints}")
    width = max(wall.half() for wall in plan.walls) * 2
    forgiven = [(complex(*joint["at"][:2]), 6 * width) for joint in report["joints"] if joint["result"] == "left"]
    upper = outlines.overlaps(plan) if "closed" in kinds else []
    listing = json.loads(call(program, "list", joined, "--json").stdout)
    wrong += outlines.differences(plan, listing, forgiven, upper)

    call(program, "run", source, "--script", script, "--output", played)
    if not played.exists() or played.read_bytes() != joined.read_bytes():
        wrong.append("the script plays to other bytes")
    call(program, "join", joined, "--output", again, *kinds)
    if not again.exists() or again.read_bytes() != joined.read_bytes():
        wrong.append("joining again changes bytes")
    return wrong, counts


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("count", type=int)
    parser.add_argument("first", type=int, nargs="?", default=0)
    parser.add_argument("--keep", type=pathlib.Path)
    settings = parser.parse_args()
    places = left = bad = 0
    for seed in range(settings.first, settings.first + settings.count):
        with tempfile.TemporaryDirectory() as scratch:
            folder = pathlib.Path(scratch)
            wrong, counts = check_plan(settings.program, seed, folder)
            places += sum(counts.get(result, 0) for result in ("joined", "already", "left", "unasked"))
            left += counts.get("left", 0)
            if wrong:
                bad += 1
                print(f"seed {seed}: {len(wrong)} wrong; " + "; ".join(wrong[:3]))
            if settings.keep and (wrong or counts.get("left")):
                kept = settings.keep / f"plan{seed}"
                kept.mkdir(parents=True, exist_ok=True)
                for file in folder.iterdir():
                    (kept / file.name).write_bytes(file.read_bytes())
    print(f"{settings.count} plans, {bad} wrong, {places} places, {left} left")
    sys.exit(1 if bad or not places or left * 100 > places else 0)


if __name__ == "__main__":
    main()
