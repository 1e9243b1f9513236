#!/usr/bin/python3
"""Spoil drawings in all the ways that files are spoilt, the same way for the same seed.

    mutate.py --output FOLDER [--seed N] [--rounds N] DRAWING...

Writes FOLDER/<drawing>.<mutation>.<round>.dxf and FOLDER/expected.txt, a line
for each: its name, a tab, and `opens` or `refused`. What opens has to be saved
unchanged as the same bytes. Refused are binary drawings, group codes that are
no integers and codes without a value before EOF; nothing else.

A mutation that finds nothing to spoil in a drawing is left out.
"""

import argparse
import io
import pathlib
import random
import sys

REAL_CODES = {*range(10, 60), *range(110, 150), *range(210, 240), *range(460, 470), *range(1010, 1060)}
COUNT_CODES = {70, 71, 72, 73, 74, 75, 78, 79, 90, 91, 92, 93}
HANDLE_CODES = {5, 105, 330, 340, 350, 360}
MLINE_KINDS = (b"MLINE", b"MLINESTYLE", b"DICTIONARY", b"LAYER", b"LTYPE")


class Drawing:
    """A file as tags, each [code line, value line] with its line ends, and the kind of record it stands in."""

    def __init__(self, content):
        lines = content.splitlines(keepends=True)
        self.end = b"\r\n" if lines and lines[0].endswith(b"\r\n") else b"\n"
        self.tags = [lines[i : i + 2] for i in range(0, len(lines) - 1, 2)]

    def code(self, i):
        return int(self.tags[i][0].removeprefix(b"\xef\xbb\xbf"))

    def value(self, i):
        return self.tags[i][1].rstrip(b"\r\n")

    def starts(self):
        return [i for i in range(len(self.tags)) if self.code(i) == 0]

    def kinds(self):
        """For each tag the name of the record that it stands in."""
        kind, kinds = b"", []
        for i in range(len(self.tags)):
            if self.code(i) == 0:
                kind = self.value(i).strip()
            kinds.append(kind)
        return kinds

    def line(self, text):
        return text + self.end

    def pair(self, code, text):
        return [self.line(b"%3d" % code), self.line(text)]

    def content(self):
        return b"".join(line for tag in self.tags for line in tag)


def pick(rng, choices):
    """One of the choices, or None, which makes the mutation give up."""
    choices = list(choices)
    return rng.choice(choices) if choices else None


# Mutations of tags change a Drawing in place, and return False when there is nothing to spoil.


def mixed_line_ends(rng, drawing):
    for tag in drawing.tags:
        tag[:] = [line.rstrip(b"\r\n") + rng.choice((b"\n", b"\r\n")) for line in tag]


def odd_padding(rng, drawing):
    for i, tag in enumerate(drawing.tags):
        digits = tag[0].strip()
        line_end = tag[0][len(tag[0].rstrip(b"\r\n")) :]
        before, after = rng.choice((b"", b" ", b"     ")), rng.choice((b"", b" ", b"   "))
        tag[0] = before + rng.choice((b"", b"", b"0")) + digits + after + line_end


def comments(rng, drawing):
    for _ in range(20):
        tag = drawing.pair(999, rng.choice((b"", b"0", b"a comment", b"EOF", b"SECTION", b"\xe9\xff\x80")))
        drawing.tags.insert(rng.randrange(len(drawing.tags)), tag)


def unknown_section(rng, drawing):
    place = pick(rng, (i for i in drawing.starts() if drawing.value(i) in (b"SECTION", b"EOF")))
    if place is None:
        return False
    record = [drawing.pair(0, b"GADGET"), drawing.pair(5, b"FE"), drawing.pair(1, b"0"), drawing.pair(310, b"00FF")]
    body = [drawing.pair(0, b"SECTION"), drawing.pair(2, b"GADGETDATA"), *record, drawing.pair(0, b"ENDSEC")]
    drawing.tags[place:place] = body


def unknown_records(rng, drawing):
    for _ in range(5):
        place = pick(rng, drawing.starts()[1:])
        if place is None:
            return False
        drawing.tags[place:place] = [
            drawing.pair(0, b"GADGET"), drawing.pair(5, b"%X" % rng.randrange(0x8000, 0xFFFF)),
            drawing.pair(100, b"AcDbEntity"), drawing.pair(8, b"0"), drawing.pair(73, b"32767"),
            drawing.pair(1005, b"1F"),
        ]


