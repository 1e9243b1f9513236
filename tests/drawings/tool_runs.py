#!/usr/bin/python3
"""Each tool in a run of its own on two small walls, against results from paper.

    tool_runs.py PROGRAM

Wall A lies along the X axis, wall B runs up at x = 10 from y = -10, each with
lines at 1, 0 and -1 of its chain: A's at y = 1, 0, -1 and B's at x = 9, 10, 11.
Every case is also taken back, from within the tool and by U, played twice, and
played far from the origin.
"""

import pathlib
import subprocess
import sys
import tempfile

import ezdxf

from lists import lists, load

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))
from make_floorplan import add_vertices  # noqa: E402
from mline_geometry import Element, Style, build  # noqa: E402

STYLE = Style("TRIO", "", [Element(1.0), Element(0.0), Element(-1.0)])
FAR = 1e5
TOLERANCE = 1e-6  # of the values; at FAR a double is exact to 1.5e-11

LONG, SHORT = [(0, 0), (20, 0)], [(0, 0), (8, 0)]
UP = [(10, -10), (10, 10)]
ON_A, ON_B = (3, 1, "A"), (9, -6, "B")
WHOLE = [[1, 0], [0, 0], [-1, 0]]
GAPS = [[1, 0, 9, 11], [0, 0, 9, 11], [-1, 0, 9, 11]]

# Keyword, chain of A, picks, and for A and B the chain and the lists at vertex 0 that the tool leaves.
CASES = [
    # A crosses B from x = 9 to 11; B's lines start at y = -10, so A's y = -1 to 1 is 9 to 11 along them.
    ("CC", LONG, [ON_A, ON_B], (LONG, GAPS), (UP, WHOLE)),
    ("OC", LONG, [ON_A, ON_B], (LONG, GAPS), (UP, [GAPS[0], WHOLE[1], GAPS[2]])),
    ("MC", LONG, [ON_A, ON_B], (LONG, [GAPS[0], WHOLE[1], GAPS[2]]), (UP, [GAPS[0], WHOLE[1], GAPS[2]])),
    # The stem's chain is drawn out to B's, its lines stop at x = 9; merged, the middle one at B's middle, 10.
    ("CT", SHORT, [ON_A, ON_B], ([(0, 0), (10, 0)], [[1, 0, 9], [0, 0, 9], [-1, 0, 9]]), (UP, WHOLE)),
    ("OT", SHORT, [ON_A, ON_B], ([(0, 0), (10, 0)], [[1, 0, 9], [0, 0, 9], [-1, 0, 9]]),
     (UP, [GAPS[0], WHOLE[1], WHOLE[2]])),
    ("MT", SHORT, [ON_A, ON_B], ([(0, 0), (10, 0)], [[1, 0, 9], [0, 0, 10], [-1, 0, 9]]),
     (UP, [GAPS[0], WHOLE[1], WHOLE[2]])),
    # Both keep their starts. A's upper line goes on to B's right one, B's left one only to A's lower one.
    ("CJ", SHORT, [ON_A, ON_B], ([(0, 0), (10, 0)], [[1, 0, 11], [0, 0, 10], [-1, 0, 9]]),
     ([(10, -10), (10, 0)], [[1, 0, 9], [0, 0, 10], [-1, 0, 11]])),
    ("AV", LONG, [(5, 1, "A")], ([(0, 0), (5, 0), (20, 0)], WHOLE), (UP, WHOLE)),
    # 9 is nearer to the vertex at 8 than to the one at 20.
    ("DV", [(0, 0), (8, 0), (20, 0)], [(9.5, 1, "A")], (LONG, WHOLE), (UP, WHOLE)),
    ("CS", LONG, [(3, 1, "A"), (6, 1, "A")], (LONG, [[1, 0, 3, 6], WHOLE[1], WHOLE[2]]), (UP, WHOLE)),
    # The ends may come in either order.
    ("CA", LONG, [(6, 1, "A"), (3, 1, "A")], (LONG, [[1, 0, 3, 6], [0, 0, 3, 6], [-1, 0, 3, 6]]), (UP, WHOLE)),
    # A has a gap from 12 to 15; the picks lie beyond both ends, farther away than the pick's reach.
    ("WA", LONG, [(11.5, 1, "A"), (15.5, 1, "A")], (LONG, WHOLE), (UP, WHOLE)),
]


