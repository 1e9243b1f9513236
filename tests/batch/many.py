#!/usr/bin/python3
"""Several drawings in one call, pipes and signals: many.py PROGRAM FLAT [COUNT]

COUNT drawings, of which ten are broken, are joined by one call (40 without it):
the others come out as they do one by one. FLAT is a plan with walls to join.
"""

import contextlib
import json
import os
import pathlib
import pty
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from program import Report, make_drawing

BROKEN = 10

# Calls that are refused before anything is opened, with words of the message. All but the first few would cost a drawing.
REFUSED = [
    (2, ["join", "a.dxf", "b.dxf", "--output", "c.dxf"], "--output-dir"),
    (2, ["join", "a.dxf", "--output", "c.dxf", "--output-dir", "out"], "either"),
    (2, ["join", "a.dxf", "b.dxf", "--suffix", "-x"], "--output-dir"),
    (2, ["convert", "a.dxf", "b.dxf", "--to", "text"], "--output-dir"),
    (2, ["show", "a.dxf", "b.dxf", "--output-dir", "out"], "--type"),
    (2, ["show", "a.dxf", "--output", "-"], "--type"),
    (2, ["show", "a.dxf", "--output", "c.png", "--type", "svg"], "contradict"),
    (2, ["list", "a.dxf", "b.dxf", "--jobs", "0"], "--jobs"),
    (2, ["list", "-", "-"], "standard input"),
    (2, ["run", "-", "--script", "-"], "standard input"),
    (2, ["join", "-", "--output-dir", "out"], "standard input"),
    (2, ["join", "a.dxf", "b.dxf", "--save-script", "c.scr"], "c.scr"),
    (2, ["join", "a.dxf", "--save-script", "-", "--output", "-"], "printed"),
    (2, ["join", "a.dxf", "sub/a.dxf", "--output-dir", "out"], "a.dxf and sub/a.dxf"),
    (2, ["join", "a.dxf", "b.dxf", "--output-dir", ".", "--overwrite"], "a.dxf"),
    (2, ["join", "sub/twin.dxf", "a.dxf", "--output-dir", ".", "--suffix", "", "--overwrite"], "a.dxf"),
    (2, ["join", "b.dxf", "--output-dir", "taken"], "--overwrite"),
    (2, ["join", "link.dxf", "--output-dir", "taken", "--overwrite"], "link"),
    (2, ["list", "a.dxf", "b.dxf", "--report", "sub/twin.dxf"], "report"),
    (2, ["join", "a.dxf", "--output-dir", "out", "--report", "out/../out/a.dxf"], "report"),
    (4, ["join", "a.dxf", "--output-dir", "nowhere"], "nowhere: No such file"),
    (4, ["join", "a.dxf", "--output-dir", "b.dxf"], "b.dxf: Not a directory"),
]


