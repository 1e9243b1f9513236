#!/usr/bin/python3
"""What cuts and a save cost, in a small drawing and in a large one.

Timed inside one process, for the differences of whole runs would drown in
the time of opening: the first cut, which pays for the index of what is drawn;
one further cut of a thousand; and a save beside plainly writing and flushing
the same bytes. Medians of the rounds.
"""

import argparse
import pathlib
import statistics
import subprocess

import grid
import measure

PHASES = ("first cut", "further cut", "save", "write and flush")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser, sizes=False)
    parser.add_argument("--small", type=int, default=1_000, help="multilines of the small drawing")
    parser.add_argument("--large", type=int, default=100_000, help="multilines of the large drawing")
    parser.add_argument("--cycles", type=int, default=1_000)
    options = parser.parse_args()
    measure.load_warning()
    timings = pathlib.Path(options.program).resolve().parent.parent / "bench" / "edit_timings"

    commands = {}
    for count in (options.small, options.large):
        first, more = (
            measure.script_file(options.folder, f"cut{cycles}of{count}.scr", grid.script(cycles, count))
            for cycles in (1, options.cycles)
        )
        drawing = measure.drawing_of(options.folder, count)
        commands[count] = [timings, drawing, first, more, str(options.cycles), options.folder / f"saved{count}.dxf"]
    samples = {count: [] for count in commands}
    for _ in range(options.rounds):
        for count, command in commands.items():
            told = subprocess.run(command, check=True, capture_output=True, text=True).stdout
            samples[count].append([float(value) for value in told.split()])

    medians = {count: [statistics.median(phase) for phase in zip(*rounds)] for count, rounds in samples.items()}
    for count, phases in medians.items():
        told = "  ".join(f"{name} {seconds * 1e6:.1f} us" if seconds < 1e-3 else f"{name} {seconds * 1e3:.1f} ms"
                         for name, seconds in zip(PHASES, phases))
        print(f"{count:8} multilines: {told}")
    small, large = medians[options.small], medians[options.large]
    print(f"further cut, large compared with small: {large[1] / small[1]:.2f}")
    print(f"save compared with write and flush, large: {large[2] / large[3]:.2f}")


if __name__ == "__main__":
    main()
