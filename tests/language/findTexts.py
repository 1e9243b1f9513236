"""Finds texts that a user can see and that stand in code without going through translation: literals with words in them,
and those that are given to what shows texts. What is no text for the user is allowed below, by a pattern and a reason."""
import pathlib
import re
import sys

MARKS = {"tr", "translate", "QT_TR_NOOP", "QT_TRANSLATE_NOOP", "hostText", "wideHostText", "markedText"}
SHOWS = {"setText", "setToolTip", "setStatusTip", "setWindowTitle", "setPlaceholderText", "addAction", "addMenu", "QLabel",
         "setTitle", "addRow", "addItem", "showMessage", "setInformativeText", "printed", "complained", "QAction", "QCheckBox",
         "QDockWidget", "QGroupBox", "QMenu", "QProgressDialog", "QPushButton", "QRadioButton", "addButton", "addTab", "getInt",
         "getText", "setAccessibleName", "setHorizontalHeaderLabels", "setLabelText", "setWhatsThis"}
# Calls whose texts are for people who make the program.
INNER = {"assert", "static_assert", "length_error", "runtime_error", "invalid_argument", "logic_error", "qWarning"}
ROOMS = ["apps/desk", "apps/canvas", "apps/common", "host/session", "host/prompt", "host/change", "host/join", "host/view",
         "host/registry", "host/database", "host/drawing", "host/base", "host/resources", "host/ui", "host/window"]

# (file, literal, why); both are patterns for the whole.
ALLOWED = [
    (r"apps/desk/(DeskCall|main)\.cpp", r".*", "what a terminal is told at the start, in English as by orvex-batch"),
    (r"apps/desk/pointing/SnapDesk\.cpp", r"\w+", "names of actions"),
    (r"apps/desk/help/helpPages\.cpp", r"qrc:", "an address"),
    (r"apps/common/SvgPicture\.cpp", r".*", "what a picture is written with"),
    (r"apps/common/paintAppearance\.cpp", r"DejaVu Sans", "a font"),
    (r"apps/common/memoryEnd\.cpp", r".*", "what a terminal is told when there is no memory for more"),
    (r"apps/common/pictureWriter\.cpp", r"(each side of|a \.png) .*", "of sizes, which are orvex-batch's"),
    (r"host/session/\w+\.cpp", r"(Look Repair|Top Zero Bottom|Both Start End None|STyle SCale .*|Axis Outer|Yes No|Tolerance Cross .*|"
     r"Justification Scale .*|Close Undo|ALL Window .*|Move Add .*|Extents Center)", "keywords"),
    (r"apps/desk/commands/PlayScript\.cpp", r"; what was done to ", "a comment in a script that is saved"),
    (r"host/session/JoinRun\.cpp", r"(What joined|their own;|as before).*", "comments in a script that is saved"),
    (r"host/(drawing|resources)/\w+\.cpp", r".*", "what is wrong inside a file, in English as in reports"),
    (r"host/base/(crashRecorder|readFile)\.cpp", r".*", "reports, and names that reports have"),
    (r"host/window/withoutThrowing\.h", r".*", "a report of a fault of the program"),
]

TOKEN = re.compile(r'''
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<include>^\s*\#\s*include[^\n]*)
  | (?P<raw>(?:u8|u|U|L)?R"(?P<delimiter>[^(\s]*)\((?P<rawtext>.*?)\)(?P=delimiter)")
  | (?P<literal>(?:u8|u|U|L)?"(?P<text>(?:[^"\\\n]|\\.)*)")
  | (?P<character>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+')
  | (?P<number>\d[\w.']*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign>.)
''', re.X | re.S | re.M)


def literals(code):
    """Each literal, adjacent ones as one, with the names of the calls that it stands in, innermost first."""
    calls, name, pending = [], "", None
    for token in TOKEN.finditer(code):
        kind = token.lastgroup
        if kind in ("rawtext", "delimiter", "text"):
            kind = "raw" if token["raw"] else "literal"
        if kind in ("comment", "include") or token[0].isspace():
            continue
        if kind in ("literal", "raw"):
            text = token["text"] if kind == "literal" else token["rawtext"]
            line = code.count("\n", 0, token.start()) + 1
            pending = (pending[0], pending[1] + text, pending[2]) if pending else (line, text, list(calls))
            continue
        if pending:
            yield pending[0], pending[1], [call for call in reversed(pending[2]) if call]
            pending = None
        if kind == "sign" and token[0] in "({[":
            calls.append(name if token[0] != "[" else "")
        elif kind == "sign" and token[0] in ")}]" and calls:
            calls.pop()
        name = token[0] if kind == "name" else ""


def is_text(text, calls):
    if MARKS & set(calls) or INNER & set(calls[:2]):
        return False
    plain = re.sub(r"\\.|%(?:ls|[\dnsdu])|\{\w*\}", " ", text)
    if re.search(r"[^\W\d_]{2,}['’]?[,.:;]? +[^\W\d_]{2,}|[^\W\d_]{2,}(?:[.:!?]$|: $)", plain):
        return True
    is_name = re.fullmatch(r"[a-z]+[A-Z]\w*", text)  # of an action or a widget
    return bool(calls and calls[0] in SHOWS and not is_name and re.search(r"[^\W\d_]{2,}", plain))


def find(source):
    for room in ROOMS:
        for path in sorted([*(source / room).glob("*.cpp"), *(source / room).glob("*.h")]):
            code = path.read_text(encoding="utf-8")
            name = str(path.relative_to(source))
            for line, text, calls in literals(code):
                if is_text(text, calls) and not any(
                        re.fullmatch(file, name) and re.fullmatch(allowed, text, re.S) for file, allowed, _ in ALLOWED):
                    yield name, line, text, calls


def main():
    found = list(find(pathlib.Path(sys.argv[1])))
    for name, line, text, calls in found:
        print(f"{name}:{line}: {text!r}")
    if found:
        print(f"{len(found)} texts stand in code; a user's language needs tr(), translate(\"orvex\", ...) or hostText() around "
              "them. What no user sees is allowed in tests/language/findTexts.py.")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
