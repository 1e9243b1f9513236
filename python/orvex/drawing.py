"""An open drawing."""

from __future__ import annotations

import builtins
import json
import os
import tempfile
from collections.abc import Iterable
from functools import cached_property

from .program import STANDARD_INPUT, Answer, call, file_name
from .script import Script
from .values import Finding, Joint, JoinReport, Multiline, Style

_NOTHING = os.devnull  # a script without a line


class Drawing:
    """A drawing in memory, in the text or the binary form.

    ``run``, ``join`` and ``lay_right`` change it as a whole or, when they fail, not at all. The
    file that it came from is written by ``save`` only. ``warnings`` has what was odd about it in
    the last call.
    """

    def __init__(self, data: bytes, name: str = "drawing") -> None:
        """A drawing from bytes; ``name`` is what errors call it."""
        self._data = bytes(data)
        self.name = name
        self.warnings: tuple[str, ...] = ()
        self._listed  # what is no drawing fails here

    @property
    def data(self) -> bytes:
        """The bytes that ``save`` writes."""
        return self._data

    @property
    def multilines(self) -> list[Multiline]:
        """All multilines, in the order of the drawing."""
        return self._listed[0]

    @property
    def styles(self) -> list[Style]:
        """All multiline styles, in the order of their dictionary."""
        return self._listed[1]

    def multiline(self, handle: str) -> Multiline:
        """The multiline with that handle, else KeyError."""
        for each in self.multilines:
            if int(each.handle, 16) == int(handle, 16):
                return each
        raise KeyError(handle)

    def style(self, name: str) -> Style:
        """The style of that name in any case, else KeyError."""
        for each in self.styles:
            if each.name.casefold() == name.casefold():
                return each
        raise KeyError(name)

    def run(self, script: Script | str, *, strict: bool = False) -> str:
        """Plays a script; gives what the commands printed. ``strict`` fails at a missed pick."""
        with tempfile.NamedTemporaryFile(suffix=".scr") as file:
            file.write(str(script).encode())
            file.flush()
            options = ["--strict"] if strict else []
            answer = self._edit("run", f"--script={file.name}", *options, names={file.name: "script"})
        return answer.printed

    def join(self, *, tolerance: float | None = None, cross: str = "open", tee: str = "open", corners: bool = True,
             layers: Iterable[str] = ()) -> JoinReport:
        """Joins multilines where they meet. Kinds are closed, open, merged and none."""
        options = [f"--cross={cross}", f"--tee={tee}", f"--corners={'yes' if corners else 'no'}"]
        options += [] if tolerance is None else [f"--tolerance={float(tolerance)!r}"]
        options += [f"--layer={layer}" for layer in layers]
        found = json.loads(self._edit("join", "--json", *options).printed)
        return JoinReport(tuple(map(Joint.from_json, found["joints"])), found["counts"])

    def audit(self) -> list[Finding]:
        """Where multilines contradict their style or themselves."""
        found = json.loads(self._call("audit", "--json").result)
        return [Finding(**each) for each in found["findings"]]

    def lay_right(self) -> list[Finding]:
        """The same, and lays right what can be."""
        found = json.loads(self._edit("audit", "--json").printed)
        return [Finding(**each) for each in found["findings"]]

    def save(self, path: str | os.PathLike[str]) -> None:
        """Writes the drawing whole or not at all."""
        name = file_name(path)
        self._call("run", f"--script={_NOTHING}", f"--output={name}", names={name: name})

    def show(self, path: str | os.PathLike[str], size: tuple[int, int] = (1600, 1200)) -> None:
        """Draws it into a picture: .svg, .png or .pdf, by the name."""
        name = file_name(path)
        self._call("show", f"--output={name}", f"--size={size[0]}x{size[1]}", names={name: name})

    def picture(self, kind: str = "png", size: tuple[int, int] = (800, 600)) -> bytes:
        """The bytes of such a picture: svg, png or pdf."""
        return self._call("show", "--output=-", f"--type={kind}", f"--size={size[0]}x{size[1]}").result

    def _repr_png_(self) -> bytes:
        return self.picture()  # how a notebook shows it

    @cached_property
    def _listed(self) -> tuple[list[Multiline], list[Style]]:
        found = json.loads(self._call("list", "--json").result)
        return ([Multiline.from_json(each) for each in found["multilines"]],
                [Style.from_json(each) for each in found["styles"]])

    def _call(self, verb: str, *options: str, names: dict[str, str] | None = None) -> Answer:
        known = {STANDARD_INPUT: self.name, **(names or {})}
        answer = call(verb, *options, "--", "-", data=self._data, names=known)
        self.warnings = tuple(text.replace(STANDARD_INPUT, self.name, 1) for text in answer.warnings)
        return answer

    def _edit(self, verb: str, *options: str, names: dict[str, str] | None = None) -> Answer:
        answer = self._call(verb, *options, "--output=-", names=names)
        self._data = answer.result
        self.__dict__.pop("_listed", None)
        return answer


def open(path: str | os.PathLike[str]) -> Drawing:  # noqa: A001 (orvex.open, as for files)
    """Opens a drawing; what can't be read raises `ReadError`, or OSError where there is no file."""
    with builtins.open(path, "rb") as file:
        return Drawing(file.read(), os.fspath(path))
