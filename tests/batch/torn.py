#!/usr/bin/python3
"""Saves in which one system call, or the whole process, fails: torn.py PROGRAM COMPILER [--kills N] [--news N]

A preloaded library (spoiltCalls.cpp) makes each call that concerns the folder of the result fail in turn, kills the
process there, or ends it by a signal: the old file stays or the new one is there, whole, and nothing else; only a
process that was killed may leave its temporary file. Then one allocation fails: a status that says so, nothing saved.
--kills kills at N random moments as well, --news fails N random allocations of each verb.
"""

import argparse
import os
import pathlib
import random
import re
import signal
import subprocess
import tempfile
import time

from program import Report

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
OLD = b"what was there before"
FIRST_ALLOCATION = 3000
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
        self.calls = {
            "o.dxf": ("run", plan, "--script", SAMPLES / "tour.scr", "--output", "out/o.dxf"),
            "j.dxf": ("join", flat, "--output", "out/j.dxf"),
            "b.dxf": ("convert", plan, "--to", "binary", "--output", "out/b.dxf"),
            "e.dxf": ("export", flat, "--output", "out/e.dxf"),
            "p.svg": ("show", flat, "--output", "out/p.svg"),
            "a.dxf": ("audit", flat, "--output", "out/a.dxf"),
        }
        self.report = Report()

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

    # From where the options are read: until then the library that reads them ends the process.
    def without_memory(self, count):
        rng = random.Random(2)
        for name, arguments in self.calls.items():
            self.prepare(name)
            last = 2000
            while self.call(arguments, new=last).returncode != 0 or b"+" in self.log.read_bytes():
                last *= 2
            for number in (rng.randrange(FIRST_ALLOCATION, last) for _ in range(count)):
                self.prepare(name)
                run = self.call(arguments, new=number)
                what = f"{name}, allocation {number}: {run.returncode} {run.stderr[-300:]} {self.names()}"
                self.report.check(run.returncode in (0, 3, 4, 5) and self.names() == [name], what)
                self.report.check(run.returncode == 0 or ("not enough memory" in run.stderr and
                                  (self.out / name).read_bytes() == OLD), what)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program")
    parser.add_argument("compiler")
    parser.add_argument("--kills", type=int, default=3)
    parser.add_argument("--news", type=int, default=10)
    chosen = parser.parse_args()
    with tempfile.TemporaryDirectory() as scratch:
        torn = Torn(chosen.program, chosen.compiler, pathlib.Path(scratch))
        torn.spoilt_calls()
        torn.kills(chosen.kills)
        torn.without_memory(chosen.news)
        torn.report.finish()


if __name__ == "__main__":
    main()