def change_value(rng, drawing, codes, values, kinds=None):
    names = drawing.kinds()
    places = (i for i in range(len(drawing.tags)) if drawing.code(i) in codes)
    place = pick(rng, (i for i in places if names[i] != b"" and (kinds is None or names[i] in kinds)))
    if place is None:
        return False
    drawing.tags[place][1] = drawing.line(rng.choice(values))


COUNTS = (b"-1", b"0", b"1", b"3", b"99", b"32767", b"65536", b"2147483647", b"-2147483648", b"4294967296",
          b"99999999999999999999", b"1.5", b"", b"many")
NUMBERS = (b"nan", b"-nan", b"inf", b"-inf", b"NaN(1)", b"1e999", b"-1e999", b"1e-999", b"1e308", b"0x1p3", b"1,5",
           b"", b"-", b"1e", b"1.#QNAN", b"one", b"1." + b"0" * 400, b"-0.0")
HANDLES = (b"0", b"", b"FFFFFFFFFFFFFFFF", b"10000000000000000", b"XYZ", b"-1", b"2", b"1F", b"18", b"0018")


def wrong_count(rng, drawing):
    return change_value(rng, drawing, {72, 73, 74, 75, 71}, COUNTS, (b"MLINE", b"MLINESTYLE"))


def wrong_other_count(rng, drawing):
    return change_value(rng, drawing, COUNT_CODES, COUNTS)


def odd_number(rng, drawing):
    return change_value(rng, drawing, REAL_CODES, NUMBERS)


def odd_multiline_number(rng, drawing):
    return change_value(rng, drawing, REAL_CODES, NUMBERS, (b"MLINE", b"MLINESTYLE"))


def odd_handle(rng, drawing):
    return change_value(rng, drawing, HANDLE_CODES, HANDLES)


def missing_style(rng, drawing):
    return change_value(rng, drawing, {340}, (b"FEED", b"0", b"1F"), (b"MLINE",))


def odd_version(rng, drawing):
    return change_value(rng, drawing, {1}, (b"AC1009", b"AC9999", b"", b"MC0.0", b"AC1015 "), (b"SECTION",))


def record_range(rng, drawing, names=None):
    starts = drawing.starts() + [len(drawing.tags)]
    ranges = [(a, b) for a, b in zip(starts, starts[1:]) if drawing.value(a) != b"EOF"]
    return pick(rng, (r for r in ranges if names is None or drawing.value(r[0]) in names))


def drop_record(rng, drawing, names=None):
    found = record_range(rng, drawing, names)
    if found is None:
        return False
    del drawing.tags[slice(*found)]


def drop_frame(rng, drawing):
    return drop_record(rng, drawing, (b"SECTION", b"ENDSEC", b"TABLE", b"ENDTAB", b"BLOCK", b"ENDBLK"))


def double_record(rng, drawing):
    found = record_range(rng, drawing, MLINE_KINDS)
    if found is None:
        return False
    drawing.tags[found[1] : found[1]] = [list(tag) for tag in drawing.tags[slice(*found)]]


def drop_tag(rng, drawing):
    names = drawing.kinds()
    place = pick(rng, (i for i in range(len(drawing.tags)) if drawing.code(i) != 0 and names[i] in MLINE_KINDS))
    if place is None:
        return False
    del drawing.tags[place]


def swap_tags(rng, drawing):
    names = drawing.kinds()
    places = [i for i in range(len(drawing.tags) - 1) if drawing.code(i) != 0 and names[i] in MLINE_KINDS]
    place = pick(rng, (i for i in places if drawing.code(i + 1) != 0))
    if place is None:
        return False
    drawing.tags[place : place + 2] = reversed(drawing.tags[place : place + 2])


def strange_bytes(rng, drawing):
    values = (b"\xff\xfe", b"\xc3", b"\x00\x00", b"\\U+12", b"\\U+ZZZZ", b"^J", b"%%d %s %n", b"\xed\xa0\x80",
              b"x" * 5000)
    return change_value(rng, drawing, {1, 2, 3, 6, 8}, values, MLINE_KINDS + (b"TEXT", b"LINE"))


# Mutations of bytes take and give the content; None when there is nothing to spoil. They come after those of tags.


def no_final_line_end(rng, content):
    return content.rstrip(b"\r\n")


def byte_order_mark(rng, content):
    return b"\xef\xbb\xbf" + content


