#!/usr/bin/python3
"""Exit statuses and messages of orvex-batch: calls.py PROGRAM

Whatever goes wrong, complaints begin with the program's name, name file and
line, and an older result stays as it is.
"""

import os
import pathlib
import sys
import tempfile

from program import Report, call, make_drawing

OLD = b"an older result"

# Calls with what the complaint has to say: {d} is a good drawing, {t} the scratch folder.
WRONG_CALLS = [
    ([], ""),
    (["fly"], ""),
    (["run"], ""),
    (["run", "{d}"], "--script"),
    (["run", "{d}", "--script"], "--script"),
    (["run", "{d}", "--script", "-", "--speed", "5"], "--speed"),
    (["show", "{d}"], "--output"),
    (["show", "{d}", "--output", "{t}/a.jpg"], ".svg"),
    (["show", "{d}", "--output", "{t}/a.png", "--size", "big"], "1600x1200"),
    (["show", "{d}", "--output", "{t}/a.png", "--size", "0x5"], "1600x1200"),
    (["show", "{d}", "--output", "{t}/a.png", "--size", "10x10x10"], "1600x1200"),
    (["show", "{d}", "--output", "{t}/a.png", "--size", "16385x10"], "16384"),
    (["show", "{d}", "--output", "{t}/a.png", "--size", "16000x16000"], "million"),
    (["list"], "DRAWING"),
    (["convert", "{d}", "--output", "{t}/a.dxf"], "--to"),
    (["convert", "{d}", "--to", "paper", "--output", "{t}/a.dxf"], "paper"),
    (["convert", "{d}", "--to", "text"], "--output"),
]

UNREADABLE = [
    (["list", "{t}/nowhere.dxf"], "{t}/nowhere.dxf"),
    (["list", "{t}"], "{t}"),
    (["list", "{t}/pipe.dxf"], "{t}/pipe.dxf: Not a regular file"),
    (["run", "/dev/zero", "--script", "-"], "/dev/zero: Not a regular file"),
    (["show", "{t}/nowhere.dxf", "--output", "{t}/a.png"], "{t}/nowhere.dxf"),
    (["list", "{t}/binary.dxf"], "{t}/binary.dxf: at byte 0: "),
    (["convert", "{t}/code.dxf", "--to", "binary", "--output", "{t}/a.dxf"], "{t}/code.dxf:3:"),
    (["list", "{t}/code.dxf"], "{t}/code.dxf:3:"),
    (["run", "{t}/code.dxf", "--script", "-"], "{t}/code.dxf:3:"),
    (["run", "{d}", "--script", "{t}/nowhere.scr"], "{t}/nowhere.scr"),
    (["run", "{d}", "--script", "{t}"], "{t}"),
    (["run", "{d}", "--script", "{t}/latin1.scr"], "{t}/latin1.scr:2:"),
]

UNWRITABLE = [
    (["run", "{d}", "--script", "-", "--output", "{t}/nowhere/out.dxf"], "{t}/nowhere/out.dxf"),
    (["run", "{d}", "--script", "-", "--output", "{t}"], "{t}"),
    (["convert", "{d}", "--to", "binary", "--output", "{t}/nowhere/out.dxf"], "{t}/nowhere/out.dxf"),
    (["convert", "{t}/wide.dxf", "--to", "binary", "--output", "{t}/a.dxf"], "{t}/wide.dxf:4: the number is too large"),
    (["show", "{d}", "--output", "{t}/nowhere/out.svg"], "{t}/nowhere/out.svg"),
    (["show", "{d}", "--output", "{t}/nowhere/out.png"], "{t}/nowhere/out.png"),
    (["show", "{d}", "--output", "{t}/full.png"], "{t}/full.png: No space left on device"),
]

