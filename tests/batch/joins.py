#!/usr/bin/python3
"""Whole plans joined by orvex-batch join: joins.py PROGRAM

A hand-made case a row, all cases of one way of drawing in one plan: what is
counted has to stay the same when the lines are drawn the other way round and
far from the origin. What was joined is joined for a second run, and its own
script makes the same bytes.
"""

import json
import math
import pathlib
import sys
import tempfile

import ezdxf

from program import Report, call, play

W = 200.0  # width of a wall where a case says nothing else; the tolerance is half of it
STEP = 40000.0  # from case to case


class Wall:
    def __init__(self, *points, width=W, just=1, closed=False):
        self.points, self.width, self.just, self.closed = points, width, just, closed


def at_angle(degrees, length, x=0.0, y=0.0):
    angle = math.radians(degrees)
    return x + length * math.cos(angle), y + length * math.sin(angle)


def crossing(degrees):
    return [Wall((-6000, 0), (6000, 0)), Wall(at_angle(degrees + 180, 6000), at_angle(degrees, 6000))]


BAR = Wall((-5000, 0), (5000, 0))
RING = Wall((-3000, -3000), (3000, -3000), (3000, 3000), (-3000, 3000), closed=True)


def stem(end, x=0, side=1, **more):
    """A stem from far off whose end lies `end` from the bar's axis."""
    return Wall((x, side * 5000), (x, side * end), **more)


def grid():
    return [Wall((x, -4000), (x, 4000)) for x in (-3000, -1000, 1000, 3000)] + [
        Wall((-4000, y), (4000, y)) for y in (-3000, -1000, 1000, 3000)
    ]


def frame(past=0.0):
    a = 3000 + past
    return [
        Wall((-a, -3000), (a, -3000)),
        Wall((-a, 3000), (a, 3000)),
        Wall((-3000, -a), (-3000, a)),
        Wall((3000, -a), (3000, a)),
    ]


def inner():
    return [Wall((x, -3000), (x, 3000)) for x in (-1000, 1000)] + [Wall((-3000, y), (3000, y)) for y in (-1000, 1000)]


def corner(degrees, leg, width=W, other=W):
    return [Wall((0, 0), (leg, 0), width=width), Wall((0, 0), at_angle(degrees, leg), width=other)]