def bytes_behind_end(rng, content):
    tails = (b"\n", b"\r\n\r\n", b"\x1a", b"\x00" * 100, b"more text\n", b"  0\nSECTION\n", b"  0\nEOF\n", b"\xff" * 7)
    return content + rng.choice(tails)


def missing_end(rng, content):
    drawing = Drawing(content)
    drawing.tags.pop()
    return drawing.content()


def cut_between_tags(rng, content):
    drawing = Drawing(content)
    del drawing.tags[rng.randrange(1, len(drawing.tags)) :]
    return drawing.content()


def cut_in_value(rng, content):
    drawing = Drawing(content)
    place = pick(rng, (i for i in range(len(drawing.tags)) if len(drawing.value(i)) > 1))
    del drawing.tags[place + 1 :]
    value = drawing.value(place)
    drawing.tags[place][1] = value[: rng.randrange(1, len(value))]
    return drawing.content()


def nothing_left(rng, content):
    return b""


def cut_behind_code(rng, content):
    drawing = Drawing(content)
    place = rng.randrange(len(drawing.tags))
    del drawing.tags[place + 1 :]
    drawing.tags[place] = [drawing.tags[place][0].rstrip(b"\r\n")]
    return drawing.content()


def code_no_integer(rng, content):
    drawing = Drawing(content)
    place = rng.randrange(len(drawing.tags))
    wrong = (b"abc", b"1.5", b"", b"   ", b"0x10", b"1 0", b"--1", b"\x00", b"10;")
    drawing.tags[place][0] = drawing.line(rng.choice(wrong))
    return drawing.content()


def lost_line(rng, content):
    """A value that is no number comes to stand where a code belongs."""
    drawing = Drawing(content)
    place = pick(rng, (i for i in drawing.starts() if drawing.value(i) != b"EOF" and i > 0))
    if place is None:
        return None
    drawing.tags[place] = [drawing.tags[place][1]]
    return drawing.content()


def binary(rng, content):
    """A binary drawing in place of this one: the real thing, by another writer."""
    import ezdxf

    ezdxf.options.write_fixed_meta_data_for_testing = True
    stream = io.BytesIO()
    ezdxf.new("R12").write(stream, fmt="bin")
    return stream.getvalue()


TAG_MUTATIONS = (
    mixed_line_ends, odd_padding, comments, unknown_section, unknown_records, wrong_count, wrong_other_count,
    odd_number, odd_multiline_number, odd_handle, missing_style, odd_version, drop_record, drop_frame, double_record,
    drop_tag, swap_tags, strange_bytes,
)
OPENING = (no_final_line_end, byte_order_mark, bytes_behind_end, missing_end, cut_between_tags, cut_in_value,
           nothing_left)
REFUSED = (cut_behind_code, code_no_integer, lost_line, binary)


def by_tags(rng, content, mutations):
    drawing = Drawing(content)
    done = [mutation(rng, drawing) for mutation in mutations]
    return None if all(result is False for result in done) else drawing.content()


def mixture(rng, content):
    """Several at once; what is done to the bytes comes last."""
    content = by_tags(rng, content, rng.sample(TAG_MUTATIONS, 4)) or content
    return rng.choice(OPENING[:3])(rng, content)


def mutations(content, seed):
    """Every mutation of a drawing once: (name, content, whether it opens)."""
    for mutation in TAG_MUTATIONS:
        rng = random.Random(f"{seed} {mutation.__name__}")
        yield mutation.__name__, by_tags(rng, content, (mutation,)), True
    for mutation in (*OPENING, mixture, *REFUSED):
        rng = random.Random(f"{seed} {mutation.__name__}")
        yield mutation.__name__, mutation(rng, content), mutation not in REFUSED


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", required=True, type=pathlib.Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--rounds", type=int, default=1)
    parser.add_argument("drawings", nargs="+", type=pathlib.Path)
    options = parser.parse_args()
    options.output.mkdir(parents=True, exist_ok=True)
    lines = []
    for path in options.drawings:
        content = path.read_bytes()
        for number in range(options.rounds):
            for name, spoilt, opens in mutations(content, f"{options.seed} {path.name} {number}"):
                if spoilt is None:
                    continue
                file = f"{path.stem}.{name}.{number}.dxf"
                (options.output / file).write_bytes(spoilt)
                lines.append(f"{file}\t{'opens' if opens else 'refused'}\n")
    (options.output / "expected.txt").write_text("".join(lines))
    print(f"{len(lines)} files in {options.output}", file=sys.stderr)


if __name__ == "__main__":
    main()
