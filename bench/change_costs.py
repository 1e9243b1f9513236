#!/usr/bin/python3
"""What changes of many multilines cost, compared with saving and with another library.

Inside one process: selecting the multilines of a window and moving them; what is
shown of one whose vertex is dragged, for each move of the mouse; another style for
all multilines; and the save after that. python3-ezdxf moves as many multilines in
its own document. Medians of the rounds, in brackets of the processor's time, which
is the same where the machine does nothing else.
"""

import argparse
import math
import pathlib
import statistics
import subprocess
import time

import grid
import measure

def move_script(count, moved):
    """A window over whole rows of the grid, so that about `moved` multilines lie within."""
    rows = math.ceil(moved / grid.columns(count))
    low = grid.SHIFT - 500.0
    reach = grid.SHIFT + grid.columns(count) * grid.CELL
    high = grid.SHIFT + rows * grid.CELL - 500.0
    return f"MOVE\nW\n{low},{low}\n{reach},{high}\n\n0,0\n12.5,7.5\n"


def restyle_script():
    """Three in four get another number of elements, the rest another scale alone."""
    return "MLCHANGE\nALL\n\nST\nWALL3\nSC\n1.25\n\n"


def peer_seconds(drawing, moved):
    import ezdxf

    mlines = list(ezdxf.readfile(drawing).modelspace().query("MLINE"))[:moved]
    start = time.process_time()
    for mline in mlines:
        mline.translate(12.5, 7.5, 0.0)
    return time.process_time() - start


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser, sizes=False)
    parser.add_argument("--multilines", type=int, default=100_000)
    parser.add_argument("--moved", type=int, default=10_000)
    parser.add_argument("--without-peer", action="store_true")
    options = parser.parse_args()
    measure.load_warning()
    timings = pathlib.Path(options.program).resolve().parent.parent / "bench" / "change_timings"
    drawing = measure.drawing_of(options.folder, options.multilines)
    scripts = [
        measure.script_file(options.folder, name, text)
        for name, text in (("move.scr", move_script(options.multilines, options.moved)), ("restyle.scr", restyle_script()))
    ]
    command = [timings, drawing, *scripts, options.folder / "changed.dxf"]
    rounds = []
    for _ in range(options.rounds):
        told = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        rounds.append([float(value) for value in told.split()])
    wall_move, move, wall_ghost, ghost, wall_restyle, restyle, wall_save, save = (
        statistics.median(phase) for phase in zip(*rounds))
    print(f"select {options.moved} of {options.multilines} and move them: {wall_move * 1e3:.0f} ms ({move * 1e3:.0f})")
    print(f"what is shown of a dragged vertex: {wall_ghost * 1e6:.0f} us ({ghost * 1e6:.0f})")
    print(f"restyle: {wall_restyle * 1e3:.0f} ms ({restyle * 1e3:.0f}), {restyle / save:.2f} of the save: "
          f"{wall_save * 1e3:.0f} ms ({save * 1e3:.0f})")
    if not options.without_peer:
        peer = peer_seconds(drawing, options.moved)
        print(f"moved compared with the peer ({peer * 1e3:.0f} ms): {move / peer:.2f}")


if __name__ == "__main__":
    main()
