"""Drawings written by hand, as lists of tags (code, value).

Enough for the corpus: a frame with tables, two blocks and dictionaries, plain
entities and multilines. Real numbers are floats, 16- and 32-bit numbers ints,
everything else text.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))
from mline_geometry import ZERO, Element, Style, build  # noqa: E402

STANDARD = Style("STANDARD", "", [Element(0.5), Element(-0.5)])


def text(tags, line_end="\n", padded=False):
    """The tags as the text of a file; padded as the older writers do it."""
    lines = []
    for code, value in tags:
        lines.append(f"{code:3d}" if padded else str(code))
        lines.append(f"{value:6d}" if padded and isinstance(value, int) else str(value))
    return line_end.join(lines) + line_end


def point(code, coordinates):
    return [(code + 10 * i, float(c)) for i, c in enumerate(coordinates)]


def record(kind, handle, owner, *classes):
    tags = [(0, kind), (5, f"{handle:X}")]
    if owner is not None:
        tags.append((330, f"{owner:X}"))
    for name, rest in classes:
        tags += [(100, name), *rest]
    return tags


def mline(handle, owner, style, style_handle, points, scale=1.0, justification=ZERO, closed=False, layer="0"):
    points = [(x, y, 0.0) for x, y in points]
    vertices = build(style, points, closed, scale, justification)
    body = [
        (2, style.name), (340, f"{style_handle:X}"), (40, scale), (70, justification), (71, 3 if closed else 1),
        (72, len(vertices)), (73, len(style.elements)), *point(10, points[0]), *point(210, (0, 0, 1)),
    ]
    for vertex in vertices:
        body += point(11, vertex.position) + point(12, vertex.axis) + point(13, vertex.miter)
        for line in vertex.lines:
            body += [(74, len(line))] + [(41, value) for value in line] + [(75, 0)]
    return record("MLINE", handle, owner, ("AcDbEntity", [(8, layer)]), ("AcDbMline", body))


def mline_style(handle, dictionary, style):
    body = [
        (2, style.name), (70, style.flags), (3, style.description), (62, style.fill),
        (51, style.start_angle), (52, style.end_angle), (71, len(style.elements)),
    ]
    for element in style.elements:
        body += [(49, element.offset), (62, element.colour), (6, element.linetype)]
    tags = record("MLINESTYLE", handle, dictionary, ("AcDbMlineStyle", body))
    reactors = [(102, "{ACAD_REACTORS"), (330, f"{dictionary:X}"), (102, "}")]
    return tags[:2] + reactors + tags[2:]


def line(handle, owner, start, end, layer="0"):
    return record("LINE", handle, owner, ("AcDbEntity", [(8, layer)]), ("AcDbLine", point(10, start) + point(11, end)))


def section(name, *parts):
    return [(0, "SECTION"), (2, name)] + [tag for part in parts for tag in part] + [(0, "ENDSEC")]


def header(version, codepage, seed):
    variables = [
        ("$ACADVER", 1, version), ("$DWGCODEPAGE", 3, codepage), ("$HANDSEED", 5, f"{seed:X}"),
        ("$CLAYER", 8, "0"), ("$CMLSTYLE", 2, "STANDARD"), ("$CMLJUST", 70, 0), ("$CMLSCALE", 40, 1.0),
        ("$MEASUREMENT", 70, 1),
    ]
    return [tag for name, code, value in variables for tag in ((9, name), (code, value))]


def table(kind, handle, entries):
    """`entries` are (record name, handle, class, tags); the handle's code differs for dimension styles."""
    tags = [(0, "TABLE"), (2, kind), (5, f"{handle:X}"), (100, "AcDbSymbolTable"), (70, len(entries))]
    for entry_handle, name, rest in entries:
        own = {"LTYPE": "Linetype", "STYLE": "TextStyle", "APPID": "RegApp", "BLOCK_RECORD": "Block",
               "DIMSTYLE": "DimStyle", "LAYER": "Layer", "VPORT": "Viewport"}[kind]
        entry = record(kind, entry_handle, handle, ("AcDbSymbolTableRecord", []),
                       (f"AcDb{own}TableRecord", [(2, name)] + rest))
        if kind == "DIMSTYLE":
            entry[1] = (105, entry[1][1])
        tags += entry
    return tags + [(0, "ENDTAB")]


