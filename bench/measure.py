"""Measure whole processes: wall time and peak memory, several commands in turns.

Commands take turns within a round, so that a machine that grows slower or
faster does so for all of them; what counts is the median of the rounds. Peak
memory is never reported below what this script itself takes, some ten megabytes.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass

BENCH = pathlib.Path(__file__).resolve().parent
ROUNDS = 5


@dataclass
class Sample:
    seconds: float
    peak_bytes: int
    cpu_seconds: float = 0.0


def run(command):
    """One run; a command that fails ends the measurement."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    complaints = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}: status {process.returncode}\n{complaints.decode(errors='replace')}")
    return Sample(seconds, usage.ru_maxrss * 1024, usage.ru_utime + usage.ru_stime)


def interleaved(commands, rounds=ROUNDS):
    """Median samples of named commands, after one round that isn't counted."""
    samples = {name: [] for name in commands}
    for counted in [False] + [True] * rounds:
        for name, command in commands.items():
            sample = run(command)
            if counted:
                samples[name].append(sample)
    return {name: median(taken) for name, taken in samples.items()}


def median(samples):
    return Sample(
        statistics.median(sample.seconds for sample in samples),
        int(statistics.median(sample.peak_bytes for sample in samples)),
        statistics.median(sample.cpu_seconds for sample in samples),
    )


def load_warning():
    load = os.getloadavg()[0]
    if load > 0.5:
        print(f"note: the machine is not idle, load {load:.1f} on {os.cpu_count()} processors")


def play(program, drawing, script, output=None):
    """The command that plays a script on a drawing."""
    return [program, "run", drawing, "--script", script] + (["--output", output] if output else [])


def drawing_of(folder, multilines, others=1):
    """A generated drawing, made when it isn't there yet. A process of its own makes it, to keep this one small."""
    path = pathlib.Path(folder) / f"grid{multilines}x{others}.dxf"
    if not path.exists():
        unfinished = path.with_suffix(".part")
        maker = [BENCH / "make_drawing.py", "--multilines", str(multilines), "--others", str(others)]
        subprocess.run([sys.executable, *maker, "--output", unfinished], check=True)
        unfinished.rename(path)
    return path


def script_file(folder, name, text):
    path = pathlib.Path(folder) / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    return path


def reader_of(program, folder):
    """The reader by dxflib: the one built beside the program, else built here with the same optimisation."""
    built = pathlib.Path(program).resolve().parent.parent / "bench" / "dxflib_reader"
    if built.exists():
        return built
    reader = pathlib.Path(folder) / "dxflib_reader"
    source = BENCH / "dxflib_reader.cpp"
    if not reader.exists() or reader.stat().st_mtime < source.stat().st_mtime:
        reader.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["g++", "-std=c++20", "-O2", source, "-ldxflib", "-o", reader], check=True)
    return reader


def arguments(parser, sizes=True):
    """The arguments that all the scripts share."""
    parser.add_argument("program", type=pathlib.Path, help="orvex-batch")
    parser.add_argument("--folder", type=pathlib.Path, default=BENCH.parent / "build" / "bench-data",
                        help="where drawings and scripts go (%(default)s)")
    parser.add_argument("--rounds", type=int, default=ROUNDS)
    if sizes:
        parser.add_argument("--multilines", type=int, default=100_000)
        parser.add_argument("--others", type=int, default=1, help="plain entities beside each multiline")


def milliseconds(seconds):
    return f"{seconds * 1000:9.1f} ms"
