#!/usr/bin/python3
"""What joining whole plans costs, in user time of the processor, medians of the rounds.

Houses of eight walls with sixteen meetings each, and stems on one long bar:
planning 10,000 walls in at most 0.5 s; join with all its checks in at most
ten times what playing its script takes; ten times the walls in at most twelve
times the time. Planning is join with nothing asked for, less opening the
drawing; it includes reading the multilines. The script says which of these limits doesn't hold, and fails.
"""

import argparse
import math
import os
import statistics
import subprocess
import sys

import measure

WIDTH = 100.0
SMALL = ("houses1000", "comb500")
LARGE = ("houses10000", "comb5000")
ASK_NOTHING = ["--cross", "none", "--tee", "none", "--corners", "no"]
PLAN_SECONDS, TO_PLAYING, GROWTH = 0.5, 10.0, 12.0


def houses(walls):
    """Rows of houses; four walls around, two each way inside."""
    count = walls // 8
    row = math.ceil(math.sqrt(count))
    for i in range(count):
        x, y = i % row * 8000.0, i // row * 8000.0
        for at in (0.0, 2000.0, 4000.0, 6000.0):
            yield (x - 30, y + at), (x + 6030, y + at)
            yield (x + at, y - 30), (x + at, y + 6030)


def comb(stems):
    """Stems from both sides, in turns, on one bar."""
    yield (-1000.0, 0.0), (stems * 500.0, 0.0)
    for i in range(stems):
        yield (i * 500.0, 2000.0 if i % 2 else -2000.0), (i * 500.0, 0.0)


def drawing_of(folder, name, walls):
    import ezdxf

    path = folder / f"{name}.dxf"
    if not path.exists():
        document = ezdxf.new("R2000")
        for points in walls:
            document.modelspace().add_mline(points, dxfattribs={"scale_factor": WIDTH, "justification": 1})
        folder.mkdir(parents=True, exist_ok=True)
        document.saveas(path.with_suffix(".part"))
        path.with_suffix(".part").rename(path)
    return path


def user_seconds(command):
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}: status {process.returncode}")
    return usage.ru_utime


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser, sizes=False)
    options = parser.parse_args()
    measure.load_warning()
    plans = {f"{make.__name__}{count}": make(count)
             for make, counts in ((houses, (1_000, 10_000)), (comb, (500, 5_000))) for count in counts}
    commands = {}
    for name, walls in plans.items():
        drawing = drawing_of(options.folder, name, walls)
        script, output = options.folder / f"{name}.scr", options.folder / f"{name}-joined.dxf"
        join = [options.program, "join", drawing]
        commands[name, "open"] = join + ["--layer", "Defpoints"]  # where nothing lies
        commands[name, "plan"] = join + ASK_NOTHING
        commands[name, "join"] = join + ["--output", output, "--save-script", script]
        commands[name, "play"] = measure.play(options.program, drawing, script, output)
    samples = {key: [] for key in commands}
    for _ in range(options.rounds):
        for key, command in commands.items():
            # The small ones take few ticks of the clock.
            samples[key] += [user_seconds(command) for _ in range(5 if key[0] in SMALL else 1)]
    taken = {key: statistics.median(values) for key, values in samples.items()}
    for name in plans:
        print(f"{name:12} " + "  ".join(f"{what} {taken[name, what]:.3f} s" for what in ("open", "plan", "join", "play")))

    results = [("planning 10,000 walls, s", taken["houses10000", "plan"] - taken["houses10000", "open"], PLAN_SECONDS)]
    results += [(f"join to playing, {name}", taken[name, "join"] / taken[name, "play"], TO_PLAYING) for name in plans]
    results += [(f"{what}, {large} to {small}", taken[large, what] / taken[small, what], GROWTH)
                for small, large in zip(SMALL, LARGE) for what in ("plan", "join")]
    for what, value, limit in results:
        print(f"{what:36} {value:6.2f} of {limit:g}{'' if value <= limit else '  TOO MUCH'}")
    sys.exit(any(value > limit for _, value, limit in results))


if __name__ == "__main__":
    main()
