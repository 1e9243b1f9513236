#!/usr/bin/python3
"""Check that orvex-batch saves what it opens byte for byte, and refuses only what it has to.

    same_bytes.py PROGRAM [DRAWING...]

Each drawing (those of corpus/ and the floor plan when none is named) is played
an empty script as it is and spoilt in every way that whole files are spoilt,
the same way each time. What single tags can hold is tried in host_drawing_test.

In corpus/ are drawings of two other writers, in every version that holds
multilines, and some made by hand that leave out what others always have. A
file's name says what it is for.
"""

import io
import pathlib
import random
import subprocess
import sys
import tempfile

import ezdxf

HERE = pathlib.Path(__file__).resolve().parent
REFUSED = 3


class Lines(list):
    """The lines of a file with their ends, codes at even places and values at odd ones."""

    def __init__(self, content):
        super().__init__(content.splitlines(keepends=True))
        self.end = b"\r\n" if self[0].endswith(b"\r\n") else b"\n"

    def records(self):
        """The places where records start."""
        return [i for i in range(0, len(self) - 1, 2) if self[i].strip() == b"0"]

    def insert_tags(self, place, *tags):
        self[place:place] = [text + self.end for code, value in tags for text in (b"%3d" % code, value)]


# Each changes the lines in place.


def mixed_line_ends(rng, lines):
    lines[:] = [line.rstrip(b"\r\n") + rng.choice((b"\n", b"\r\n")) for line in lines]


def odd_padding(rng, lines):
    for i in range(0, len(lines) - 1, 2):
        end = lines[i][len(lines[i].rstrip(b"\r\n")) :]
        lines[i] = rng.choice((b"", b" ", b"     ", b"0")) + lines[i].strip() + rng.choice((b"", b"   ")) + end


def comments(rng, lines):
    for text in (b"", b"0", b"a comment", b"EOF", b"SECTION", b"\xe9\xff\x80") * 3:
        lines.insert_tags(2 * rng.randrange(len(lines) // 2), (999, text))


def unknown_things(rng, lines):
    record = (0, b"GADGET"), (5, b"FFE"), (100, b"AcDbEntity"), (8, b"0"), (73, b"32767"), (1005, b"1F")
    for place in sorted(rng.choices(lines.records()[1:], k=5), reverse=True):
        lines.insert_tags(place, *record)
    lines.insert_tags(0, (0, b"SECTION"), (2, b"GADGETDATA"), *record, (0, b"ENDSEC"))


def strange_bytes(rng, lines):
    texts = (b"\xff\xfe", b"\xc3", b"\x00\x00", b"\\U+12", b"\\U+ZZZZ", b"^J", b"%%d %s %n", b"\xed\xa0\x80", b"x" * 5000)
    places = [i + 1 for i in range(0, len(lines) - 1, 2) if lines[i].strip() in (b"1", b"2", b"3", b"6", b"8")]
    for text in texts:
        lines[rng.choice(places)] = text + lines.end


def doubled_record(rng, lines):
    starts = lines.records()
    for i in sorted(rng.choices(range(1, len(starts) - 1), k=5), reverse=True):
        lines[starts[i] : starts[i]] = lines[starts[i] : starts[i + 1]]


def dropped_records(rng, lines):
    starts = lines.records()
    for i in sorted(set(rng.choices(range(1, len(starts) - 1), k=5)), reverse=True):
        del lines[starts[i] : starts[i + 1]]


def cut(rng, lines):
    del lines[2 * rng.randrange(1, len(lines) // 2) :]


def tail(rng, lines):
    lines[0] = b"\xef\xbb\xbf" + lines[0]
    lines.append(rng.choice((b"\n", b"\r\n\r\n", b"\x1a", b"\x00" * 100, b"more text\n", b"  0\nEOF\n", b"\xff" * 7)))


def no_final_line_end(_, lines):
    lines[-1] = lines[-1].rstrip(b"\r\n")


def binary(_, lines):
    stream = io.BytesIO()
    ezdxf.new("R12").write(stream, fmt="bin")
    lines[:] = [stream.getvalue()]


def binary_tail(_, lines):
    binary(_, lines)
    lines.append(b"\x00\x00EOF\x00")


# These are refused.


def code_without_value(rng, lines):
    del lines[2 * rng.randrange(len(lines) // 2) + 1 :]


def code_no_integer(rng, lines):
    wrong = (b"abc", b"1.5", b"", b"   ", b"0x10", b"1 0", b"--1", b"\x00", b"10;")
    lines[2 * rng.randrange(len(lines) // 2)] = rng.choice(wrong) + lines.end


def binary_in_text(rng, lines):
    content = list(lines)
    binary(rng, lines)
    lines[:0] = content[: 2 * rng.randrange(1, len(content) // 2)]


def text_in_binary(rng, lines):
    content = list(lines)
    binary(rng, lines)
    lines[:] = [lines[0][:22], *content]


def binary_cut(rng, lines):
    binary(rng, lines)
    lines[0] = lines[0][:-1]


OPENING = (mixed_line_ends, odd_padding, comments, unknown_things, strange_bytes, doubled_record, dropped_records, cut,
           tail, no_final_line_end, binary, binary_tail)
REFUSED_ONES = (code_without_value, code_no_integer, binary_in_text, text_in_binary, binary_cut)
SPOILERS = {**dict.fromkeys(OPENING, True), **dict.fromkeys(REFUSED_ONES, False)}


def complaint(program, content, opens):
    """What is wrong with the way the program takes this drawing, or None."""
    with tempfile.TemporaryDirectory() as scratch:
        drawing, output = pathlib.Path(scratch) / "in.dxf", pathlib.Path(scratch) / "out.dxf"
        drawing.write_bytes(content)
        command = [program, "run", str(drawing), "--script", "-", "--output", str(output)]
        try:
            run = subprocess.run(command, input=b"", capture_output=True, timeout=60)
        except subprocess.TimeoutExpired:
            return "doesn't end"
        if opens and run.returncode != 0:
            return f"status {run.returncode}: {run.stderr.decode(errors='replace').strip()}"
        if opens:
            return None if output.read_bytes() == content else "saved with other bytes"
        if run.returncode != REFUSED:
            return f"status {run.returncode} where {REFUSED} is due"
        return "refused, but something was written" if output.exists() else None


def main():
    program, *names = sys.argv[1:]
    drawings = [pathlib.Path(name) for name in names]
    tried, bad = 0, 0
    for path in drawings or [*sorted((HERE / "corpus").glob("*.dxf")), HERE.parents[1] / "samples/floorplan.dxf"]:
        cases = [("as it is", path.read_bytes(), True)]
        for spoil, opens in SPOILERS.items():
            lines = Lines(path.read_bytes())
            spoil(random.Random(f"{path.name} {spoil.__name__}"), lines)
            cases.append((spoil.__name__, b"".join(lines), opens))
        for name, content, opens in cases:
            tried += 1
            wrong = complaint(program, content, opens)
            if wrong:
                bad += 1
                print(f"{path.name}, {name}: {wrong}")
    print(f"{tried} drawings, {bad} taken wrongly")
    sys.exit(1 if bad or not tried else 0)


if __name__ == "__main__":
    main()
