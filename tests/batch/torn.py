#!/usr/bin/python3
"""Saves in which one system call, or the whole process, fails: torn.py PROGRAM COMPILER [--kills N] [--news N] [--points N]

A preloaded library (spoiltCalls.cpp) makes each call that concerns the folder of the result fail in turn, kills the
process there, or ends it by a signal: the old file stays or the new one is there, whole, and nothing else; only a
process that was killed may leave its temporary file. Then one allocation fails: a status that says so, nothing saved.
--kills kills at N random moments as well, --news fails N random allocations of each verb, --points each of the first N
of a call, of opening, of each tool's first edit, and of saving.
"""

import argparse
import collections
import fcntl
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import tempfile
import time

from program import Report

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
OLD = b"what was there before"
TOOLS = ("CC", "OC", "MC", "CT", "OT", "MT", "CJ", "AV", "DV", "CS", "CA", "WA")
LEFT_BEHIND = re.compile(r"\.saving-\w{6}")  # by a process that was killed
STATUSES = {"fail": (0, 4), "half": (0,), "kill": (0, -signal.SIGKILL), "term": (0, 143)}


class Torn:
    def __init__(self, program, compiler, folder):
        self.program, self.folder = str(pathlib.Path(program).resolve()), folder
        self.out = folder / "out"
        self.log = folder / "log"
        self.library = folder / "spoilt.so"
        source = pathlib.Path(__file__).with_name("spoiltCalls.cpp")
        subprocess.run([compiler, "-std=c++20", "-shared", "-fPIC", "-o", self.library, source, "-ldl"], check=True)
        flat, plan = SAMPLES / "flat.dxf", SAMPLES / "floorplan.dxf"
        script = folder / "tour.scr"  # ends with what is printed right before the save
        script.write_text((SAMPLES / "tour.scr").read_text() + "ZOOM\nC\n1,1\n777\n")
        self.calls = {
            "o.dxf": ("run", plan, "--script", script, "--output", "out/o.dxf"),
            "j.dxf": ("join", flat, "--output", "out/j.dxf"),
            "b.dxf": ("convert", plan, "--to", "binary", "--output", "out/b.dxf"),
            "e.dxf": ("export", flat, "--output", "out/e.dxf"),
            "p.svg": ("show", flat, "--output", "out/p.svg"),
            "a.dxf": ("audit", flat, "--output", "out/a.dxf"),
        }
        self.report = Report()
        self.statuses = collections.Counter()

    def call(self, arguments, **spoilt):
        self.log.write_bytes(b"")
        environment = dict(os.environ, LD_PRELOAD=str(self.library), SPOILT_FOLDER="out", SPOILT_LOG=str(self.log),
                           ASAN_OPTIONS="verify_asan_link_order=0:alloc_dealloc_mismatch=0")
        environment.update((f"SPOILT_{name.upper()}", str(value)) for name, value in spoilt.items())
        return subprocess.run([self.program, *map(str, arguments)], capture_output=True, text=True, timeout=120,
                              cwd=self.folder, env=environment)

    def prepare(self, *names):
        self.out.mkdir(exist_ok=True)
        for path in self.out.iterdir():
            path.unlink()
        for name in names:
            (self.out / name).write_bytes(OLD)

    def names(self):
        return sorted(path.name for path in self.out.iterdir())

    def whole(self, name):
        """The bytes that the call gives when nothing is in its way, and how many of its calls count."""
        self.prepare(name)
        run = self.call(self.calls[name])
        self.report.check(run.returncode == 0 and self.names() == [name], f"{name}: {run}")
        return (self.out / name).read_bytes(), len(self.log.read_bytes())

    def spoilt_calls(self):
        for name, arguments in self.calls.items():
            new, _ = self.whole(name)
            for how in ("fail", "half", "kill", "term", "fail named", "kill named", "term named"):
                number, was_spoilt = 1, True
                while was_spoilt:
                    self.prepare(name)
                    run = self.call(arguments, call=number, how=how)
                    was_spoilt = b"+" in self.log.read_bytes()
                    what = f"{name}, {how} at {number} of {self.log.read_text()}: {run.returncode} {run.stderr} {self.names()}"
                    status = run.returncode if was_spoilt else run.returncode or None
                    self.report.check(status in STATUSES[how.split()[0]] or not was_spoilt, what)
                    found = (self.out / name).read_bytes()
                    self.report.check(found == new or (found == OLD and run.returncode != 0), what)
                    # A save that came to its end before the signal is a save.
                    self.report.check(how.startswith(("kill", "term")) or (found == new) == (run.returncode == 0), what)
                    self.report.check(how.startswith("kill") or run.returncode != 4 or f"out/{name}: " in run.stderr, what)
                    rest = [each for each in self.names() if each != name]
                    self.report.check(not rest or (how.startswith("kill") and len(rest) == 1 and LEFT_BEHIND.fullmatch(rest[0])), what)
                    number += 1
                self.report.check(number > (2 if how == "half" else 6), f"{name}, {how}: only {number - 1} calls")

    def left_behind(self):
        """What a later call removes of what lies in the folder: the user's own temporary files that nobody writes."""
        free, locked, others = self.out / ".saving-aB3dEf", self.out / ".saving-locked", []
        for name, make in (("a.dxf", None), (".saving-short", None), (".saving-longer7", None), (".saving-a_cdef", None),
                           ("saving-abcdef", None), (".saving-folder", os.mkdir), (".saving-linked", lambda path: path.symlink_to("a.dxf")),
                           (".saving-twoone", lambda path: path.hardlink_to(self.out / "a.dxf")), (".saving-piped1", os.mkfifo),
                           (".saving-others", lambda path: (path.touch(), os.chown(path, 4321, -1)) if os.geteuid() == 0 else path.mkdir())):
            others.append((name, make))
        self.prepare()
        for name, make in others:
            (make or pathlib.Path.touch)(self.out / name)
        free.touch()
        with open(locked, "w", encoding="ascii") as stream:
            fcntl.flock(stream, fcntl.LOCK_EX)
            run = self.call(("convert", SAMPLES / "flat.dxf", "--to", "text", "--output", "out/new.dxf"))
            expected = sorted([*(name for name, _ in others), locked.name, "new.dxf"])
            self.report.check(run.returncode == 0 and self.names() == expected, f"left behind: {self.names()}, {run}")
        shutil.rmtree(self.out)

    # Whatever lies in the way of the next save is left alone, and doesn't hinder it.
    def kills(self, count):
        rng = random.Random(1)
        big = self.folder / "big.dxf"
        big.write_bytes(b"999\nx\n" * 2_000_000 + (SAMPLES / "flat.dxf").read_bytes())
        many = [self.folder / f"{n}.dxf" for n in range(4)]
        for path in many:
            path.write_bytes((b"999\nx\n" * 300_000) + (SAMPLES / "flat.dxf").read_bytes())
        joins = ("join", *many, "--jobs", 2, "--output-dir", "out", "--overwrite", "--keep-going")
        for arguments, names in ((("run", big, "--script", "/dev/null", "--output", "out/k.dxf"), ["k.dxf"]),
                                 (joins, [path.name for path in many])):
            self.prepare(*names)
            begin = time.monotonic()
            self.call(arguments)
            whole = time.monotonic() - begin
            new = {name: (self.out / name).read_bytes() for name in names}
            replaced = 0
            for _ in range(count):
                self.prepare(*names)
                with subprocess.Popen([self.program, *map(str, arguments)], cwd=self.folder, stdout=subprocess.DEVNULL,
                                      stderr=subprocess.DEVNULL, start_new_session=True) as process:
                    time.sleep(whole * rng.random())
                    os.killpg(process.pid, signal.SIGKILL)
                for name in names:
                    found = (self.out / name).read_bytes()
                    replaced += found != OLD
                    self.report.check(found in (OLD, new[name]), f"{name} is torn after a kill: {len(found)} bytes")
                rest = set(self.names()) - set(names)
                self.report.check(all(LEFT_BEHIND.fullmatch(each) for each in rest), f"left behind: {rest}")
            print(f"{count} kills of {arguments[0]}: {replaced} of {count * len(names)} results were new")

    def without_memory(self, name, number, new, beginning=None):
        """One allocation fails: where a result is there it is whole. False when so many aren't made."""
        self.prepare(name)
        run = self.call(self.calls[name], new=number, **({"from": beginning} if beginning else {}))
        what = f"{name}, allocation {number} from {beginning}: {run.returncode} {run.stderr[-300:]} {self.names()}"
        found = (self.out / name).read_bytes()
        self.report.check(run.returncode in (0, 3, 4, 5) and self.names() == [name], what)
        self.report.check(found == new if run.returncode == 0 else found == OLD and "not enough memory" in run.stderr, what)
        self.statuses[run.returncode] += 1
        return b"+" in self.log.read_bytes()

    def random_news(self, count):
        rng = random.Random(2)
        for name, arguments in self.calls.items():
            new, _ = self.whole(name)
            first, last = self.first_allocation(name), 2000
            while b"+" in (self.call(arguments, new=last), self.log.read_bytes())[1]:
                last *= 2
            for _ in range(count):
                self.without_memory(name, rng.randrange(first, last), new)

    # What the libraries do before the program begins is theirs.
    def first_allocation(self, name):
        number = 1
        while self.call(self.calls[name], new=number).returncode == -signal.SIGABRT:
            number += 1
        return number

    def first_news(self, count):
        name = "o.dxf"
        new, _ = self.whole(name)
        first = self.first_allocation(name)
        self.report.check(first < 60, f"the first {first - 1} allocations end it")
        for beginning in (None, "floorplan.dxf", *(f"]: {tool}" for tool in TOOLS), ": 777"):
            for number in range(first if beginning is None else 1, count + (first if beginning is None else 1)):
                reached = self.without_memory(name, number, new, beginning)
                self.report.check(reached or number > 1, f"nothing is allocated from {beginning} on")
        print(f"statuses after {sum(self.statuses.values())} failed allocations:",
              ", ".join(f"{status}: {times}" for status, times in sorted(self.statuses.items())))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("compiler")
    parser.add_argument("--kills", type=int, default=3)
    parser.add_argument("--news", type=int, default=6)
    parser.add_argument("--points", type=int, default=3)
    parser.add_argument("--only", choices=("calls", "kills", "news"), help="one kind of failure alone")
    chosen = parser.parse_args()
    with tempfile.TemporaryDirectory() as scratch:
        torn = Torn(chosen.program, chosen.compiler, pathlib.Path(scratch))
        if chosen.only in (None, "calls"):
            torn.left_behind()
            torn.spoilt_calls()
        if chosen.only in (None, "kills"):
            torn.kills(chosen.kills)
        if chosen.only in (None, "news"):
            torn.random_news(chosen.news)
            torn.first_news(chosen.points)
        torn.report.finish()


if __name__ == "__main__":
    main()
