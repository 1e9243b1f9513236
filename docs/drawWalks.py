#!/usr/bin/python3
"""Draw the two walks through the house that architecture.md describes: pictures/walk-pick.svg and walk-file.svg."""

import pathlib

PICTURES = pathlib.Path(__file__).resolve().parent / "pictures"

# Room, what stands there, what it does; then what is handed on to the next.
PICK = [
    ("apps/canvas", "Canvas", "where the mouse was pressed", "a point in the drawing"),
    ("apps/desk/commands", "DeskPrompts", "answers the question that is open", "PromptAnswer"),
    ("host/prompt", "kdedEntSel", "asks which entity lies there", "point, aperture"),
    ("host/view", "Scene, PickIndex", "finds the nearest drawn line", "entity name"),
    ("engine", "CMlineEdit", "matches segment and element, then the tool's step", "lists, positions"),
    ("record", "SetLineArray, ...", "writes the lists of a vertex", "setParametersAt"),
    ("host/database", "ChangeLog", "keeps what was before, notifies the view", "MlineContent"),
    ("host/session", "CommandBracket", "closes all, makes one step of undo", "changed objects"),
    ("host/drawing", "DrawingWriter, RecordEdit", "new text for what differs, old bytes for the rest", "bytes"),
    ("host/base", "AtomicFile", "the new file in the old one's place", None),
]
FILE = [
    ("host/base", "readFile", "refuses what is no regular file, reads it whole", "bytes"),
    ("host/drawing", "DrawingReader, RecordTable", "cuts them into records at each code 0", "records"),
    ("host/database", "ObjectTable", "a stub for each, still without an object", "stubs"),
    ("host/drawing", "MlineParser, EntityShapes", "reads a record when it is asked for", "content, shapes"),
    ("host/view", "AppearanceMaker", "strokes and fills, in the layer's colour", "Appearance"),
    ("host/view", "Scene, IndexBuild", "keeps them compact, and an index of where they lie", "what a tile shows"),
    ("apps/canvas", "PlanPicture, TilePainting", "paints tile by tile between two events", None),
]

STEP, BOX, WIDTH = 66, 44, 760
COLOURS = {"apps": "#e0ecff", "host": "#e8f5e9", "engi": "#fff1e0", "reco": "#fff1e0"}


def drawn(steps):
    height = STEP * len(steps) + 10
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}" viewBox="0 0 {WIDTH} {height}" '
             'font-family="DejaVu Sans, sans-serif" font-size="13">',
             '<rect width="100%" height="100%" fill="#ffffff"/>']
    for i, (room, name, does, hands_on) in enumerate(steps):
        y = 10 + i * STEP
        lines.append(f'<rect x="10" y="{y}" width="740" height="{BOX}" rx="6" fill="{COLOURS[room[:4]]}" stroke="#9aa5b1"/>')
        lines.append(f'<text x="24" y="{y + 27}" fill="#52606d">{room}</text>')
        lines.append(f'<text x="176" y="{y + 27}" font-weight="bold" fill="#1f2933">{name}</text>')
        lines.append(f'<text x="398" y="{y + 27}" fill="#1f2933">{does}</text>')
        if hands_on:
            lines.append(f'<path d="M200 {y + BOX}v17m-5 -6l5 6l5 -6" fill="none" stroke="#1d4ed8" stroke-width="1.5"/>')
            lines.append(f'<text x="214" y="{y + BOX + 15}" font-size="12" fill="#1d4ed8">{hands_on}</text>')
    return "\n".join([*lines, "</svg>"]) + "\n"


for name, steps in (("walk-pick", PICK), ("walk-file", FILE)):
    (PICTURES / f"{name}.svg").write_text(drawn(steps), encoding="utf-8")
