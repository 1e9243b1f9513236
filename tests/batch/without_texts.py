#!/usr/bin/python3
"""The module without its resource library, or with a damaged one, can't be loaded: without_texts.py PROGRAM"""

import pathlib
import shutil
import sys
import tempfile

from program import Report, call, make_drawing


def main():
    program = pathlib.Path(sys.argv[1])
    report = Report()
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        # A place of its own: what lies beside the program is all that it finds.
        for file in program.parent.iterdir():
            if file.is_file() and (file == program or file.suffix in (".so", ".omx")):
                shutil.copy(file, folder)
        drawing = make_drawing(folder / "walls.dxf", [(0, 0), (100, 0)])
        copy = folder / program.name
        run = call(copy, "run", drawing, "--script", "-", script="ZOOM\nE\n-MLEDIT\nCC\n")
        report.check(run.returncode == 5, f"status {run.returncode}: {run.stderr}")
        report.check("standard input:3:" in run.stderr and "libOmxMLStyle.omx" in run.stderr, run.stderr)
        report.check("CC" not in run.stdout, run.stdout)

        library = (program.parent / "OmxMLStyleRes.dll").read_bytes()
        (folder / "OmxMLStyleRes.dll").write_bytes(library[: len(library) // 2])
        run = call(copy, "run", drawing, "--script", "-", script="-MLEDIT\nCC\n")
        report.check(run.returncode == 5 and f"({folder}/OmxMLStyleRes.dll: the file is damaged: " in run.stderr, run.stderr)

        (folder / "OmxMLStyleRes.dll").write_bytes(library)
        run = call(copy, "run", drawing, "--script", "-", script="-MLEDIT\nCC\n")
        report.check(run.returncode == 0, run.stderr)
    report.finish()


if __name__ == "__main__":
    main()
