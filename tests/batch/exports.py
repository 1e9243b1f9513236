#!/usr/bin/python3
"""Multilines as plain entities, by MLEXPLODE and by export: exports.py PROGRAM

What has to come out is worked out from the multilines' own lists, as python3-ezdxf reads them.
"""

import math
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import zlib

import ezdxf
from ezdxf.entities.mline import MLineVertex
from ezdxf.math import OCS, Vec3

from program import Checks, call, play

TOLERANCE = 1e-9
COLORS = (1, 256, 0, 5)  # of the elements; by layer and by block among them
LINETYPES = ("DASHED", "BYLAYER", "BYBLOCK", "CONTINUOUS")


def make_style(document, name, pick):
    style = document.mline_styles.new(name)
    count = pick.randint(2, 4)
    offsets = sorted(pick.sample(range(-20, 21, 5), count), reverse=True)
    for index, offset in enumerate(offsets):
        style.elements.append(offset / 4, COLORS[index], LINETYPES[index])
    caps = pick.choice((0, 16, 64, 16 | 64, 32)) | pick.choice((0, 256, 1024, 512))
    style.dxf.flags = pick.choice((0, 1)) | pick.choice((0, 2)) | caps
    style.dxf.fill_color = 3
    return style


def random_mline(space, style, number, pick):
    """On a layer of its own, in a plane of its own; what its lists say needn't fit its style."""
    normal = Vec3(0, 0, 1) if number % 3 else Vec3(*(pick.uniform(-1, 1) for _ in range(3))).normalize()
    ocs = OCS(normal)
    points = [Vec3(pick.uniform(-100, 100), pick.uniform(-100, 100), 5) for _ in range(pick.randint(2, 6))]
    closed = len(points) > 2 and pick.random() < 0.4
    layer = f"M{number}"
    space.doc.layers.add(layer)
    mline = space.new_entity("MLINE", {
        "layer": layer, "style_name": style.dxf.name, "style_handle": style.dxf.handle, "scale_factor": 1.5,
        "justification": number % 3, "flags": 1 | (2 if closed else 0), "extrusion": normal, "color": 6, "ltscale": 2.5,
        "linetype": "DASHED", "lineweight": 35})
    elements = len(style.elements)
    mline.dxf.style_element_count = elements
    for index, point in enumerate(points):
        last = index + 1 == len(points) and not closed
        way = points[index] - points[index - 1] if last else points[(index + 1) % len(points)] - point
        axis = way.normalize()
        miter = axis.rotate(math.radians(pick.uniform(50, 130)))
        lines, areas = [], []
        for element in style.elements:
            position = 1.5 * element.offset / 4 * pick.uniform(0.9, 1.1)
            gap = sorted(pick.uniform(0.2, 0.8) * way.magnitude for _ in range(2)) if pick.random() < 0.4 else []
            lines.append((position, 0.0, *gap))
            areas.append((position, 0.0, *gap) if style.dxf.flags & 1 and gap else ())
        mline.vertices.append(MLineVertex.new(ocs.to_wcs(point), ocs.to_wcs(axis), ocs.to_wcs(miter), lines, areas))
    return mline


def places(mline, vertex):
    at = mline.vertices[vertex]
    return [at.location + at.miter_direction * line[0] for line in at.line_params]


def stretches(mline):
    """The drawn lines of the elements."""
    count = len(mline.vertices)
    found = []
    for element in range(len(mline.vertices[0].line_params)):
        for segment in range(count if mline.dxf.flags & 2 else count - 1):
            start, end = places(mline, segment)[element], places(mline, (segment + 1) % count)[element]
            along = (end - start).normalize()
            bounds = list(mline.vertices[segment].line_params[element][1:])
            for begin, stop in zip(bounds[::2], bounds[1::2] + [None]):
                found.append((start + along * begin, end if stop is None else start + along * stop, element))
    return found


def near(one, other):
    return (one - other).magnitude < TOLERANCE * max(1, one.magnitude)


def drawn(layout):
    """The entities of a layout by layer, inserts opened."""
    found = {}
    for entity in layout:
        parts = entity.virtual_entities() if entity.dxftype() == "INSERT" else [entity]
        for part in parts:
            found.setdefault(part.dxf.layer, []).append(part)
    return found


