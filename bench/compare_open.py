#!/usr/bin/python3
"""How long orvex-batch takes to open a drawing, compared with dxflib's parser that keeps nothing of it.

Whole processes on the same file, in turns, medians. Opening is given without
and with one pick: the first pick builds the index of what is drawn.
"""

import argparse

import grid
import measure


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser)
    parser.add_argument("--drawing", help="a drawing of your own, opened without a pick")
    options = parser.parse_args()
    measure.load_warning()
    drawing = options.drawing or measure.drawing_of(options.folder, options.multilines, options.others)
    empty = measure.script_file(options.folder, "empty.scr", "")
    commands = {
        "dxflib": [measure.reader_of(options.program, options.folder), drawing],
        "open": measure.play(options.program, drawing, empty),
    }
    if not options.drawing:
        one_pick = measure.script_file(options.folder, "pick.scr", grid.one_pick_script(options.multilines))
        commands["open and pick"] = measure.play(options.program, drawing, one_pick)
    results = measure.interleaved(commands, options.rounds)

    size = measure.pathlib.Path(drawing).stat().st_size
    print(f"{drawing}: {size / 1e6:.1f} MB")
    for name, sample in results.items():
        print(f"{name:14}{measure.milliseconds(sample.seconds)}"
              f"  {sample.seconds / results['dxflib'].seconds:6.2f} times dxflib"
              f"  peak {sample.peak_bytes / 1e6:7.1f} MB, {sample.peak_bytes / size:5.2f} times the file")


if __name__ == "__main__":
    main()