def make(path, chains, gap, shift):
    doc = ezdxf.new("R2013")
    record = doc.mline_styles.new("TRIO")
    for element in STYLE.elements:
        record.elements.append(element.offset, 256, "BYLAYER")
    handles = []
    for chain in chains:
        vertices = build(STYLE, [(x + shift, y + shift, 0.0) for x, y in chain], False, 1.0, 1)
        if gap and not handles:
            for values in vertices[0].lines:
                values += [12.0, 15.0]
        mline = doc.modelspace().add_mline([], dxfattribs={"style_name": "TRIO", "justification": 1})
        add_vertices(mline, vertices)
        handles.append(mline.dxf.handle)
    doc.saveas(path)
    return handles


def play(program, drawing, script, output):
    command = [program, "run", str(drawing), "--script", "-", "--output", str(output)]
    run = subprocess.run(command, input=script, capture_output=True, text=True, timeout=60)
    return f"status {run.returncode}: {run.stderr.strip()}" if run.returncode else None


def close(left, right):
    if isinstance(left, (list, tuple)):
        return len(left) == len(right) and all(close(a, b) for a, b in zip(left, right))
    return abs(left - right) <= TOLERANCE


def result(path, handle, shift):
    entity = next(e for e in lists(load(path))["multilines"] if e["handle"] == handle)
    chain = [(v["position"][0] - shift, v["position"][1] - shift) for v in entity["vertices"]]
    return chain, [element["line"] for element in entity["vertices"][0]["elements"]]


def complaints(program, case, shift, folder):
    keyword, chain, picks, *expected = case
    drawing, output, again = (folder / f"{name}.dxf" for name in ("in", "out", "again"))
    handles = dict(zip("AB", make(drawing, (chain, UP), keyword == "WA", shift)))
    lines = [f"{x + shift},{y + shift} #{handles[wall]}" for x, y, wall in picks]
    tool = "\n".join(["ZOOM", "C", f"{10 + shift},{shift}", "40", "-MLEDIT", keyword, *lines]) + "\n"
    for target in (output, again):
        wrong = play(program, drawing, tool + "\n", target)
        if wrong:
            yield wrong
            return
    if output.read_bytes() != again.read_bytes():
        yield "another result the second time"
    if output.read_bytes() == drawing.read_bytes():
        yield "nothing changed"
    for wall, wanted in zip("AB", expected):
        found = result(output, handles[wall], shift)
        if not close(found, wanted):
            yield f"{wall} is {found}, expected {wanted}"
    for name, rest in (("UNDO", "UNDO\n\n"), ("U", "\nU\n")):
        wrong = play(program, drawing, tool + rest, again)
        if wrong or again.read_bytes() != drawing.read_bytes():
            yield f"{name} doesn't give the drawing back: {wrong or 'other bytes'}"


# Script, exit status, the last line of standard output, what standard error holds.
TALKS = [
    ("-MLEDIT\nXX\n", 5, ": XX", "standard input:2: 'XX' is not a keyword on offer"),
    ("-MLEDIT\nCA\nhello\n", 5, ": hello", "standard input:3: 'hello' is not a pick"),
    ("NOWHERE\n", 5, "Command: NOWHERE", "standard input:1: there is no command"),
    ("MLEDIT\n", 5, "Command: MLEDIT", "standard input:1: the command 'MLEDIT' needs a window"),
    ("-MLEDIT\nCA\n500,500\n3,1\n10,5\n6,1\n\n", 0, "first point or [UNDO]: ", ""),
    ("-MLEDIT\nCC\n3,1\n*CANCEL*\n", 0, "second multiline: *CANCEL*", ""),
]


def talk_complaints(program, folder):
    drawing, output = folder / "in.dxf", folder / "out.dxf"
    make(drawing, (LONG, UP), False, 0)
    for script, status, last, message in TALKS:
        output.write_text("older")
        command = [program, "run", str(drawing), "--script", "-", "--output", str(output)]
        run = subprocess.run(command, input=script, capture_output=True, text=True, timeout=60)
        told = run.stdout.split("\n")[-2] if "\n" in run.stdout else run.stdout
        if run.returncode != status or not told.endswith(last) or message not in run.stderr:
            yield f"{script!r}: status {run.returncode}, {told!r}, {run.stderr!r}"
        if (output.read_text() == "older") != (status != 0):
            yield f"{script!r}: the older output was {'kept' if status == 0 else 'touched'}"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        bad = [
            f"{case[0]} at {shift:g}: {text}" for case in CASES for shift in (0, FAR)
            for text in complaints(sys.argv[1], case, shift, folder)
        ] + list(talk_complaints(sys.argv[1], folder))
    print("\n".join(bad) or f"{len(CASES)} tools and {len(TALKS)} talks went as expected")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
