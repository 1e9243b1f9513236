#!/usr/bin/python3
"""Print what a drawing has of multiline styles, and everything that is wrong with it."""

import pathlib
import sys

import ezdxf

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "drawings"))
from audit import faults


def main(path):
    for fault in faults(path):
        print(f"fault: {fault}")
    doc = ezdxf.readfile(path)
    print("current", doc.header["$CMLSTYLE"])
    dictionary = doc.rootdict["ACAD_MLINESTYLE"]
    for key, style in dictionary.items():
        print(f"{key}, {len(style.elements)} elements, {style.dxf.description}")
        if style.dxf.name != key:
            print(f"fault: {key} is called {style.dxf.name}")
        if style.dxf.owner != dictionary.dxf.handle:
            print(f"fault: {key} is owned by {style.dxf.owner}")
        if style.reactors is None or dictionary.dxf.handle not in style.reactors.get():
            print(f"fault: {key} doesn't name its dictionary")
        for element in style.elements:
            if element.linetype.upper() not in ("BYLAYER", "BYBLOCK") and element.linetype not in doc.linetypes:
                print(f"fault: {key} has the unknown line type {element.linetype}")
    styles = {style.dxf.handle for _, style in dictionary.items()}
    for style in doc.objects.query("MLINESTYLE"):
        if style.dxf.handle not in styles:
            print(f"fault: {style.dxf.name} is in no dictionary")
    for mline in doc.modelspace().query("MLINE"):
        print("multiline of", mline.dxf.style_name)


main(sys.argv[1])
