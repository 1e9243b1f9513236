#!/usr/bin/python3
"""Check the binary form of drawings against another writer's and reader's: binary_form.py PROGRAM

Every drawing of corpus/ and the floor plan is written binary by ezdxf's tag
writer and by `orvex-batch convert`; both have to hold the tags of the text,
and come back as text with the same ones. Every sample script has to do to the
binary plan what it does to the text.
"""

import io
import pathlib
import subprocess
import sys
import tempfile

from ezdxf.lldxf.tagger import binary_tags_loader
from ezdxf.lldxf.tagwriter import BinaryTagWriter
from ezdxf.lldxf.types import BINARY_DATA, cast_tag_value

HERE = pathlib.Path(__file__).resolve().parent
SAMPLES = HERE.parents[1] / "samples"


def text_tags(content):
    """Tags with values as numbers and bytes; texts as the bytes have them."""
    lines = content.removeprefix(b"\xef\xbb\xbf").decode("latin1").replace("\r\n", "\n").split("\n")
    for code, value in zip(map(int, lines[:-1:2]), lines[1::2]):
        if code != 999:
            yield code, bytes.fromhex(value) if code in BINARY_DATA else cast_tag_value(code, value)


def binary_tags(content):
    for code, value in binary_tags_loader(content):
        if isinstance(value, str):
            value = value.encode(encoding_of(content), "surrogateescape").decode("latin1")
        yield code, value


def encoding_of(content):
    """By which the loader decoded, so that its texts become bytes again."""
    for version in (b"AC1021", b"AC1024", b"AC1027", b"AC1032"):
        if version in content[:1024]:
            return "utf8"
    pages = {b"ANSI_932": "cp932", b"ANSI_936": "gbk"}
    return next((name for page, name in pages.items() if page in content[:1024]), "cp1252")


def written_binary(content):
    """The drawing as another writer has it. Codes have one byte up to AC1009."""
    tags = list(text_tags(content))
    version = next((tags[i + 1][1] for i, tag in enumerate(tags) if tag == (9, "$ACADVER")), "AC1015")
    stream = io.BytesIO()
    writer = BinaryTagWriter(stream, dxfversion=version, encoding="latin1")
    writer.write_signature()
    for code, value in tags:
        writer.write_tag2(code, value)
    return stream.getvalue()


class Checker:
    def __init__(self, program, folder):
        self.program, self.folder, self.tried, self.bad = program, folder, 0, 0

    def check(self, holds, what):
        self.tried += 1
        if not holds:
            self.bad += 1
            print(what)

    def play(self, content, *arguments, script=b""):
        """What a verb makes of a drawing; the folder's files go by fixed names."""
        drawing, output = self.folder / "in.dxf", self.folder / "out.dxf"
        drawing.write_bytes(content)
        output.unlink(missing_ok=True)
        command = [self.program, arguments[0], str(drawing), *arguments[1:], "--output", str(output)]
        run = subprocess.run(command, input=script, capture_output=True, timeout=60)
        self.check(run.returncode == 0, f"{arguments}: {run.returncode} {run.stderr.decode()}")
        return output.read_bytes() if output.exists() else b""

    def check_forms(self, name, content):
        tags = list(text_tags(content))
        others = written_binary(content)
        self.check(self.play(others, "run", "--script", "-") == others, f"{name}: saved with other bytes")
        own = self.play(content, "convert", "--to", "binary")
        self.check(name == "entities_only.dxf" or own == others, f"{name}: the writers differ")
        self.check(list(binary_tags(own)) == tags, f"{name}: another reader finds other values")
        back = self.play(own, "convert", "--to", "text")
        self.check(list(text_tags(back)) == tags, f"{name}: other values come back")

    def check_script(self, path, plan):
        edited = self.play(plan, "run", "--script", "-", script=path.read_bytes())
        edited_binary = self.play(written_binary(plan), "run", "--script", "-", script=path.read_bytes())
        self.check(list(binary_tags(edited_binary)) == list(text_tags(edited)), f"{path.name}: other values")


def main():
    plan = (SAMPLES / "floorplan.dxf").read_bytes()
    with tempfile.TemporaryDirectory() as scratch:
        checker = Checker(sys.argv[1], pathlib.Path(scratch))
        for path in sorted((HERE / "corpus").glob("*.dxf")):
            checker.check_forms(path.name, path.read_bytes())
        checker.check_forms("floorplan.dxf", plan)
        for line in (SAMPLES / "runs.txt").read_text().splitlines():
            if not line.startswith("#"):
                drawing, script = line.split()
                checker.check_script(SAMPLES / script, (SAMPLES / drawing).read_bytes())
    print(f"{checker.tried} checks, {checker.bad} bad")
    sys.exit(1 if checker.bad or not checker.tried else 0)


if __name__ == "__main__":
    main()
