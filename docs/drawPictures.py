#!/usr/bin/python3
"""Draw the guide's pictures of the twelve tools and of some commands, and plans before and after.

    drawPictures.py ORVEX_BATCH [--check]

Each tool's picture shows its multilines twice: left as they are, with the points given numbered, right after the tool
was played there. The results go to pictures/ next to this script and are kept there. With --check nothing is written, and
the exit status is 1 when a picture would change.
"""

import argparse
import pathlib
import subprocess
import sys
import tempfile

import ezdxf

HERE = pathlib.Path(__file__).resolve().parent
PICTURES = HERE / "pictures"
SAMPLES = HERE.parent / "samples"

SHIFT = 3400  # from the untouched multilines to those that the tool is played on
SIZE = "560x230"

# Keyword: the chains (points, style, closed), gaps to be cut beforehand as (point, point), and the picks.
BAR = ([(-1200, 0), (1200, 0)], "WALL3", False)
POST = ([(100, -900), (100, 900)], "WALL4", False)
STEM = ([(100, 900), (100, 60)], "WALL4", False)
BEND = ([(-1200, -500), (0, 500), (1200, -500)], "WALL3", False)
TOOLS = {
    "CC": ([BAR, POST], [], [(-900, 0), (160, 600)]),
    "OC": ([BAR, POST], [], [(-900, 0), (160, 600)]),
    "MC": ([BAR, POST], [], [(-900, 0), (160, 600)]),
    "CT": ([BAR, STEM], [], [(160, 800), (-900, 0)]),
    "OT": ([BAR, STEM], [], [(160, 800), (-900, 0)]),
    "MT": ([BAR, STEM], [], [(160, 800), (-900, 0)]),
    "CJ": ([([(-1200, -500), (700, -500)], "WALL3", False), ([(400, -800), (400, 800)], "WALL4", False)], [],
           [(-1000, -500), (460, 600)]),
    "AV": ([BAR], [], [(300, 0)]),
    "DV": ([BEND], [], [(-150, 375)]),
    "CS": ([BAR], [], [(-500, 120), (500, 120)]),
    "CA": ([BAR], [], [(-500, 0), (500, 0)]),
    "WA": ([BAR], [((-500, 0), (500, 0))], [(-700, 0), (700, 0)]),
}

# Commands: the chains, and the answers, points among them.
COMMANDS = {
    "EXTEND": ([BAR, ([(100, 900), (100, 450)], "WALL4", False)], [(-900, 0), "Outer", (160, 500), ""]),
    "TRIM": ([BAR, ([(100, 900), (100, -800)], "WALL4", False)], [(-900, 0), "Axis", (160, -650), ""]),
    "MLBREAK": ([BAR], [(-900, 0), (-350, 0), (450, 0)]),
    "MLCONNECT": ([([(-1200, -500), (500, -500)], "WALL3", False), ([(500, -500), (500, 800)], "WALL3", False)],
                  [(-900, -500), (500, 400)]),
    "MLVERTEX": ([BEND], [(-150, 375), "", "Move", (500, -300)]),
}


def chains_and_points(name):
    if name in TOOLS:
        chains, _, picks = TOOLS[name]
        return chains, picks
    chains, answers = COMMANDS[name]
    return chains, [answer for answer in answers if isinstance(answer, tuple)]


def make_drawing(path, keyword):
    document = ezdxf.new("R2000")
    document.layers.add("NOTE", color=1)
    for name, offsets in {"WALL3": (120, 0, -120), "WALL4": (120, 60, -60, -120)}.items():
        style = document.mline_styles.new(name)
        style.dxf.flags = 2  # joints at the vertices, so that a vertex can be seen
        for offset in offsets:
            style.elements.append(offset)
    space = document.modelspace()
    chains, picks = chains_and_points(keyword)
    for shift in (0, SHIFT):
        for points, style, closed in chains:
            space.add_mline([(x + shift, y) for x, y in points], close=closed,
                            dxfattribs={"style_name": style, "justification": 1})
    for number, (x, y) in enumerate(picks, 1):
        space.add_circle((x, y), 55, dxfattribs={"layer": "NOTE"})
        space.add_text(str(number), height=190, dxfattribs={"layer": "NOTE"}).set_placement((x - 200, y + 150) if keyword in ("DV", "MLVERTEX") else (x + 80, y + 150))
    arrow = SHIFT / 2
    space.add_line((arrow - 150, 0), (arrow + 150, 0), dxfattribs={"layer": "NOTE"})
    space.add_line((arrow + 150, 0), (arrow + 60, 60), dxfattribs={"layer": "NOTE"})
    space.add_line((arrow + 150, 0), (arrow + 60, -60), dxfattribs={"layer": "NOTE"})
    document.saveas(path)


