#!/usr/bin/python3
"""What one more cut costs, in a small drawing and in a large one.

From runs with no cut, one cut and a thousand and one: the first cut pays for
the index of what is drawn, the others should cost the same in both drawings.
"""

import argparse

import grid
import measure


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser, sizes=False)
    parser.add_argument("--small", type=int, default=1_000, help="multilines of the small drawing")
    parser.add_argument("--large", type=int, default=100_000, help="multilines of the large drawing")
    parser.add_argument("--cycles", type=int, default=1_000)
    options = parser.parse_args()
    measure.load_warning()
    commands = {}
    for count in (options.small, options.large):
        drawing = measure.drawing_of(options.folder, count)
        for cycles in (0, 1, 1 + options.cycles):
            script = measure.script_file(options.folder, f"cut{cycles}of{count}.scr", grid.script(cycles, count))
            commands[count, cycles] = measure.play(options.program, drawing, script)
    results = measure.interleaved(commands, options.rounds)

    slopes = {}
    for count in (options.small, options.large):
        opened, first, last = (results[count, c].seconds for c in (0, 1, 1 + options.cycles))
        slopes[count] = (last - first) / options.cycles
        print(f"{count:8} multilines: open {measure.milliseconds(opened)},"
              f" first cut {measure.milliseconds(first - opened)}, each further cut {slopes[count] * 1e6:8.2f} us")
    print(f"large beside small: {slopes[options.large] / slopes[options.small]:.2f} times for each further cut")


if __name__ == "__main__":
    main()