# Name, walls, crosses, tees, corners, left.
CASES = [
    *[(f"cross at {a}", crossing(a), 1, 0, 0, 0) for a in (90, 60, 30, 15)],
    ("four by four", grid(), 16, 0, 0, 0),
    ("frame with inner walls", frame() + inner(), 4, 8, 4, 0),
    ("ring with inner walls", [RING] + inner(), 4, 8, 0, 0),
    ("frame 99 short", frame(-199), 0, 0, 4, 0),
    ("frame 101 short", frame(-201), 0, 0, 0, 0),
    ("frame 99 past", frame(199), 0, 0, 4, 0),
    ("frame 101 past", frame(201), 4, 0, 0, 0),
    *[(f"stem at {e}", [BAR, stem(e)], 0, 1, 0, 0) for e in (-100, 0, 100, 199, -199)],
    ("stem 101 short", [BAR, stem(201)], 0, 0, 0, 0),
    ("stem 101 through", [BAR, stem(-201)], 1, 0, 0, 0),
    *[
        (f"stem at {e}, lopsided bar", [Wall((-5000, 0), (5000, 0), just=0), stem(e)], 0, 1, 0, 0)
        for e in (0, 1e-9, -1e-9, 1e-6, -1e-6)
    ],
    ("stems face to face", [BAR, stem(0), stem(0, side=-1)], 0, 2, 0, 0),
    ("stems nearly face to face", [BAR, stem(0), stem(0, x=100, side=-1)], 0, 2, 0, 0),
    ("stems 201 apart", [BAR, stem(0), stem(0, x=201)], 0, 2, 0, 0),
    (
        "stems leaning apart",
        [BAR, Wall(at_angle(135, 5000, x=-500), (-500, 0)), Wall(at_angle(45, 5000, x=500), (500, 0))],
        0,
        2,
        0,
        0,
    ),
    ("three ends", [Wall((0, 0), at_angle(a, 4000)) for a in (90, 210, 330)], 0, 0, 0, 1),
    ("four ends", [Wall((0, 0), at_angle(a, 4000)) for a in (0, 90, 180, 270)], 0, 0, 0, 1),
    (
        "triangle",
        [
            Wall((0, 0), (4000, 0)),
            Wall((4000, 0), at_angle(60, 4000)),
            Wall(at_angle(60, 4000), (0, 0)),
        ],
        0,
        0,
        3,
        0,
    ),
    (
        "pinwheel",
        [
            Wall((-3000, -1000), (1000, -1000)),
            Wall((1000, -3000), (1000, 1000)),
            Wall((3000, 1000), (-1000, 1000)),
            Wall((-1000, 3000), (-1000, -1000)),
        ],
        0,
        4,
        0,
        0,
    ),
    (
        "partition short at both ends",
        [BAR, Wall((-5000, 3000), (5000, 3000)), Wall((0, 160), (0, 2840))],
        0,
        2,
        0,
        0,
    ),
    (
        "ten stems",
        [BAR] + [stem(0, x=-4500 + 1000 * i, side=1 if i % 2 else -1) for i in range(10)],
        0,
        10,
        0,
        0,
    ),
    ("corner at 15, long legs", corner(15, 9 * W), 0, 0, 1, 0),
    ("corner at 15, short legs", corner(15, 700), 0, 0, 0, 1),
    *[(f"corner at {a}", corner(a, 4000), 0, 0, 1, 0) for a in (160, 175)],
    ("corner at 179, legs too short", corner(179, 4000), 0, 0, 0, 1),
    ("corner at 179", corner(179, 12000), 0, 0, 1, 0),
    *[(f"corner of 1 to 2 at {a}", corner(a, 4000, other=400), 0, 0, 1, 0) for a in (135, 160)],
    ("corner at 175, unequal", corner(175, 4000, other=400), 0, 0, 0, 1),
    ("in one line, a gap", [Wall((-4000, 0), (-25, 0)), Wall((25, 0), (4000, 0))], 0, 0, 0, 1),
    ("in one line, touching", [Wall((-4000, 0), (0, 0)), Wall((0, 0), (4000, 0))], 0, 0, 0, 1),
    ("in one line, overlapping", [Wall((-4000, 0), (25, 0)), Wall((-25, 0), (4000, 0))], 0, 0, 0, 1),
    ("twice", [BAR, BAR], 0, 0, 0, 1),
    ("wholly inside", [BAR, Wall((-1000, 0), (1000, 0))], 0, 0, 0, 1),
    ("parallel and overlapping", [BAR, Wall((-5000, 190), (5000, 190))], 0, 0, 0, 1),
    *[(f"parallel at {y}", [BAR, Wall((-5000, y), (5000, y))], 0, 0, 0, n) for y, n in ((199.999, 1), (200, 0))],
    ("cross on a bend", [Wall((0, 5000), (0, 0), (5000, 0)), Wall((-4000, -4000), (4000, 4000))], 0, 0, 0, 1),
    ("tee on a vertex", [Wall((-5000, 0), (0, 0), (5000, 0)), stem(-50)], 0, 0, 0, 1),
    ("tee too near to a bend", [Wall((0, 4000), (0, 0), (5000, 0)), stem(0, x=50)], 0, 0, 0, 1),
    *[
        (f"foot {x} from the bar's end", [Wall((-5000, 0), (x, 0)), stem(0)], 0, int(x == 400), int(x < 400), 0)
        for x in (60, 150, 400)
    ],
    ("four through one point", [Wall(at_angle(a + 180, 5000), at_angle(a, 5000)) for a in (0, 45, 90, 135)], 0, 0, 0, 1),
    ("stems from one foot", [BAR] + [Wall(at_angle(a, 5000), (0, 0)) for a in (45, 135)], 0, 0, 0, 1),
    ("facing stems, both through", [BAR, stem(-190), stem(-190, x=30, side=-1)], 0, 2, 0, 0),
    ("shorter than the bar is wide", [BAR, Wall((0, 50), (0, -50))], 0, 0, 0, 1),
    ("the nearest of two bars", [BAR, Wall((-5000, 260), (5000, 260)), stem(390)], 0, 1, 0, 0),
    ("parallel and apart", [BAR, Wall((-5000, 200.001), (5000, 200.001))], 0, 0, 0, 0),
    (
        "tee at 15",
        [Wall((-2500, 0), (2500, 0)), Wall(at_angle(15, 6000), (0, 0))],
        0,
        1,
        0,
        0,
    ),
    ("tee well inside a bend", [Wall((0, 4000), (0, 0), (5000, 0)), stem(0, x=900)], 0, 1, 0, 0),
    ("a six", [Wall((0, 4000), (0, -2000), (2000, -2000), (2000, 0), (-50, 0))], 0, 1, 0, 0),
    ("an eight", [Wall((-2000, -2000), (2000, 2000), (2000, -2000), (-2000, 2000))], 1, 0, 0, 0),
    (
        "open square",
        [Wall((-50, 0), (3000, 0), (3000, 3000), (0, 3000), (0, -50))],
        0,
        0,
        1,
        0,
    ),
    ("hairpin, legs apart", [Wall((0, 0), (4000, 0), (4000, 400), (0, 400))], 0, 0, 0, 0),
    ("ring's last side as bar", [RING, Wall((-6000, 500), (-3000, 500))], 0, 1, 0, 0),
    (
        "two rings",
        [RING, Wall((0, -1000), (6000, -1000), (6000, 1000), (0, 1000), closed=True)],
        2,
        0,
        0,
        0,
    ),
    *[
        (
            f"widths {a} and {b}",
            [Wall((-5000, 0), (5000, 0), width=a), Wall((0, 5000), (0, -5000), width=b)],
            1,
            0,
            0,
            0,
        )
        for a, b in ((50, 100), (400, 50), (100, 400))
    ],
    *[
        (
            f"tee of {a} on {b}",
            [Wall((-5000, 0), (5000, 0), width=b), stem(0, width=a)],
            0,
            1,
            0,
            0,
        )
        for a, b in ((50, 400), (400, 50))
    ],
    ("corner of 50 and 400", corner(70, 4000, width=50, other=400), 0, 0, 1, 0),
    *[
        (
            f"justified {a} and {b}",
            [Wall((-5000, 0), (5000, 0), just=a), stem(60, just=b)],
            0,
            1,
            0,
            0,
        )
        for a in (0, 2)
        for b in (0, 2)
    ],
]

