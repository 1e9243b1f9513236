#!/usr/bin/python3
"""Make a large drawing, or a script of cuts for one.

    make_drawing.py --multilines N [--others M] --output FILE
    make_drawing.py --multilines N --script CYCLES --output FILE

M plain entities stand beside each multiline: 100,000 multilines with 1 each
make 100 MB, with 9 each a million entities. grid.py has where they lie.
"""

import argparse
import math
import pathlib
import sys

import grid

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "samples"))

LAYERS = ("WALLS", "DOORS", "FURNITURE", "TEXT")


def frame(count):
    """Text before and after the entities, the handle of model space, and the next free handle."""
    # Here, since a script of cuts needs neither.
    from stable_dxf import drawing_text
    import ezdxf

    doc = ezdxf.new("R2013", units=4)
    for colour, name in enumerate(LAYERS, 1):
        doc.layers.add(name, color=colour)
    for index in range(4):
        style = doc.mline_styles.new(f"WALL{2 + index}")
        for offset in grid.offsets(index):
            style.elements.append(offset, 256)
    block = doc.blocks.new("DOOR")
    block.add_line((0, 0), (0, 100))
    block.add_arc((0, 0), 100, 0, 90)
    reach = grid.SHIFT + grid.columns(count) * grid.CELL
    doc.header["$EXTMIN"] = (grid.SHIFT, grid.SHIFT - grid.HALF_WIDTH, 0.0)
    doc.header["$EXTMAX"] = (reach, reach, 0.0)
    before, entities, after = drawing_text(doc).partition("  2\nENTITIES\n")
    handles = {f"WALL{n}": doc.mline_styles.get(f"WALL{n}").dxf.handle for n in range(2, 6)}
    seed = int(doc.header["$HANDSEED"], 16)
    return before + entities, after, doc.modelspace().layout_key, handles, seed


def number(value):
    return repr(round(value, 10) + 0.0)


def point(code, x, y, z=0.0):
    return f"{code:3d}\n{number(x)}\n{code + 10:3d}\n{number(y)}\n{code + 20:3d}\n{number(z)}\n"


def unit(x, y):
    length = math.hypot(x, y)
    return x / length, y / length


def vertex_tails(index):
    """For each vertex of a multiline's chain its place in the cell and the text after its position."""
    points = grid.chain(index)
    axes = [unit(b[0] - a[0], b[1] - a[1]) for a, b in zip(points, points[1:])]
    axes.append(axes[-1])
    tails = []
    for i, (place, axis) in enumerate(zip(points, axes)):
        before = axes[i - 1] if 0 < i < len(points) - 1 else axis
        middle = unit(axis[0] + before[0], axis[1] + before[1])
        miter = -middle[1], middle[0]
        sine = axis[0] * miter[1] - axis[1] * miter[0]
        text = "".join(f"{code:3d}\n{v!r}\n" for code, v in zip((12, 22, 32), (*axis, 0.0)))
        text += "".join(f"{code:3d}\n{v!r}\n" for code, v in zip((13, 23, 33), (*miter, 0.0)))
        for offset in grid.offsets(index):
            breaks = [offset / sine, 0.0] + ([1300.0, 1400.0] if i == 0 and index % 8 == 7 else [])
            text += f" 74\n{len(breaks)}\n" + "".join(f" 41\n{b!r}\n" for b in breaks) + " 75\n0\n"
        tails.append((place, text))
    return tails


def multiline_templates(owner, styles):
    """Texts of the 24 kinds of multilines: all but handle and coordinates."""
    templates = []
    for index in range(24):
        style = f"WALL{2 + index % 4}"
        tails = vertex_tails(index)
        head = f"330\n{owner}\n100\nAcDbEntity\n  8\nWALLS\n100\nAcDbMline\n  2\n{style}\n340\n{styles[style]}\n"
        head += f" 40\n1.0\n 70\n1\n 71\n1\n 72\n{len(tails)}\n 73\n{2 + index % 4}\n"
        templates.append((head, "210\n0.0\n220\n0.0\n230\n1.0\n", tails))
    return templates


def multiline(template, handle, x, y):
    head, normal, tails = template
    parts = [f"  0\nMLINE\n  5\n{handle:X}\n", head, point(10, x, y), normal]
    for (dx, dy), tail in tails:
        parts += (point(11, x + dx, y + dy), tail)
    return "".join(parts)


def other_entity(kind, handle, owner, x, y):
    """A plain entity below the multilines of its cell's row, where no cut is made."""
    common = f"  5\n{handle:X}\n330\n{owner}\n100\nAcDbEntity\n  8\n{LAYERS[kind % 4]}\n"
    if kind == 0:
        return f"  0\nLINE\n{common}100\nAcDbLine\n{point(10, x, y)}{point(11, x + 80, y + 50)}"
    if kind == 1:
        return f"  0\nCIRCLE\n{common}100\nAcDbCircle\n{point(10, x, y)} 40\n40.0\n"
    if kind == 2:
        return f"  0\nTEXT\n{common}100\nAcDbText\n{point(10, x, y)} 40\n50.0\n  1\nRoom {handle}\n100\nAcDbText\n"
    if kind == 3:
        return f"  0\nINSERT\n{common}100\nAcDbBlockReference\n  2\nDOOR\n{point(10, x, y)} 50\n90.0\n"
    outline = ((0, 0), (90, 0), (90, 60), (0, 60))
    corners = "".join(f" 10\n{number(x + dx)}\n 20\n{number(y + dy)}\n" for dx, dy in outline)
    return f"  0\nLWPOLYLINE\n{common}100\nAcDbPolyline\n 90\n4\n 70\n1\n{corners}"


def write_drawing(path, count, others):
    before, after, owner, styles, handle = frame(count)
    templates = multiline_templates(owner, styles)
    seed = f"  9\n$HANDSEED\n  5\n{handle:X}\n"
    if seed not in before:
        raise ValueError("the frame has no handle seed")
    before = before.replace(seed, f"  9\n$HANDSEED\n  5\n{handle + count * (1 + others):X}\n")
    with open(path, "w", encoding="utf-8", newline="", buffering=1 << 20) as file:
        file.write(before)
        for index in range(count):
            x, y = grid.origin(index, count)
            file.write(multiline(templates[index % 24], handle, x, y))
            for other in range(others):
                place = x + 100.0 + other % 10 * 180.0, y - 500.0 + other // 10 * 20.0
                file.write(other_entity((index + other) % 5, handle + 1 + other, owner, *place))
            handle += 1 + others
        file.write(after)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--multilines", type=int, required=True, metavar="N")
    parser.add_argument("--others", type=int, default=1, metavar="M")
    parser.add_argument("--script", type=int, metavar="CYCLES", help="write a script of so many cuts instead")
    parser.add_argument("--output", type=pathlib.Path, required=True, metavar="FILE")
    options = parser.parse_args()
    options.output.parent.mkdir(parents=True, exist_ok=True)
    if options.script is not None:
        options.output.write_text(grid.script(options.script, options.multilines))
    else:
        write_drawing(options.output, options.multilines, options.others)


if __name__ == "__main__":
    main()
