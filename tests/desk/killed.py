#!/usr/bin/python3
"""Windows that are killed at random moments: killed.py RESTLESS_DESK MODULE ORVEX_BATCH DRAWING [--kills N]

The drawing stays as it is, and what was kept is whole: names, rights, a drawing that opens without a finding and has the
walls up to some moment. A second window lives meanwhile, and what it keeps is its own. It goes on until an autosave was
found, or nothing was tried.
"""

import argparse
import fcntl
import json
import os
import pathlib
import random
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time

NAME = re.compile(r"(desk-[a-z]{8})\.(lock|of|dxf)")
LONGEST_LIFE = 5  # seconds after the first wall
MOST_KILLS = 50  # without an autosave, however slow the machine


class Killed:
    def __init__(self, chosen, folder):
        self.chosen, self.folder = chosen, folder
        self.state = folder / "state"
        self.kept = self.state / "orvex/autosave"
        self.wrong, self.checks, self.autosaves = [], 0, 0
        self.plan = folder / "plan.dxf"
        shutil.copy(chosen.drawing, self.plan)
        self.bytes = self.plan.read_bytes()
        self.walls = self.count(self.plan)

    def check(self, good, text):
        self.checks += 1
        if not good:
            self.wrong.append(text)

    def count(self, drawing):
        listed = subprocess.run([self.chosen.batch, "list", drawing, "--json"], capture_output=True, text=True, check=True)
        return len(json.loads(listed.stdout)["multilines"])

    def start(self, drawing):
        environment = dict(os.environ, XDG_STATE_HOME=str(self.state), XDG_CONFIG_HOME=str(self.folder), QT_QPA_PLATFORM="offscreen")
        desk = subprocess.Popen([self.chosen.desk, self.chosen.module, drawing], stdout=subprocess.PIPE, env=environment, text=True)
        assert desk.stdout.readline() == "1\n"
        return desk

    def entries(self):
        return {path.stem for path in self.kept.glob("*.lock")} if self.kept.exists() else set()

    @staticmethod
    def is_free(lock):
        with open(lock, "rb") as stream:
            try:
                fcntl.flock(stream, fcntl.LOCK_EX | fcntl.LOCK_NB)
            except BlockingIOError:
                return False
            return True

    def kill_once(self, rng, other):
        others = self.entries()
        with self.start(self.plan) as desk:
            time.sleep(LONGEST_LIFE * rng.random())
            desk.send_signal(signal.SIGKILL)
            drawn = max(map(int, desk.stdout.read().split()), default=1)
        for entry in self.entries() - others:
            stem = self.kept / entry
            if self.is_of(stem, other):
                self.check(not self.is_free(f"{stem}.lock"), "a living window's lock is free")
                continue
            end = time.monotonic() + 60  # a save that was begun comes to its end
            while not self.is_free(f"{stem}.lock") and time.monotonic() < end:
                time.sleep(0.05)
            self.check(self.is_free(f"{stem}.lock"), "a dead window's lock isn't free")
            self.look_at(stem, drawn)
        self.check(self.plan.read_bytes() == self.bytes, "the drawing was changed")
        self.check(stat.S_IMODE(self.kept.stat().st_mode) == 0o700 if self.kept.exists() else True, "rights of the folder")
        for path in self.kept.glob("*") if self.kept.exists() else ():
            self.check(NAME.fullmatch(path.name), f"left behind: {path.name}")
            self.check(stat.S_IMODE(path.stat().st_mode) == 0o600, f"rights of {path.name}")

    @staticmethod
    def is_of(stem, drawing):
        of = pathlib.Path(f"{stem}.of")
        return of.exists() and of.read_text(encoding="utf-8").endswith(str(drawing))

    def look_at(self, stem, drawn):
        drawing = pathlib.Path(f"{stem}.dxf")
        if not drawing.exists():
            return
        self.autosaves += 1
        self.check(self.is_of(stem, self.plan), "what it is of")
        audit = subprocess.run([self.chosen.batch, "audit", drawing], capture_output=True, text=True)
        self.check(audit.returncode == 0 and "EOF" in drawing.read_text(encoding="utf-8")[-8:], f"{audit}")
        new = self.count(drawing) - self.walls
        self.check(0 < new <= drawn, f"{new} walls were kept of {drawn}")

    def run(self):
        rng = random.Random(self.chosen.kills)
        other = self.folder / "other.dxf"
        shutil.copy(self.plan, other)
        with self.start(other) as living:
            kills = 0
            while kills < self.chosen.kills or (self.autosaves == 0 and kills < MOST_KILLS):
                self.kill_once(rng, other)
                kills += 1
            living.kill()
        print(f"{kills} kills, {self.autosaves} autosaves, {self.checks} checks")
        self.check(self.autosaves > 0, "nothing was kept")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("desk", "module", "batch", "drawing"):
        parser.add_argument(name)
    parser.add_argument("--kills", type=int, default=4)
    # The save that the last window was killed in may still write.
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        killed = Killed(parser.parse_args(), pathlib.Path(folder))
        killed.run()
    print("\n".join(killed.wrong[:20]))
    sys.exit(1 if killed.wrong else 0)


if __name__ == "__main__":
    main()
