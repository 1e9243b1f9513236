"""Calls of orvex-desk that end by themselves: what they say, and their status.

usage: calls.py ORVEX_DESK
"""

import os
import subprocess
import sys


def main():
    desk = sys.argv[1]
    blind = {key: value for key, value in os.environ.items()
             if key not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    cases = [
        # arguments, environment, status, in standard output, in standard error
        (["--help"], blind, 0, "DRAWING", ""),
        (["--version"], blind, 0, "orvex-desk ", ""),
        (["--nonsense"], blind, 2, "", "orvex-desk: "),
        (["a.dxf", "b.dxf"], blind, 2, "", "orvex-desk: "),
        ([], blind, 1, "", "orvex-desk: there is no display"),
        # A display that isn't there.
        ([], blind | {"DISPLAY": ":9999"}, 1, "", "orvex-desk: "),
    ]
    failed = 0
    for arguments, environment, status, out, err in cases:
        run = subprocess.run([desk, *arguments], env=environment, capture_output=True, text=True, timeout=60)
        if run.returncode != status or out not in run.stdout or err not in run.stderr or bool(err) != bool(run.stderr):
            failed += 1
            print(f"{arguments}: {run}", file=sys.stderr)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
