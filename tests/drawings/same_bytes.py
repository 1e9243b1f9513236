#!/usr/bin/python3
"""Check that orvex-batch saves what it opens byte for byte, and refuses only what it has to.

    same_bytes.py PROGRAM [--seed N] [--rounds N] [DRAWING...]

Each drawing (those of corpus/ and the floor plan when none is named) is played
an empty script as it is and in every way that mutate.py spoils it.
"""

import argparse
import pathlib
import subprocess
import sys
import tempfile

from mutate import mutations

HERE = pathlib.Path(__file__).resolve().parent
REFUSED = 3


def complaint(program, content, opens):
    """What is wrong with the way the program takes this drawing, or None."""
    with tempfile.TemporaryDirectory() as scratch:
        drawing, output = pathlib.Path(scratch) / "in.dxf", pathlib.Path(scratch) / "out.dxf"
        drawing.write_bytes(content)
        command = [program, "run", str(drawing), "--script", "-", "--output", str(output)]
        try:
            run = subprocess.run(command, input=b"", capture_output=True, timeout=60)
        except subprocess.TimeoutExpired:
            return "doesn't end"
        if opens and run.returncode != 0:
            return f"status {run.returncode}: {run.stderr.decode(errors='replace').strip()}"
        if opens:
            return None if output.read_bytes() == content else "saved with other bytes"
        if run.returncode != REFUSED:
            return f"status {run.returncode} where {REFUSED} is due"
        return "refused, but something was written" if output.exists() else None


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("drawings", nargs="*", type=pathlib.Path)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--rounds", type=int, default=1)
    parser.add_argument("--keep", type=pathlib.Path, help="folder for the drawings that were taken wrongly")
    options = parser.parse_args()
    drawings = options.drawings or [*sorted((HERE / "corpus").glob("*.dxf")), HERE.parents[1] / "samples/floorplan.dxf"]
    tried, bad = 0, 0
    for path in drawings:
        content = path.read_bytes()
        cases = [("as it is", content, True)]
        for number in range(options.rounds):
            for name, spoilt, opens in mutations(content, f"{options.seed} {path.name} {number}"):
                if spoilt is not None:
                    cases.append((f"{name}.{number}", spoilt, opens))
        for name, spoilt, opens in cases:
            tried += 1
            wrong = complaint(options.program, spoilt, opens)
            if wrong:
                bad += 1
                print(f"{path.name}, {name}: {wrong}")
                if options.keep:
                    options.keep.mkdir(parents=True, exist_ok=True)
                    (options.keep / f"{path.stem}.{name}.dxf").write_bytes(spoilt)
    print(f"{tried} drawings, {bad} taken wrongly")
    sys.exit(1 if bad or not tried else 0)


if __name__ == "__main__":
    main()