def differences(mline, style, parts):
    """What is wrong with the plain entities that stand for a multiline."""
    wrong = []
    kinds = {kind: [part for part in parts if part.dxftype() == kind] for kind in ("LINE", "ARC", "SOLID")}
    wanted = stretches(mline)
    lines = kinds["LINE"]
    if len(lines) < len(wanted) or len(parts) != sum(map(len, kinds.values())):
        return [f"{len(lines)} lines for {len(wanted)} stretches, {[part.dxftype() for part in parts]}"]
    for (start, end, element), line in zip(wanted, lines):
        if not (near(start, line.dxf.start) and near(end, line.dxf.end)):
            wrong.append(f"{start} {end} is {line.dxf.start} {line.dxf.end}")
        color = COLORS[element] if COLORS[element] else 6
        linetype = LINETYPES[element] if LINETYPES[element] != "BYBLOCK" else "DASHED"
        look = (line.dxf.color, line.dxf.linetype.upper(), line.dxf.ltscale, line.dxf.lineweight)
        if look != (color, linetype, 2.5, 35):
            wrong.append(f"element {element} looks like {look}")
    # Caps and joints come in halves, since all elements differ.
    flags = style.dxf.flags
    ends = [(0, flags & 0x70), (len(mline.vertices) - 1, flags >> 4 & 0x70)] if not mline.dxf.flags & 2 else []
    count = len(mline.vertices)
    joints = (count if mline.dxf.flags & 2 else count - 2) if flags & 2 else 0
    straight = sum(1 for _, caps in ends if caps & 16) + joints
    if len(lines) - len(wanted) != 2 * straight:
        wrong.append(f"{len(lines) - len(wanted)} halves of {straight} caps and joints")
    arcs = []
    for vertex, caps in ends:
        at = sorted(places(mline, vertex), key=lambda place: (place - mline.vertices[vertex].location).dot(
            mline.vertices[vertex].miter_direction))
        inner = [(at[i], at[-1 - i]) for i in range(1, len(at) // 2)] if caps & 32 else []
        for one, other in ([(at[0], at[-1])] if caps & 64 else []) + inner:
            outward = mline.vertices[vertex].line_direction * (-1 if vertex == 0 else 1)
            arcs.append((one.lerp(other), (one - other).magnitude / 2, outward))
    if len(kinds["ARC"]) != 2 * len(arcs):
        return wrong + [f"{len(kinds['ARC'])} half arcs for {len(arcs)}"]
    for (center, radius, outward), pair in zip(arcs, zip(kinds["ARC"][::2], kinds["ARC"][1::2])):
        for arc in pair:
            top = arc.ocs().to_wcs(arc.dxf.center)
            middle = (arc.start_point + arc.end_point) / 2 - center
            if not near(top, center) or abs(arc.dxf.radius - radius) > TOLERANCE or middle.dot(outward) < 0:
                wrong.append(f"arc at {top}, radius {arc.dxf.radius}, for {center}, {radius}")
    filled = bool(flags & 1)
    if bool(kinds["SOLID"]) != filled or any(solid.dxf.color != 3 for solid in kinds["SOLID"]):
        wrong.append(f"{len(kinds['SOLID'])} areas")
    corners = [place for vertex in range(count) for place in places(mline, vertex)]
    if filled and not any(len(area) for vertex in mline.vertices for area in vertex.fill_params):
        got = [solid.ocs().to_wcs(solid.dxf.get(name)) for solid in kinds["SOLID"] for name in ("vtx0", "vtx1", "vtx2", "vtx3")]
        wrong += [f"corner {place}" for place in got if not any(near(place, corner) for corner in corners)]
    return wrong


def audited(document):
    auditor = document.audit()
    return len(auditor.errors) + len(auditor.fixes)


class Exports(Checks):
    def random_plan(self, seed):
        pick = random.Random(seed)
        document = ezdxf.new("R2004", setup=True)
        block = document.blocks.new("PART")
        document.modelspace().add_blockref("PART", (500, 0))
        spaces = [document.modelspace(), document.layout("Layout1"), block]
        mlines = []
        for number in range(24):
            style = make_style(document, f"S{number}", pick)
            space = 0 if number < 16 else number % 3
            mlines.append((space, style, random_mline(spaces[space], style, number, pick)))
        path = self.folder / f"plan{seed}.dxf"
        document.saveas(path)
        return path, mlines

    # All multilines of the plan stand for themselves as entities on their layers, in each of three spaces.
    # Every other plan is a binary one.
    def random_plans(self, seeds):
        for seed in seeds:
            path, mlines = self.random_plan(seed)
            first = int(re.search(r"\$HANDSEED\s+5\s+(\w+)", path.read_text()).group(1), 16)
            if seed % 2:
                text, path = path, path.with_stem(f"binary{seed}")
                self.expect("converted", call(self.program, "convert", text, "--to", "binary", "--output", path).returncode, 0)
            for form in ("lines", "blocks"):
                run = call(self.program, "export", path, "--output", self.out, "--as", form)
                self.expect(f"status of {seed}, {form}: {run.stderr}", (run.returncode, run.stderr), (0, ""))
                document = ezdxf.readfile(self.out)
                self.expect(f"{seed}, {form}: audit", audited(document), 0)
                self.expect(f"{seed}, {form}: multilines left", len(document.query("MLINE")), 0)
                self.expect(f"{seed}, {form}: styles", "S3" in document.mline_styles, True)
                found = [drawn(document.modelspace()), drawn(document.layout("Layout1")), drawn(document.blocks.get("PART"))]
                for space, style, mline in mlines:
                    for text in differences(mline, style, found[space].get(mline.dxf.layer, [])):
                        self.report.check(False, f"{seed}, {form}, {mline.dxf.layer}: {text}")
                    self.report.check(form == "lines" or f"ORVEX_{mline.dxf.handle}" in document.blocks, "no block")
                handles = [int(entity.dxf.handle, 16) for entity in document.modelspace()]
                self.expect(f"{seed}, {form}: handles in order", [h for h in handles if h >= first],
                            sorted(h for h in handles if h >= first))
            script = "MLEXPLODE\nALL\n\n"
            run = play(self.program, path, script, self.out)
            self.report.check("of 18 multilines exploded" in run.stdout, run.stdout)
            document = ezdxf.readfile(self.out)
            self.expect(f"{seed}: audit", audited(document), 0)
            found = drawn(document.modelspace())
            for space, style, mline in mlines:
                if space == 0:
                    for text in differences(mline, style, found.get(mline.dxf.layer, [])):
                        self.report.check(False, f"{seed}, {mline.dxf.layer}: {text}")
            done = self.out.read_bytes()
            for after, bytes_ in (("U\n", path.read_bytes()), ("U\nREDO\n", done)):
                play(self.program, path, script + after, self.out)
                self.expect(f"{seed}: bytes after {after!r}", self.out.read_bytes() == bytes_, True)

    # What isn't a multiline keeps its bytes: the records that differ are those of multilines and new ones.
    def rest_stays(self):
        path, _ = self.random_plan(99)
        call(self.program, "export", path, "--output", self.out)
        records = [set(re.split(r"(?m)^(?=  0\n)", file.read_text())) for file in (path, self.out)]
        gone, new = ({record.split("\n")[1] for record in one - other} for one, other in (records, records[::-1]))
        self.expect("gone", gone, {"MLINE", "SECTION"})
        self.expect("new", new - {"ARC"}, {"LINE", "SOLID", "SECTION"})

    # Groups, tables of drawing order and extension dictionaries don't name what was erased, but what stands for it.
    def references(self):
        path = self.folder / "references.dxf"
        document = ezdxf.new("R2000")
        space = document.modelspace()
        first, second = (space.add_mline([(0, y), (10, y)], dxfattribs={"layer": f"Y{y}"}) for y in (0, 5))
        other = space.add_line((0, 9), (10, 9))
        document.groups.new("BOTH").extend([first, other])
        document.groups.new("ALONE").extend([first])
        space.set_redraw_order([(first.dxf.handle, "FF"), (other.dxf.handle, "FE")])
        second.new_extension_dict().add_xrecord("MINE")
        document.saveas(path)
        script, many = ("run", path, "--script", "-"), "STYLE\nStandard\n\n"
        for arguments, lines in ((script, "ERASE\n" + many), (script, "MLEXPLODE\n" + many), (("export", path), None),
                                 (("export", path, "--as", "blocks"), None)):
            run = call(self.program, *arguments, "--output", self.out, script=lines)
            self.expect(f"{arguments[0]}", (run.returncode, run.stderr), (0, ""))
            result = ezdxf.readfile(self.out)
            self.expect(f"audit after {arguments[0]}", audited(result), 0)
            parts = [[part.dxf.handle for part in result.modelspace() if part.dxf.layer == f"Y{y}"] for y in (0, 5)]
            self.expect("parts", all(parts), lines is None or not lines.startswith("ERASE"))
            groups = {"BOTH": [*parts[0], other.dxf.handle], "ALONE": parts[0]}
            self.expect("groups", {name: sorted(member.dxf.handle for member in group) for name, group in result.groups},
                        {name: sorted(members) for name, members in groups.items() if members})
            text = self.out.read_text()
            for handle in (first.dxf.handle, second.dxf.handle):
                self.expect(f"names of {handle}", re.findall(rf"(?m)^(?:340|331|330)\n{handle}$", text), [])
            order = [*((part, "FF") for part in parts[0]), (other.dxf.handle, "FE"),
                     *((part, second.dxf.handle) for part in parts[1])]
            self.expect("order", re.findall(r"(?m)^331\n(\w+)\n  5\n(\w+)$", text), order)
        play(self.program, path, "ERASE\nALL\n\nU\n", self.out)
        self.expect("bytes after U", self.out.read_bytes() == path.read_bytes(), True)
        broken = self.folder / "broken.dxf"
        broken.write_text(path.read_text().replace(f"340\n{other.dxf.handle}\n", "340\nno handle\n"))
        run = play(self.program, broken, "ERASE\nSTYLE\nStandard\n\n", self.out)
        self.report.check(run.returncode == 0 and "the group #" in run.stderr and "can't be read" in run.stderr, run.stderr)

    def bad_calls(self):
        path, _ = self.random_plan(5)
        self.expect("form", call(self.program, "export", path, "--output", self.out, "--as", "arcs").returncode, 2)
        self.expect("no output", call(self.program, "export", path).returncode, 2)
        self.expect("missing", call(self.program, "export", self.folder / "none.dxf", "--output", self.out).returncode, 3)
        self.expect("folder", call(self.program, "export", path, "--output", self.folder / "no" / "x.dxf").returncode, 4)
        gaps = self.folder / "gaps.dxf"
        document = ezdxf.new("R2000")
        mline = document.modelspace().add_mline([(0, 0), (10, 0)])
        mline.vertices[0].line_params = [(0.0,), (-1.0,)]
        document.saveas(gaps)
        run = call(self.program, "export", gaps, "--output", self.out)
        self.report.check(run.returncode == 0 and "nothing of it is drawn" in run.stderr, run.stderr)
        self.expect("kept", self.out.read_bytes() == gaps.read_bytes(), True)

    # An older reader of DXF that passes over multilines draws what stands for them.
    def in_another_program(self):
        if shutil.which("librecad") is None:
            print("librecad isn't installed, so it isn't asked")
            return
        path, mlines = self.random_plan(7)
        strokes = []
        for form in (None, "lines", "blocks"):
            drawing = self.folder / f"read_{form}.dxf"
            if form is None:
                shutil.copy(path, drawing)
            else:
                call(self.program, "export", path, "--output", drawing, "--as", form)
            picture = drawing.with_suffix(".pdf")
            subprocess.run(["librecad", "dxf2pdf", "-a", "-o", picture, drawing], capture_output=True, timeout=120,
                           env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "HOME": str(self.folder)})
            found = b"".join(map(inflated, re.findall(rb"stream\r?\n(.*?)endstream", picture.read_bytes(), re.S)))
            strokes.append(len(re.findall(rb"(?m)^[-\d. ]+ l ?$", found)))
        self.report.check(strokes[1] > strokes[0] + 100 and strokes[2] >= strokes[1], f"strokes {strokes}")


def inflated(stream):
    try:
        return zlib.decompress(stream)
    except zlib.error:
        return b""


def main():
    with tempfile.TemporaryDirectory() as folder:
        exports = Exports(sys.argv[1], pathlib.Path(folder))
        exports.random_plans(range(int(sys.argv[2]) if len(sys.argv) > 2 else 6))
        exports.rest_stays()
        exports.references()
        exports.bad_calls()
        exports.in_another_program()
        exports.report.finish()


if __name__ == "__main__":
    main()
