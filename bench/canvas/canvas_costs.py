#!/usr/bin/python3
"""What looking at a drawing costs: pauses, repaints, edits.

A canvas of 1600 by 1200 pixels on the offscreen platform, so that painting is
all that is timed. The longest pass of the event loop counts, since a window
answers nothing during a pass. Medians of the rounds.
"""

import argparse
import pathlib
import statistics
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
import measure


def phases_of(command):
    """name: [whole time, longest pass] or [time], in milliseconds."""
    told = subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    return {line[:28].strip(): [float(value) for value in line[28:].split()] for line in told.splitlines()}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    measure.arguments(parser, sizes=False)
    parser.add_argument("--small", type=int, default=1_000, help="multilines of the small drawing")
    parser.add_argument("--large", type=int, default=100_000, help="multilines of the large drawing")
    options = parser.parse_args()
    measure.load_warning()
    timings = pathlib.Path(options.program).resolve().parent.parent / "bench" / "canvas_timings"

    counts = (options.small, options.large)
    samples = {count: [] for count in counts}
    for _ in range(options.rounds):
        for count in counts:
            samples[count].append(phases_of([timings, measure.drawing_of(options.folder, count), str(count)]))
    medians = {
        count: {
            name: [statistics.median(values) for values in zip(*(taken[name] for taken in rounds))]
            for name in rounds[0]
        }
        for count, rounds in samples.items()
    }

    small, large = (medians[count] for count in counts)
    print(f"{'milliseconds':28}{counts[0]:>20} {counts[1]:>20}")
    print(f"{'':28}" + 2 * f"{'whole':>11}{'longest pass':>14}"[:20].rjust(21))
    for name in small:
        cells = ("".join(f"{value:10.2f}" for value in column[name]).ljust(20) for column in (small, large))
        print(f"{name:28}{' '.join(cells)}")
    pauses = {name: values[1] for name, values in large.items() if len(values) > 1 and "snap" not in name}
    worst = max(pauses, key=pauses.get)
    print(f"longest pause, large: {pauses[worst]:.1f} ms ({worst})")
    panning = max(pauses[name] for name in pauses if name.startswith("pan"))
    print(f"longest step of a pan, large: {panning:.1f} ms")
    snaps = [name for name in large if name.startswith("snap")]
    print(f"longest search of a snap, large: {max(large[name][1] for name in snaps):.2f} ms")
    ratio = large["snap among 100 multilines"][0] / small["snap among 100 multilines"][0]
    print(f"snap among 100 multilines, large compared with small: {ratio:.2f}")
    repaint, plain = large["repaint at extents"][0], large["plain calls, smooth"][0]
    print(f"repaint at extents compared with plain calls, large: {repaint / plain:.2f}")
    ratio = large["repaint of 100 multilines"][0] / small["repaint of 100 multilines"][0]
    print(f"repaint of 100 multilines, large compared with small: {ratio:.2f}")
    ratio = large["edit one near"][0] / small["edit one near"][0]
    print(f"repaint after an edit, large compared with small: {ratio:.2f}")


if __name__ == "__main__":
    main()
