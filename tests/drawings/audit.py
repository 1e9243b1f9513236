#!/usr/bin/python3
"""Audit drawings with ezdxf and print what is wrong with them.

    audit.py FILE...
    audit.py --original ORIGINAL FILE...

With an original, only faults that it doesn't have itself are printed. Beside
ezdxf's audit, handles have to be unique and below $HANDSEED, which ezdxf
repairs in silence. Exit status 1 when something was printed, else 0.
"""

import argparse
import collections
import logging
import sys

import ezdxf
from ezdxf import recover


def handle_faults(path):
    """Handles that stand twice, or at or above the seed."""
    with open(path, encoding="latin-1") as file:
        lines = [line.strip() for line in file]
    seed, kind, dimension_styles, handles = None, "", False, collections.Counter()
    for i in range(0, len(lines) - 1, 2):
        code, value = lines[i], lines[i + 1]
        if code == "0":
            kind = value
        elif code == "9" and value == "$HANDSEED":
            seed = int(lines[i + 3], 16)
        elif code == "2" and kind == "TABLE":
            dimension_styles = value == "DIMSTYLE"
        # In dimension styles 105 is the handle and 5 an arrow block.
        if kind != "SECTION" and code == ("105" if kind == "DIMSTYLE" and dimension_styles else "5"):
            handles[value.upper()] += 1
    for handle, times in handles.items():
        if times > 1:
            yield f"handle {handle} stands {times} times"
        if seed is not None and int(handle, 16) >= seed:
            yield f"handle {handle} is not below $HANDSEED {seed:X}"


def faults(path):
    """Everything that is wrong with a drawing, one text each."""
    found = []
    try:
        doc = ezdxf.readfile(path)
        auditor = doc.audit()
    except (ezdxf.DXFError, ValueError, OSError) as error:
        found.append(f"does not load: {error}")
        try:
            doc, auditor = recover.readfile(path)
        except (ezdxf.DXFError, ValueError, OSError) as second_error:
            return found + [f"can't be recovered: {second_error}"]
    found += [f"{entry.code}: {entry.message}" for entry in auditor.errors + auditor.fixes]
    try:
        found += handle_faults(path)
    except ValueError as error:
        found.append(f"handles can't be read: {error}")
    return found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--original", metavar="ORIGINAL", help="drawing whose own faults are forgiven")
    parser.add_argument("files", nargs="+", metavar="FILE")
    options = parser.parse_args()
    logging.disable(logging.CRITICAL)
    known = collections.Counter(faults(options.original)) if options.original else collections.Counter()
    bad = False
    for path in options.files:
        for text, times in (collections.Counter(faults(path)) - known).items():
            bad = True
            print(f"{path}: {text}" + (f" ({times} times)" if times > 1 else ""))
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
