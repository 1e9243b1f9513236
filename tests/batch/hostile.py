#!/usr/bin/python3
"""Drawings and scripts made to take all time and memory: hostile.py PROGRAM [--large]

Each is played within a processor time and a memory that have nothing to do with what it asks for, only with its size;
--large makes files of 20 to 100 MB.
"""

import argparse
import io
import os
import pathlib
import resource
import subprocess
import tempfile

import ezdxf

from program import Report

SECONDS = 60
MEGABYTES = 1 << 20
HEAD = 250 * MEGABYTES  # what the program and its libraries map
EDITS = b"MOVE\nALL\n\n0,0\n1,1\nMLAUDIT\n\nRepair\n-MLEDIT\nCC\n20,0.5\n50,20\n\nMLJOIN\n\n\nLIST\nALL\n\n"


def text_of(document):
    stream = io.StringIO()
    document.write(stream)
    return stream.getvalue()


def plan():
    document = ezdxf.new("R2000")
    for points in ([(0, 0), (100, 0)], [(50, -50), (50, 50)]):
        document.modelspace().add_mline(points)
    return document


def nested(depth, width, inserts, cyclic=False):
    document = plan()
    for i in range(depth):
        block = document.blocks.new(f"B{i}")
        block.add_mline([(0, 0), (1, 0)])
        for k in range(width if i or cyclic else 0):
            block.add_blockref(f"B{(i - 1) % depth}", (k, 0))
    for k in range(inserts):
        document.modelspace().add_blockref(f"B{depth - 1}", (k, k))
    return text_of(document)


def with_value(text, record, code, value):
    """The first value of a code in the first record of a kind replaced."""
    key = f"\n{code:3d}\n"
    start = text.index(key, text.index(f"\n{record}\n")) + len(key)
    return text[:start] + value + text[text.index("\n", start):]


def with_styles(count):
    """Many styles, made like the one that is there."""
    text = text_of(plan())
    start = text.rindex("\n  0\n", 0, text.index("\nMLINESTYLE\n") + 1) + 1
    end = text.index("\n  0\n", start) + 1
    record = text[start:end]
    handle = record.split("\n  5\n")[1].split("\n")[0]
    entry = text.index(f"\n350\n{handle}\n") + len(f"\n350\n{handle}")
    copies = range(count)
    entries = "".join(f"\n  3\nS{i}\n350\n{0x100000 + i:X}" for i in copies)
    records = "".join(record.replace(f"\n  5\n{handle}\n", f"\n  5\n{0x100000 + i:X}\n").replace("\n  2\nStandard\n", f"\n  2\nS{i}\n")
                      .replace("\n  2\nSTANDARD\n", f"\n  2\nS{i}\n") for i in copies)
    return text[:entry] + entries + text[entry:end] + records + text[end:]


def chain(count):
    """One multiline of that many vertices, a zigzag, and a wall that crosses its first segment."""
    document = ezdxf.new("R2000")
    for points in ([(0, 0), (10, 5)], [(5, -50), (5, 50)]):
        document.modelspace().add_mline(points, dxfattribs={"justification": 1})
    text = text_of(document)
    start = text.index("\n 11\n", text.index("\nMLINE\n")) + 1
    end = text.index("\n  0\n", start) + 1
    cosine, sine = 2 / 5**0.5, 1 / 5**0.5
    stretch = 1 / cosine  # of offsets along a miter between two segments

    def vertex(k):
        rise = sine if k % 2 == 0 else -sine
        is_end = k in (0, count - 1)
        rise = -rise if k == count - 1 else rise
        miter, offset = ((-rise, cosine), 0.5) if is_end else ((0.0, 1.0), 0.5 * stretch)
        elements = "".join(f" 74\n2\n 41\n{value}\n 41\n0.0\n 75\n0\n" for value in (offset, -offset))
        return (f" 11\n{10.0 * k}\n 21\n{5.0 * (k % 2)}\n 31\n0.0\n 12\n{cosine}\n 22\n{rise}\n 32\n0.0\n"
                f" 13\n{miter[0]}\n 23\n{miter[1]}\n 33\n0.0\n{elements}")

    return with_value(text[:start] + "".join(map(vertex, range(count))) + text[end:], "MLINE", 72, str(count))