# Ways to draw the same plan: lines as told or reversed, and how far off.
WAYS = [(False, 0.0, 0.0), (True, 0.0, 0.0), (False, 1e6, -2e6), (True, -1e6, 1e6 / 3)]


def draw(path, walls_with_shifts):
    document = ezdxf.new("R2000")
    space = document.modelspace()
    for wall, dx, dy, reverse in walls_with_shifts:
        points = [(x + dx, y + dy) for x, y in wall.points]
        if reverse:
            points.reverse()
        mline = space.add_mline(points, close=wall.closed, dxfattribs={"justification": wall.just, "scale_factor": wall.width})
        mline.set_justification(wall.just)
        mline.update_geometry()
    document.saveas(path)


def joined(program, drawing, *options):
    run = call(program, "join", drawing, "--json", *options)
    assert run.returncode == 0, run.stderr
    return json.loads(run.stdout)


def count_of_case(joints, kinds, result):
    return sum(j["result"] == result and (kinds is None or j["kind"] in kinds) for j in joints)


def check_cases(report, program, folder, way):
    reverse, dx, dy = way
    plan, out, script, again = (folder / name for name in ("plan.dxf", "out.dxf", "join.scr", "again.dxf"))
    draw(plan, [(w, dx + i * STEP, dy, reverse) for i, case in enumerate(CASES) for w in case[1]])
    joints = joined(program, plan, "--output", out, "--save-script", script)["joints"]
    for i, (name, _, *wanted) in enumerate(CASES):
        here = [j for j in joints if abs(j["at"][0] - dx - i * STEP) < STEP / 2]
        got = [count_of_case(here, [kind], "joined") for kind in ("cross", "tee", "corner")]
        got.append(count_of_case(here, None, "left"))
        reasons = [j["reason"]["code"] for j in here if j["result"] == "left"]
        report.check(got == wanted, f"{name}, {way}: {got} {reasons} for {wanted}")
    replay = call(program, "run", plan, "--script", script, "--output", again)
    report.check(replay.returncode == 0, f"{way}: the script can't be played: {replay.stderr}")
    report.check(replay.returncode == 0 and again.read_bytes() == out.read_bytes(), f"{way}: the script makes other bytes")
    second = joined(program, out, "--output", again)
    report.check(second["counts"]["joined"] == 0, f"{way}: joined twice: {[j for j in second['joints'] if j['result'] == 'joined']}")
    report.check(again.read_bytes() == out.read_bytes(), f"{way}: a second run changes bytes")


