#!/usr/bin/env python3
"""Checks that all builds of orvex-batch write the same drawings, byte for byte.

usage: sameDrawings.py LIST PROGRAM PROGRAM...

Each line of LIST names a drawing and a script, relative to LIST's folder; '#' begins a comment. The first program
is the one that the others are compared with. A program has to say and to write the same, and to end alike.
"""

import pathlib
import subprocess
import sys
import tempfile


def read_list(path):
    runs = []
    for line in path.read_text(encoding="utf-8").splitlines():
        words = line.split("#")[0].split()
        if words:
            drawing, script = words
            runs.append((path.parent / drawing, path.parent / script))
    return runs


def play(program, drawing, script):
    """Exit status, printed text and the drawing written, None where there is none."""
    with tempfile.TemporaryDirectory() as scratch:
        output = pathlib.Path(scratch) / "out.dxf"
        run = subprocess.run(
            [program, "run", str(drawing), "--script", str(script), "--output", str(output)],
            stdin=subprocess.DEVNULL, capture_output=True, timeout=300)
        return run.returncode, run.stdout, output.read_bytes() if output.exists() else None


def main():
    runs = read_list(pathlib.Path(sys.argv[1]))
    programs = [str(pathlib.Path(program).resolve()) for program in sys.argv[2:]]
    if not runs or len(programs) < 2:
        sys.exit("sameDrawings: nothing to compare")
    bad = 0
    for drawing, script in runs:
        expected = play(programs[0], drawing, script)
        if expected[2] is None:
            print(f"{drawing.name} {script.name}: nothing written, status {expected[0]}", file=sys.stderr)
            bad += 1
            continue
        for program in programs[1:]:
            for what, left, right in zip(("status", "text", "drawing"), expected, play(program, drawing, script)):
                if left != right:
                    print(f"{drawing.name} {script.name}: another {what} from {program}", file=sys.stderr)
                    bad += 1
    print(f"{len(runs)} runs by {len(programs)} builds, {bad} differences")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