MODEL, PAPER, ROOT, GROUPS, STYLES_DICTIONARY, STANDARD_HANDLE = 0x1F, 0x1B, 0xC, 0xD, 0x17, 0x18


def tables():
    plain = [(3, ""), (72, 65), (73, 0), (40, 0.0)]
    return [
        *table("VPORT", 8, [(0x20, "*ACTIVE", [(70, 0), *point(10, (0, 0)), *point(11, (1, 1)), *point(12, (0, 0)),
                                               (40, 100.0), (41, 1.33)])]),
        *table("LTYPE", 5, [(0x14, "BYBLOCK", [(70, 0), *plain]), (0x15, "BYLAYER", [(70, 0), *plain]),
                            (0x16, "CONTINUOUS", [(70, 0), *plain])]),
        *table("LAYER", 2, [(0x10, "0", [(70, 0), (62, 7), (6, "CONTINUOUS")]),
                            (0x21, "WALLS", [(70, 0), (62, 1), (6, "CONTINUOUS")])]),
        *table("STYLE", 3, [(0x11, "STANDARD", [(70, 0), (40, 0.0), (41, 1.0), (50, 0.0), (71, 0), (42, 2.5),
                                                (3, "txt"), (4, "")])]),
        *table("VIEW", 6, []),
        *table("UCS", 7, []),
        *table("APPID", 9, [(0x12, "ACAD", [(70, 0)])]),
        *table("DIMSTYLE", 0xA, [(0x1D, "STANDARD", [(70, 0)])]),
        *table("BLOCK_RECORD", 1, [(MODEL, "*MODEL_SPACE", []), (PAPER, "*PAPER_SPACE", [])]),
    ]


def empty_block(name, record_handle, handle, paper):
    space = [(67, 1)] if paper else []
    return [
        *record("BLOCK", handle, record_handle, ("AcDbEntity", space + [(8, "0")]),
                ("AcDbBlockBegin", [(2, name), (70, 0), *point(10, (0, 0, 0)), (3, name), (1, "")])),
        *record("ENDBLK", handle + 1, record_handle, ("AcDbEntity", space + [(8, "0")]), ("AcDbBlockEnd", [])),
    ]


def text_entity(handle, owner, at, height, content):
    placed = [*point(10, at), (40, height), (1, content)]
    return record("TEXT", handle, owner, ("AcDbEntity", [(8, "0")]), ("AcDbText", placed), ("AcDbText", []))


def objects(styles):
    """The root dictionary and `styles`, (handle, style) each; None leaves out their dictionary too."""
    root = [(3, "ACAD_GROUP"), (350, f"{GROUPS:X}")]
    rest = []
    if styles is not None:
        root += [(3, "ACAD_MLINESTYLE"), (350, f"{STYLES_DICTIONARY:X}")]
        entries = [tag for handle, style in styles for tag in ((3, style.name), (350, f"{handle:X}"))]
        rest += record("DICTIONARY", STYLES_DICTIONARY, ROOT, ("AcDbDictionary", entries))
        for handle, style in styles:
            rest += mline_style(handle, STYLES_DICTIONARY, style)
    return [
        *record("DICTIONARY", ROOT, 0, ("AcDbDictionary", root)),
        *record("DICTIONARY", GROUPS, ROOT, ("AcDbDictionary", [])),
        *rest,
    ]


def drawing(version, entities, codepage="ANSI_1252", styles=((STANDARD_HANDLE, STANDARD),)):
    return [
        *section("HEADER", header(version, codepage, seed=0x100)),
        *section("CLASSES"),
        *section("TABLES", tables()),
        *section("BLOCKS", empty_block("*MODEL_SPACE", MODEL, 0x22, False),
                 empty_block("*PAPER_SPACE", PAPER, 0x24, True)),
        *section("ENTITIES", *entities),
        *section("OBJECTS", objects(styles)),
        (0, "EOF"),
    ]