def check_kinds(report, program, folder):
    """Every kind of cross and tee, by call and by command, and taken back."""
    plan, out, played = (folder / name for name in ("plan.dxf", "out.dxf", "played.dxf"))
    walls = grid() + [Wall((-8000, -6000), (8000, -6000)), Wall((-6000, 4000), (-6000, -6050), width=300)]
    draw(plan, [(wall, 0, 0, i % 2) for i, wall in enumerate(walls)])
    for kind in ("closed", "open", "merged", "none"):
        got = joined(program, plan, "--cross", kind, "--tee", kind, "--corners", "no", "--output", out)
        wanted = "unasked" if kind == "none" else "joined"
        report.check(got["counts"][wanted] == 17 == len(got["joints"]), f"{kind}: {got['counts']}")
        # Whatever the kind was, it is joined for any other.
        again = joined(program, out)["counts"]
        report.check(again["already" if kind != "none" else "joined"] == 17, f"{kind}, again: {again}")
        script = f"MLJOIN\n\nCross\n{kind}\nT\n90\nTee\n{kind}\nCO\nno\n\n"
        play(program, plan, script, played)
        report.check(played.read_bytes() == out.read_bytes(), f"{kind}: MLJOIN makes other bytes than join")
        play(program, plan, script + "U\n", played)
        report.check(played.read_bytes() == plan.read_bytes(), f"{kind}: U doesn't take MLJOIN back")
    handles = joined(program, plan)["joints"][0]["handles"]
    run = play(program, plan, "MLJOIN\n#" + "\n#".join(handles) + "\n\n\n", played)
    report.check("1 joined, 0 left." in run.stdout, f"two walls selected: {run.stdout[-80:]}")


def check_frames(report, program, folder):
    """A turned user coordinate system, in which the script's points are, changes nothing."""
    plan, out, script, again = (folder / name for name in ("plan.dxf", "out.dxf", "join.scr", "again.dxf"))
    walls = frame(-150) + inner() + [stem(0, x=500)]
    draw(plan, [(wall, 1e5 / 3, 0, False) for wall in walls])
    document = ezdxf.readfile(plan)
    document.header["$UCSORG"] = (11.1, -7.7, 0)
    document.header["$UCSXDIR"] = (*at_angle(37, 1), 0)
    document.header["$UCSYDIR"] = (*at_angle(127, 1), 0)
    document.saveas(plan)
    counts = joined(program, plan, "--output", out, "--save-script", script)["counts"]
    report.check(counts["joined"] > 12 and counts["left"] == 0, f"in a turned system: {counts}")
    report.check("MLEND" in script.read_text(), "no end is moved in a turned system")
    call(program, "run", plan, "--script", script, "--output", again)
    report.check(again.read_bytes() == out.read_bytes(), "the script makes other bytes in a turned system")


