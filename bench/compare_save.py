#!/usr/bin/python3
"""What saving after one edit costs, beside a program that does nothing but bring the same bytes to disk.

Two runs with the same single cut, one with and one without saving, give the
cost of the save; `dd` with fsync writes the saved bytes once more.
"""

import argparse

import grid
import measure


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser)
    options = parser.parse_args()
    measure.load_warning()
    drawing = measure.drawing_of(options.folder, options.multilines, options.others)
    cut = measure.script_file(options.folder, "cut1.scr", grid.script(1, options.multilines))
    saved, written = options.folder / "saved.dxf", options.folder / "written.dxf"
    results = measure.interleaved({
        "edit": measure.play(options.program, drawing, cut),
        "edit and save": measure.play(options.program, drawing, cut, saved),
        "write and sync": ["dd", f"if={saved}", f"of={written}", "bs=1M", "conv=fsync", "status=none"],
    }, options.rounds)

    size = saved.stat().st_size
    same = saved.read_bytes() == drawing.read_bytes()
    saved.unlink()
    written.unlink()
    if same:
        measure.sys.exit("the edit changed nothing: there was no save to measure")
    save = results["edit and save"].seconds - results["edit"].seconds
    floor = results["write and sync"].seconds
    print(f"{drawing}: {size / 1e6:.1f} MB saved")
    for name, sample in results.items():
        print(f"{name:16}{measure.milliseconds(sample.seconds)}  peak {sample.peak_bytes / 1e6:7.1f} MB")
    print(f"{'save alone':16}{measure.milliseconds(save)}  {save / floor:.2f} times write and sync")
    print(f"{'beyond writing':16}{measure.milliseconds(save - floor)}")


if __name__ == "__main__":
    main()