# Scripts that can't be played on, the line to blame, and what is said.
UNPLAYABLE = [
    ("NOSUCH\n", 1, "NOSUCH"),
    ("ZOOM\nE\n; comment\nNOSUCH\n", 4, "NOSUCH"),
    ("MLSTYLE\n", 1, "window"),
    ("zoom\nE\nmledit\n", 3, "window"),
    ("-MLEDIT\nXX\n", 2, "CC"),
    ("-MLEDIT\nC\n", 2, "keyword"),
    ("-MLEDIT\nCC\nUNDO\n", 3, "UNDO"),  # nothing to take back, so it isn't on offer
    ("-MLEDIT\nCC\n1\n", 3, "pick"),
    ("-MLEDIT\nCC\n1,2 #\n", 3, "pick"),
    ("ZOOM\nQ\n", 2, "keyword"),
    ("ZOOM\nC\nhere\n", 3, "point"),
    ("ZOOM\nC\n0,0\nhigh\n", 4, "number"),
    ("ZOOM\nC\n0,0\n-1\n", 4, "height"),
    ("SETVAR\nNOSUCH\n1\n", 2, "NOSUCH"),
    ("SETVAR\nPICKBOX\n-1\n", 3, "PICKBOX"),
    ("MLINE\nST\nNOSUCH\n", 3, "NOSUCH"),
    ("MLINE\n0,0\n1,0\nC\n", 4, "point"),
]


def fill_scratch(folder):
    drawing = make_drawing(folder / "walls.dxf", [(0, 0), (100, 0)])
    (folder / "binary.dxf").write_bytes(b"a drawing's binary\r\n\x1a\x00" + bytes(40))
    (folder / "code.dxf").write_text("0\nSECTION\ntwo\nHEADER\n0\nENDSEC\n0\nEOF\n")
    (folder / "wide.dxf").write_text("0\nSECTION\n70\n40000\n0\nENDSEC\n0\nEOF\n")
    os.mkfifo(folder / "pipe.dxf")
    (folder / "full.png").symlink_to("/dev/full")
    (folder / "latin1.scr").write_bytes(b"; fine\n; W\xe4nde\n")
    return drawing


def main():
    program = sys.argv[1]
    report = Report()
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        drawing = fill_scratch(folder)
        before = drawing.read_bytes()

        def expect(status, words, *arguments, script="", command=""):
            run = call(program, *arguments, script=script)
            what = f"{command or ' '.join(map(str, arguments))}: status {run.returncode}, {run.stderr!r}"
            report.check(run.returncode == status, what)
            lines = run.stderr.splitlines()
            report.check(lines and all(line.startswith("orvex-batch: ") for line in lines), what)
            report.check(words in run.stderr, f"{what}, expected {words!r}")

        for status, table in ((2, WRONG_CALLS), (3, UNREADABLE), (4, UNWRITABLE)):
            for arguments, words in table:
                filled = [part.format(d=drawing, t=folder) for part in arguments]
                expect(status, words.format(d=drawing, t=folder), *filled)

        out = folder / "out.dxf"
        for script, line, words in UNPLAYABLE:
            out.write_bytes(OLD)
            for source, name in (("-", "standard input"), (folder / "script.scr", folder / "script.scr")):
                (folder / "script.scr").write_text(script)
                arguments = ("run", drawing, "--script", source, "--output", out)
                expect(5, f"{name}:{line}:", *arguments, script=script, command=repr(script))
                expect(5, words, *arguments, script=script, command=repr(script))
            report.check(out.read_bytes() == OLD, f"{script!r}: the older result is gone")
        report.check(drawing.read_bytes() == before, "a drawing was written over")
        leftovers = {path.name for path in folder.iterdir()}
        report.check(leftovers == {"walls.dxf", "pipe.dxf", "full.png", "binary.dxf", "code.dxf", "wide.dxf", "latin1.scr", "script.scr", "out.dxf"},
                     f"left behind: {leftovers}")

        for arguments in (["--help"], ["run", "--help"], ["--version"]):
            run = call(program, *arguments)
            report.check(run.returncode == 0 and "orvex-batch" in run.stdout and not run.stderr, f"{arguments}: {run}")
        module = call(program, "run", drawing, "--script", "-", "--module", folder / "no.omx", script="-MLEDIT\n")
        report.check(module.returncode == 5 and "no.omx" in module.stderr, f"module: {module.stderr}")
        (folder / "script.scr").write_text("ZOOM\nE\n")
        unsaved = folder / "unsaved.dxf"
        for verb in (f"list '{drawing}'", f"run '{drawing}' --script '{folder}/script.scr' --output '{unsaved}'"):
            full = call("/bin/sh", "-c", f"'{program}' {verb} > /dev/full")
            report.check(full.returncode == 4 and full.stderr.startswith("orvex-batch: "), f"full disk: {full.stderr}")
        report.check(not unsaved.exists(), "saved though nothing could be printed")
    report.finish()


if __name__ == "__main__":
    main()
