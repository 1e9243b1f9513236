#!/usr/bin/python3
"""Make the small drawings of corpus/: by two writers and by hand, in every version that holds multilines.

The result is the same bytes each time; dxflib.dxf is only made anew where the
library is installed. With --check nothing is written; the exit status is 1
when the files here are not what would be written.
"""

import argparse
import pathlib
import subprocess
import sys
import tempfile

import tags  # also finds the samples' modules
from tags import MODEL, STANDARD, STANDARD_HANDLE, Style, line, mline, section, text_entity

import ezdxf
from stable_dxf import drawing_text

HERE = pathlib.Path(__file__).resolve().parent
CORPUS = HERE / "corpus"
VERSIONS = ("R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018")


def ezdxf_drawing(version, word):
    """Lines, a text, a block; where the version has them, multilines in the model, the block and a sheet."""
    doc = ezdxf.new(version)
    doc.layers.add("WALLS", color=1)
    msp = doc.modelspace()
    block = doc.blocks.new("CORNER")
    block.add_line((0, 0), (400, 0))
    msp.add_line((0, 500), (3000, 500))
    msp.add_circle((500, 1000), 200)
    msp.add_text(word, dxfattribs={"height": 150, "insert": (1200, 1500)})
    msp.add_blockref("CORNER", (2200, 1500), dxfattribs={"rotation": 30})
    if version == "R12":
        return doc
    style = doc.mline_styles.new("THREE")
    style.dxf.description = word
    for offset, colour in ((60.0, 1), (0.0, 256), (-60.0, 3)):
        style.elements.append(offset, colour)
    walls = {"layer": "WALLS"}
    msp.add_mline([(0, 0), (3000, 0), (3000, 2500)], dxfattribs={**walls, "style_name": "THREE", "justification": 1})
    msp.add_mline([(1000, -500), (1500, 400)], dxfattribs={**walls, "scale_factor": 115.0, "justification": 0})
    msp.add_mline([(3500, 0), (4500, 0), (4500, 800), (3500, 800)], close=True,
                  dxfattribs={**walls, "scale_factor": 60.0, "justification": 2})
    block.add_mline([(0, 200), (400, 200)], dxfattribs={"scale_factor": 60.0, "justification": 1})
    doc.layout("Layout1").add_mline([(10, 10), (100, 10)], dxfattribs={"scale_factor": 2.5, "justification": 1})
    return doc


def by_ezdxf(version):
    doc = ezdxf_drawing(version, "Küche Ø 20 ≥ 12 m²")
    return drawing_text(doc).encode(doc.output_encoding, errors="dxfreplace")


def hand_made_entities(style=STANDARD, style_handle=STANDARD_HANDLE):
    return [
        mline(0x30, MODEL, style, style_handle, [(0, 0), (30, 0), (30, 25)], 1.5, layer="WALLS"),
        mline(0x31, MODEL, STANDARD, STANDARD_HANDLE, [(5, 5), (20, 5), (20, 15), (5, 15)], 1.0, closed=True),
        line(0x32, MODEL, (0, 30, 0), (30, 30, 0)),
    ]


def in_code_page(codepage, encoding, word):
    style = Style(word, word, STANDARD.elements)
    entities = hand_made_entities(style, 0x40) + [text_entity(0x33, MODEL, (0, 32, 0), 2.5, word)]
    styles = ((STANDARD_HANDLE, STANDARD), (0x40, style))
    return tags.text(tags.drawing("AC1015", entities, codepage, styles), "\r\n", padded=True).encode(encoding)


def hand_made():
    """Drawings of old versions, and ones that leave out what others always have."""
    entities = hand_made_entities()
    modern = tags.drawing("AC1015", entities)
    own = Style("OWN", "", STANDARD.elements)
    own_entities = hand_made_entities(own, 0x40)
    files = {
        "ac1012.dxf": tags.text(tags.drawing("AC1012", entities), padded=True),
        "ac1014.dxf": tags.text(tags.drawing("AC1014", entities), "\r\n", padded=True),
        "entities_only.dxf": tags.text([*section("ENTITIES", *entities), (0, "EOF")]),
        "crlf.dxf": tags.text(modern, "\r\n", padded=True),
        "lf.dxf": tags.text(modern),
        # The closed multiline goes on naming the style that is missing.
        "no_standard.dxf": tags.text(tags.drawing("AC1015", own_entities, styles=((0x40, own),))),
        "no_styles.dxf": tags.text(tags.drawing("AC1015", entities, styles=None)),
    }
    files = {name: content.encode("ascii") for name, content in files.items()}
    # In code page 932 the second byte of some letters is that of a backslash.
    files["ansi_932.dxf"] = in_code_page("ANSI_932", "cp932", "表示ソ")
    files["ansi_936.dxf"] = in_code_page("ANSI_936", "gbk", "厨房丂")
    return files


def by_dxflib():
    """The file that the small writer makes, or None where it can't be built."""
    with tempfile.TemporaryDirectory() as scratch:
        program, output = f"{scratch}/dxflib_writer", pathlib.Path(scratch) / "dxflib.dxf"
        command = ["g++", "-std=c++20", str(HERE / "dxflib_writer.cpp"), "-ldxflib", "-o", program]
        if subprocess.run(command, stderr=subprocess.DEVNULL).returncode != 0:
            return None
        subprocess.run([program, str(output)], check=True)
        return output.read_bytes()


def corpus():
    files = {f"ezdxf_{version.lower()}.dxf": by_ezdxf(version) for version in VERSIONS}
    files.update(hand_made())
    made = by_dxflib()
    if made is None:
        print("dxflib is not installed: dxflib.dxf stays as it is", file=sys.stderr)
    else:
        files["dxflib.dxf"] = made
    return files


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare, write nothing")
    check = parser.parse_args().check
    stale = []
    for name, content in corpus().items():
        path = CORPUS / name
        if not check:
            path.write_bytes(content)
        elif not path.exists() or path.read_bytes() != content:
            stale.append(name)
    if stale:
        sys.exit(f"not up to date: {', '.join(stale)}")


if __name__ == "__main__":
    main()