class Hostile:
    def __init__(self, program, folder):
        self.program, self.folder = program, folder
        self.report = Report()

    def play(self, what, drawing, script=EDITS, statuses=(0,), verbs=("list", "show", "join", "audit", "run"), factor=20):
        """Each verb on a drawing; a message is no longer than a page."""
        path = self.folder / "in.dxf"
        path.write_bytes(drawing if isinstance(drawing, bytes) else drawing.encode())
        memory = HEAD + factor * (path.stat().st_size + len(script))

        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))
            if "asan" not in self.program:
                resource.setrlimit(resource.RLIMIT_AS, (memory, memory))

        for verb in verbs:
            rest = {"run": ("--script", "-", "--output", "out.dxf"), "show": ("--output", "out.png")}.get(verb, ())
            run = subprocess.run([self.program, verb, path, *rest], input=script, capture_output=True, cwd=self.folder,
                                 preexec_fn=limit)
            lines = run.stderr.splitlines() or [b""]
            self.report.check(run.returncode in statuses, f"{what}, {verb}: {run.returncode} {lines[-1][-300:]}")
            self.report.check(max(map(len, lines)) < 6000, f"{what}, {verb}: a message of {max(map(len, lines))} bytes")

    def blocks(self):
        for what, drawing in (("inserts of 10^29", nested(30, 10, 200)), ("blocks in a ring", nested(4, 3, 100, cyclic=True)),
                              ("a block in itself", nested(1, 9, 9, cyclic=True))):
            self.play(what, drawing)

    def numbers(self):
        text = text_of(plan())
        for value in ("2147483647", "-2147483648", "4294967296", "65536", "9" * 40000):
            for record, code in (("MLINE", 72), ("MLINE", 73), ("MLINE", 74), ("MLINE", 75), ("MLINESTYLE", 71)):
                self.play(f"{value[:12]} for {code} of {record}", with_value(text, record, code, value), verbs=("run",))
        for number in ("1" * 40000, "0." + "3" * 40000, "1e" + "9" * 40000, "-" * 40000, "0" * 40000 + "7"):
            script = f"MOVE\nALL\n\n0,0\n{number},1\n".encode()
            self.play(f"the number {number[:5]}...", with_value(text, "MLINE", 11, number), script, (0, 5), ("list", "run"))

    def names(self):
        big = "N" * MEGABYTES
        answers = ("MLINE\nST\n{}\n0,0\n5,5\n\n", "MLCHANGE\nALL\n\nST\n{}\n\n", "SETVAR\nCMLSTYLE\n{}\n", "{}\n", "SETVAR\n{}\n",
                   "MLRESTYLE\n{}\n{}\n", "ERASE\nLAYER\n{}\n\n", "-MLEDIT\n{}\n", "-MLEDIT\nCC\n{}\n", "MOVE\n#{}\n\n0,0\n{}\n")
        text = text_of(plan())
        for what, drawing in (("a style's", text.replace("\nStandard\n", f"\n{big}\n").replace("\nSTANDARD\n", f"\n{big}\n")),
                              ("a layer's", text.replace("\n  8\n0\n", f"\n  8\n{big}\n")), ("no", text)):
            self.play(f"{what} name of a megabyte", drawing, verbs=("list", "show", "join", "audit"), factor=60)
            for answer in answers:
                script = answer.replace("{}", big).encode()
                self.play(f"{what} name of a megabyte, {answer[:12]!r}", drawing, script, (0, 5), ("run",), 60)

    def long_chain(self, count, factor):
        """Each tool on a chain of so many vertices."""
        drawing = chain(count).encode()
        on, off = b"1,0.5\n", b"5,-20\n"
        picks = {"CC": on + off, "OC": on + off, "MC": on + off, "CT": off + on, "OT": off + on, "MT": off + on, "CJ": on + off,
                 "AV": on, "DV": b"11,4.5\n", "CS": on + b"3,1.5\n", "CA": on + b"3,1.5\n", "WA": on + b"3,1.5\n"}
        for tool, places in picks.items():
            script = b"ZOOM\nC\n20,5\n200\n-MLEDIT\n" + tool.encode() + b"\n" + places
            self.play(f"{tool} on {count} vertices", drawing, script, verbs=("run",), factor=factor)
        script = b"ZOOM\nC\n20,5\n200\nMOVE\nALL\n\n0,0\n1,1\nU\nREVERSE\nALL\n\nLIST\nALL\n\n"
        self.play(f"commands on {count} vertices", drawing, script, (0, 5), ("list", "show", "join", "audit", "run"), factor)

    def many(self, count, length):
        self.play(f"{count} styles", with_styles(count), f"MLINE\nST\nS{count // 2}\nST\nnone\n".encode(), (0, 5), factor=30)
        flat = text_of(plan()).encode()
        line = b"7" * length
        for what, drawing, status in (("a value", b"999\n" + line + b"\n" + flat, 0), ("a code", line + b"\n0\n" + flat, 0),
                                      ("letters", line + b"Q\n0\n" + flat, 3), ("no end", b"999\n" + line, 0)):
            self.play(f"{what} of {length} bytes", drawing, statuses=(status,), verbs=("list",))
        for script in (b"-MLEDIT\nCA\n" + line, line, b"MLINE\nST\n" + line, b"MLCHANGE\nALL\n\nSC\n" + line):
            self.play(f"a line of {length} bytes in a script", flat, script + b"\n", (0, 5), ("run",), 60)
        # Lines that answer nothing are kept as the bytes that they are.
        for script in (b"\n" * (length // 2), b";\n" * (length // 4)):
            self.play(f"{length // 2} bytes of script, {script[:2]!r}", flat, script, verbs=("run",), factor=4)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("--large", action="store_true")
    chosen = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        hostile = Hostile(os.path.abspath(chosen.program), pathlib.Path(folder))
        hostile.blocks()
        hostile.numbers()
        hostile.names()
        hostile.long_chain(*((1_000_000, 14) if chosen.large else (20_000, 20)))
        hostile.many(*((100_000, 100_000_000) if chosen.large else (3_000, 2_000_000)))
        hostile.report.finish()


if __name__ == "__main__":
    main()