class Many:
    def __init__(self, program, flat, folder):
        self.program, self.flat, self.folder = program, pathlib.Path(flat), folder
        self.report = Report()

    def call(self, *arguments, data=None, limit=None):
        """In the folder, bytes in and out."""
        before = limit and (lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
        return subprocess.run([self.program, *map(str, arguments)], input=data, capture_output=True, cwd=self.folder,
                              timeout=600, preexec_fn=before)

    def check(self, what, good, more=""):
        self.report.check(good, f"{what}: {more}")

    def names(self, folder="."):
        return sorted(path.name for path in (self.folder / folder).iterdir())

    def lines(self, name):
        return [json.loads(line) for line in (self.folder / name).read_text().splitlines()]

    def refusals(self):
        for name in ("out", "sub", "taken"):
            (self.folder / name).mkdir()
        for name in ("a.dxf", "b.dxf", "sub/a.dxf", "taken/b.dxf", "link.dxf"):
            shutil.copy(self.flat, self.folder / name)
        (self.folder / "sub/twin.dxf").hardlink_to(self.folder / "a.dxf")
        (self.folder / "taken/link.dxf").symlink_to("../b.dxf")
        before = {path: path.read_bytes() for path in self.folder.rglob("*") if path.is_file()}
        for status, arguments, words in REFUSED:
            run = self.call(*arguments, data=b"")
            self.check(arguments, run.returncode == status and words in run.stderr.decode(), (run.returncode, run.stderr))
        after = {path: path.read_bytes() for path in self.folder.rglob("*") if path.is_file()}
        self.check("refused calls", before == after, "changed a file")

    # Good and broken drawings mixed: what one call gives is what a call for each gives.
    def as_one_by_one(self, count):
        plans = self.folder / "plans"
        alone, together = self.folder / "alone", self.folder / "together"
        for folder in (plans, alone, together):
            folder.mkdir()
        whole = self.flat.read_bytes()
        wall = make_drawing(self.folder / "wall.dxf", [(0, 0), (900, 0)], [(500, -300), (500, 300)]).read_bytes()
        names = [f"{i:04}.dxf" for i in range(count)]
        broken = set(names[:: count // BROKEN][:BROKEN])
        for i, name in enumerate(names):
            # A group code that is no number, at a place of its own.
            (plans / name).write_bytes(b"999\n%d\n" % i + (b"0\nSECTION\nx%d\nHEADER\n" % i if name in broken else
                                       whole if i % 50 == 1 else wall))
        arguments = [f"plans/{name}" for name in names]
        run = self.call("join", *arguments, "--output-dir", "together", "--suffix", "-joined", "--jobs", 2,
                        "--keep-going", "--report", "report.jsonl")
        self.check("status", run.returncode == 3, (run.returncode, run.stderr))
        printed = b""
        for name, line in zip(names, self.lines("report.jsonl"), strict=True):
            one = self.call("join", f"plans/{name}", "--output", f"alone/{name}")
            out = together / name.replace(".", "-joined.")
            good = name not in broken
            self.check(name, one.returncode == line["status"] == (0 if good else 3), line)
            self.check(name, line["input"] == f"plans/{name}" and line["output"] == f"together/{out.name}", line)
            self.check(name, line["messages"] == one.stderr.decode().replace("orvex-batch: ", "").splitlines(), line)
            if good:
                self.check(name, out.read_bytes() == (alone / name).read_bytes(), "other bytes than alone")
                self.check(name, line["counts"]["joined"] > 0, line)
                printed += f"plans/{name}\n".encode() + one.stdout
            else:
                self.check(name, f"plans/{name}:5:" in line["messages"][0] and not out.exists(), line)
        self.check("printed", run.stdout == printed, "not in order")
        self.check("told", run.stderr.count(b"orvex-batch: ") == BROKEN, run.stderr)
        self.check("results", len(self.names("together")) == count - BROKEN)

    # Without --keep-going nothing is begun after a failure, and the report says so.
    def stops(self):
        (self.folder / "bad.dxf").write_text("broken\n")
        run = self.call("list", "a.dxf", "bad.dxf", "b.dxf", "--report", "r.jsonl", "--json")
        self.check("stop", run.returncode == 3, run.stderr)
        self.check("stop", [line["status"] for line in self.lines("r.jsonl")] == [0, 3, None], self.lines("r.jsonl"))
        self.check("stop", [json.loads(line)["drawing"] for line in run.stdout.splitlines()] == ["a.dxf"], run.stdout)

    def pipes(self):
        drawing = (self.folder / "a.dxf").read_bytes()
        binary = self.call("convert", "-", "--to", "binary", "--output", "-", data=drawing)
        self.check("binary", binary.returncode == 0 and b"\r\n\x1a\0" in binary.stdout[:30], binary.stderr)
        text = self.call("convert", "-", "--to", "text", "--output", "-", data=binary.stdout).stdout
        alone = self.call("list", "a.dxf", "--json").stdout
        for form in (drawing, binary.stdout, text):
            self.check("listed", self.call("list", "-", "--json", data=form).stdout == alone)
            same = self.call("run", "-", "--script", "/dev/null", "--output", "-", data=form)
            self.check("same bytes", same.stdout == form and same.returncode == 0, same.stderr)
        joined = self.call("join", "-", "--output", "-", data=drawing)
        self.call("join", "a.dxf", "--output", "j.dxf")
        self.check("joined", joined.stdout == (self.folder / "j.dxf").read_bytes())
        self.check("lines", joined.stderr == self.call("join", "a.dxf").stdout, "aren't on standard error")
        cut = self.call("list", "-", data=drawing[:700] + b"\nx\n0\n")
        self.check("cut", cut.returncode == 3 and cut.stderr.startswith(b"orvex-batch: standard input:"), cut.stderr)

    # Names that are no text, or more than text, stay on their line and are told exactly.
    def odd_names(self):
        name = b"n\xff\n\x1b.dxf"
        shutil.copy(self.flat, bytes(self.folder) + b"/" + name)
        shutil.copy(self.flat, self.folder / "-x.dxf")
        run = subprocess.run([self.program, b"list", b"--json", b"--report", b"r.jsonl", b"--", b"-x.dxf", name],
                             capture_output=True, cwd=self.folder, timeout=60)
        odd = json.loads(run.stdout.splitlines()[1])
        line = self.lines("r.jsonl")[1]
        for key, value in (("drawing", odd["drawing"]), ("input", line["input"])):
            self.check(key, value == "n\ufffd\\U+000A\\U+001B.dxf", value)
        self.check("bytes", odd["input_bytes"] == line["input_bytes"] == name.hex(), line)
        layered = (self.folder / "a.dxf").read_bytes().replace(b"WALL-EXT", b"W\\U+0007X")
        names = {mline["layer"] for mline in json.loads(self.call("list", "-", "--json", data=layered).stdout)["multilines"]}
        self.check("layers", "W\\U+0007X" in names and not any("\a" in each for each in names), names)
        self.check("layers", b"\a" not in self.call("list", "-", data=layered).stdout)

    # A bar on a terminal, gone at the end; what is printed and reported is the same.
    def progress(self):
        ours, theirs = pty.openpty()
        call = [self.program, "list", "a.dxf", "bad.dxf", "b.dxf", "--json", "--keep-going"]
        run = subprocess.run(call, stdout=subprocess.PIPE, stderr=theirs, cwd=self.folder, timeout=60)
        os.close(theirs)
        shown = ""
        with contextlib.suppress(OSError):  # the terminal's end; what it holds comes in pieces
            while piece := os.read(ours, 65536):
                shown += piece.decode()
        os.close(ours)
        self.check("bar", "] 3 of 3, 1 failed" in shown and shown.endswith("\r\x1b[K"), repr(shown))
        self.check("bar", shown.count("orvex-batch: ") == 1 and "\x1b[Korvex-batch: bad.dxf:1:" in shown, repr(shown))
        self.check("bar", run.stdout == self.call(*call[1:]).stdout)
        self.check("no bar", b"\x1b" not in self.call(*call[1:]).stderr)

    # A process that dies, and one that has no room, cost their own drawings only.
    def failing_jobs(self):
        process = subprocess.Popen([self.program, "list", "a.dxf", "-", "b.dxf", "--keep-going", "--report", "r.jsonl"],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, cwd=self.folder)
        children = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children")
        while len(self.lines("r.jsonl") if (self.folder / "r.jsonl").exists() else []) != 1 or not children.read_text():
            time.sleep(0.01)
        subprocess.run(["kill", "-KILL", *children.read_text().split()], check=True)
        _, errors = process.communicate(timeout=60)
        self.check("killed", process.returncode == 7 and b"standard input: the process" in errors, errors)
        self.check("killed", [line["status"] for line in self.lines("r.jsonl")] == [0, 7, 0], self.lines("r.jsonl"))
        (self.folder / "long.dxf").write_bytes(b"999\nx\n" * 40000 + self.flat.read_bytes())
        full = self.call("run", "long.dxf", "a.dxf", "--script", "/dev/null", "--output-dir", "out", "--keep-going",
                         "--jobs", 2, limit=150_000)
        self.check("full", full.returncode == 4 and b"out/long.dxf: File too large" in full.stderr, full.stderr)
        self.check("full", self.names("out") == ["a.dxf"], self.names("out"))
        (self.folder / "out/a.dxf").unlink()

    # A signal at any moment: the old file or the new one, and nothing else.
    def signals(self):
        (self.folder / "big.dxf").write_bytes(b"999\nx\n" * 4_000_000 + self.flat.read_bytes())
        call = ["run", "big.dxf", "--script", "/dev/null", "--output"]
        begin = time.monotonic()
        self.call(*call, "out/whole.dxf")
        whole = time.monotonic() - begin
        for i in range(8):
            (self.folder / "out/whole.dxf").write_bytes(b"old")
            with subprocess.Popen([self.program, *call, "out/whole.dxf"], cwd=self.folder) as process:
                time.sleep(whole * (i + 1) / 8)
                number = (signal.SIGINT, signal.SIGTERM)[i % 2]
                process.send_signal(number)
            self.check("signal", process.returncode in (0, 128 + number), process.returncode)
            size = (self.folder / "out/whole.dxf").stat().st_size
            self.check("signal", self.names("out") == ["whole.dxf"] and size in (3, (self.folder / "big.dxf").stat().st_size), size)
        (self.folder / "out/whole.dxf").unlink()
        many = ["run", "a.dxf", "-", "big.dxf", "b.dxf", "--script", "/dev/null", "--jobs", "2", "--report", "r.jsonl"]
        (self.folder / "r.jsonl").unlink()
        with subprocess.Popen([self.program, *many], cwd=self.folder, stdin=subprocess.PIPE) as process:
            while not (self.folder / "r.jsonl").exists() or len(self.lines("r.jsonl")) != 1:
                time.sleep(0.01)
            process.send_signal(signal.SIGTERM)
            process.wait(60)
        statuses = [line["status"] for line in self.lines("r.jsonl")]
        self.check("signal to many", process.returncode == 143 and statuses[:2] == [0, 143], (process.returncode, statuses))
        self.check("signal to many", len(statuses) == 4 and statuses[3] is None, statuses)


def main():
    with tempfile.TemporaryDirectory() as scratch:
        many = Many(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], pathlib.Path(scratch))
        many.refusals()
        many.as_one_by_one(int(sys.argv[3]) if len(sys.argv) > 3 else 40)
        for test in (many.stops, many.pipes, many.odd_names, many.progress, many.failing_jobs, many.signals):
            test()
        many.report.finish()


if __name__ == "__main__":
    main()