def tool_script(keyword):
    lines = ["ZOOM", "C", f"{SHIFT},0", "3000"]
    if keyword in COMMANDS:
        answers = [f"{answer[0] + SHIFT},{answer[1]}" if isinstance(answer, tuple) else answer
                   for answer in COMMANDS[keyword][1]]
        return "\n".join([*lines, keyword, *answers]) + "\n"
    _, gaps, picks = TOOLS[keyword]
    for start, stop in gaps:
        for shift in (0, SHIFT):
            lines += ["-MLEDIT", "CA", f"{start[0] + shift},{start[1]}", f"{stop[0] + shift},{stop[1]}", ""]
    lines += ["-MLEDIT", keyword, *(f"{x + SHIFT},{y}" for x, y in picks), ""]
    return "\n".join(lines) + "\n"


def call(*arguments):
    run = subprocess.run([str(argument) for argument in arguments], capture_output=True, text=True)
    if run.returncode != 0:
        sys.exit(f"{' '.join(map(str, arguments))}\n{run.stderr}")


def draw_tool(program, keyword, folder):
    drawing, script, edited = folder / "tool.dxf", folder / "tool.scr", folder / "edited.dxf"
    make_drawing(drawing, keyword)
    script.write_text(tool_script(keyword), encoding="utf-8")
    call(program, "run", drawing, "--script", script, "--output", edited)
    picture = folder / f"{keyword.lower()}.svg"
    call(program, "show", edited, "--output", picture, "--size", SIZE)
    return picture


def draw_flat(program, folder):
    joined, before, after = folder / "flat.dxf", folder / "flat-before.png", folder / "flat-after.png"
    call(program, "join", SAMPLES / "flat.dxf", "--output", joined)
    call(program, "show", SAMPLES / "flat.dxf", "--output", before, "--size", "1000x750")
    call(program, "show", joined, "--output", after, "--size", "1000x750")
    return [before, after]


def draw_changes(program, folder):
    changed, before, after = folder / "house.dxf", folder / "house-before.png", folder / "house-after.png"
    plan = SAMPLES / "floorplan.dxf"
    call(program, "run", plan, "--script", SAMPLES / "changes.scr", "--output", changed, "--strict")
    for drawing, picture in ((plan, before), (changed, after)):
        call(program, "show", drawing, "--output", picture, "--size", "1000x700", "--window", "-7500,-6000,24500,16000")
    return [before, after]


def main():
    parser = argparse.ArgumentParser(description="Draw the guide's pictures")
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("--check", action="store_true")
    settings = parser.parse_args()
    PICTURES.mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        drawn = [draw_tool(settings.program, keyword, folder) for keyword in (*TOOLS, *COMMANDS)]
        drawn += draw_flat(settings.program, folder) + draw_changes(settings.program, folder)
        other = [picture.name for picture in drawn
                 if not (PICTURES / picture.name).is_file()
                 or (PICTURES / picture.name).read_bytes() != picture.read_bytes()]
        if settings.check:
            # Fonts and the library that writes PNG differ from system to system: only the drawings are compared.
            other = [name for name in other if name.endswith(".svg")]
            sys.exit(f"other pictures than in docs/pictures: {', '.join(other)}" if other else 0)
        for picture in drawn:
            (PICTURES / picture.name).write_bytes(picture.read_bytes())


if __name__ == "__main__":
    main()
