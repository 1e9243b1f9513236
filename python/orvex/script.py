"""Scripts for `Drawing.run`, built by method calls."""

from __future__ import annotations

from collections.abc import Sequence


class Script:
    """What one would type, an answer a line.

    Every method returns the script, so that calls can be chained::

        Script().command("-MLEDIT", "CA").pick((2400, 0)).pick((3600, 0)).enter()
    """

    def __init__(self) -> None:
        self._lines: list[str] = []

    def command(self, name: str, *answers: str | float) -> Script:
        """A command with its first answers: keywords, names, numbers."""
        self.answer(name)
        for answer in answers:
            self.answer(answer)
        return self

    def answer(self, value: str | float) -> Script:
        """A keyword, a name, or a number. What a line can't hold as it is raises ValueError."""
        text = value if isinstance(value, str) else _number(value)
        if any(end in text for end in "\n\r"):
            raise ValueError(f"an answer is one line: {text!r}")
        if not text or text != text.strip(" \t"):
            raise ValueError(f"blanks at the ends of an answer are lost: {text!r}")
        if text.startswith(";"):
            raise ValueError(f"the script takes this for a comment: {text!r}")
        text.encode()  # a lone surrogate is no text
        self._lines.append(text)
        return self

    def point(self, at: Sequence[float]) -> Script:
        """A point of two or three coordinates, in the current user coordinate system."""
        return self.answer(_coordinates(at))

    def pick(self, at: Sequence[float], handle: str | None = None) -> Script:
        """A pick at a point; with a handle, of that entity, whatever else lies there."""
        if handle is None:
            return self.point(at)
        return self.answer(f"{_coordinates(at)} #{int(handle, 16):X}")

    def select(self, *handles: str) -> Script:
        """Entities at a prompt for a selection, which it ends."""
        for handle in handles:
            self.answer(f"#{int(handle, 16):X}")
        return self.enter()

    def enter(self) -> Script:
        """An empty line: ends a tool or a selection."""
        self._lines.append("")
        return self

    def cancel(self) -> Script:
        """Escape."""
        self._lines.append("*CANCEL*")
        return self

    def __str__(self) -> str:
        return "".join(line + "\n" for line in self._lines)


def _number(value: float) -> str:
    text = repr(float(value))
    if text in ("inf", "-inf", "nan"):
        raise ValueError(f"no number for a drawing: {text}")
    return str(value) if isinstance(value, int) else text


def _coordinates(at: Sequence[float]) -> str:
    if len(at) not in (2, 3):
        raise ValueError(f"a point has two or three coordinates: {at!r}")
    return ",".join(map(_number, at))