def check_layers(report, program, folder):
    plan = folder / "plan.dxf"
    document = ezdxf.new("R2000")
    for name in ("walls", "frozen", "locked", "off"):
        layer = document.layers.add(name)
        if name != "walls":
            {"frozen": layer.freeze, "locked": layer.lock, "off": layer.off}[name]()
        for points in (((-50, 0), (50, 0)), ((0, -50), (0, 50))):
            document.modelspace().add_mline(points, dxfattribs={"layer": name})
    document.saveas(plan)
    for options in ([], ["--layer", "WALLS"], ["--layer", "walls", "--layer", "frozen", "--layer", "frozen"]):
        run = call(program, "join", plan, "--json", *options)
        report.check(json.loads(run.stdout)["counts"]["joined"] == 1, f"{options}: {run.stdout}")
        told = run.stderr.count("'frozen'")
        report.check(told == len(options) // 5, f"{options}: a withheld layer is told {told} times")
    report.check(joined(program, plan, "--layer", "locked")["joints"] == [], "a locked layer is joined")


def check_odd_input(report, program, folder):
    """What can't be called, and what there is nothing to join in."""
    plan, out, script = (folder / name for name in ("plan.dxf", "out.dxf", "join.scr"))
    draw(plan, [])
    got = joined(program, plan, "--output", out, "--save-script", script)
    report.check(got["joints"] == [] and not any(got["counts"].values()), f"an empty drawing: {got}")
    report.check(out.read_bytes() == plan.read_bytes(), "an empty drawing isn't kept")
    draw(plan, [(wall, 0, 0, False) for wall in frame()])
    out.unlink()
    script.unlink()
    before = plan.read_bytes()
    wrong = [("--tolerance", text) for text in ("-1", "wide", "nan", "1e999", "")]
    wrong += [("--cross", "big"), ("--tee", "corner"), ("--corners", "maybe"), ("--layer", "nowhere")]
    for option in wrong:
        run = call(program, "join", plan, *option, "--output", out, "--save-script", script)
        report.check(run.returncode == 2 and run.stderr.startswith("orvex-batch: "), f"{option}: {run.returncode}")
    for over in (plan, out):
        run = call(program, "join", plan, "--output", out, "--save-script", over)
        report.check(run.returncode == 2, f"a script over a drawing: {run.returncode}")
    run = call(program, "join", plan, "--save-script", "-", "--json")
    report.check(json.loads(run.stderr)["counts"]["joined"] == 4, f"beside a printed script: {run.stderr}")
    report.check(play(program, plan, run.stdout, out).returncode == 0, "a printed script can't be played")
    out.unlink()
    run = call(program, "join", plan, "--module", folder / "nowhere.omx", "--output", out)
    report.check(run.returncode == 5, f"no module: {run.returncode}")
    run = call(program, "join", plan, "--output", folder / "nowhere" / "out.dxf", "--save-script", script)
    report.check(run.returncode == 4, f"no folder: {run.returncode}")
    report.check(not out.exists() and not script.exists(), "something was left behind")
    joined(program, plan)
    report.check(plan.read_bytes() == before, "a look changes the drawing")
    style = ezdxf.readfile(plan).mline_styles.get("Standard").dxf.handle.encode()
    plan.write_bytes(before.replace(b"340\n" + style + b"\n", b"340\nFFFF\n").replace(b"\nStandard\n", b"\nElse\n"))
    run = call(program, "join", plan, "--json")
    report.check(run.returncode == 0 and json.loads(run.stdout)["counts"]["style"] == 4, f"without a style: {run.stdout}")


def main():
    program = pathlib.Path(sys.argv[1])
    report = Report()
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        for way in WAYS:
            check_cases(report, program, folder, way)
        check_kinds(report, program, folder)
        check_frames(report, program, folder)
        check_layers(report, program, folder)
        check_odd_input(report, program, folder)
    report.finish()


if __name__ == "__main__":
    main()
