"""A translation keeps what isn't language: keywords in brackets, places of values, access keys, line ends and the blank
after a question; a table of texts has the numbers of the English one."""
import pathlib
import re
import sys
import xml.etree.ElementTree as xml

source = pathlib.Path(sys.argv[1])
faults = []


def kept(text):
    """What a text and its translation have in common."""
    return {
        "keywords": re.findall(r"\[[^\]]*\]", text),
        "values": sorted(re.findall(r"%(?:\d+|n|ls|d)", text)),
        "access key": len(re.findall(r"&[^& ]", text)),
        "dots": text.endswith("..."),
        "colon": text.rstrip().endswith(":"),
        "answer": text.count(": "),  # the history is a script of what comes after these
        "blank": text.endswith(" "),
        "fields": sorted(re.findall(r"\{\w+\}|<%\d>", text)),
    }


def compare(where, english, translated):
    theirs = kept(translated)
    for what, value in kept(english).items():
        if theirs[what] != value:
            faults.append(f"{where}: {what} of {english!r} aren't those of {translated!r}")


def texts(table):
    lines = table.read_text(encoding="utf-8").splitlines()
    return {int(found[1]): found[2] for line in lines if (found := re.match(r"(\d+) (.*)", line))}


for table in source.glob("*/**/texts.txt"):
    english = table.parent.parent / "texts.txt"
    if "build" in table.parts or not english.exists():
        continue
    ours, theirs = texts(english), texts(table)
    if ours.keys() != theirs.keys():
        faults.append(f"{table}: other numbers than in English: {sorted(ours.keys() ^ theirs.keys())}")
    for number in ours.keys() & theirs.keys():
        compare(f"{table}, {number}", ours[number], theirs[number])
        if number in range(4000, 5000) and ours[number].isupper() and theirs[number] != ours[number]:
            faults.append(f"{table}: {number} are keywords, the same in every language")


def rows(page):
    """How many rows each table of a page has."""
    return [table.count("\n|") for table in re.findall(r"(?:^\|.*\n)+", page.read_text(encoding="utf-8"), re.M)]


def figures(page):
    """The numbers of each row, whichever way their thousands are parted."""
    return [sorted(re.sub(r"\D", "", number) for number in re.findall(r"\d+(?:[,\u202f\u00a0]\d{3})*(?:\.\d+)?", row))
            for row in re.findall(r"^\|.*$", page.read_text(encoding="utf-8"), re.M)]


if figures(source / "docs/limits.md") != figures(source / "docs/de/limits.md"):
    faults.append("docs/de/limits.md has other figures than in English")

# Peculiarities of a caption go with the caption.
for page in [*source.glob("docs/*/*.md"), *source.glob("docs/help/*/*.md")]:
    english = page.parent.parent / page.name
    if english.exists() and page.stem != "peculiarities" and rows(page) != rows(english):
        faults.append(f"{page}: tables of {rows(page)} rows, in English of {rows(english)}")

checked = 0
for table in [*source.glob("resources/*/captions.ts"), *source.glob("host/icons/*/captions.ts")]:
    for message in xml.parse(table).getroot().iter("message"):
        translation = message.find("translation")
        if translation.text and translation.get("type") != "obsolete":
            compare(table, message.findtext("source"), translation.text)
            checked += 1
if checked < 90:
    faults.append(f"only {checked} captions found")

print("\n".join(faults))
sys.exit(1 if faults else 0)
