"""What can go wrong, one class for each exit status of ``orvex-batch``."""

from __future__ import annotations


class OrvexError(Exception):
    """A call that failed.

    ``file`` and ``line`` say where, as far as that is known: a drawing, or ``"script"`` for the
    lines of a `Script`, from 1. ``text`` is the message without them, ``warnings`` are the
    messages before it.
    """

    def __init__(self, text: str, status: int, file: str | None = None, line: int | None = None,
                 warnings: tuple[str, ...] = ()) -> None:
        place = f"{file}:{line}: " if line else f"{file}: " if file else ""
        super().__init__(place + text)
        self.text = text
        self.status = status
        self.file = file
        self.line = line
        self.warnings = warnings


class CallError(OrvexError):
    """Options or arguments contradict, or the program isn't there."""


class ReadError(OrvexError):
    """A drawing can't be read."""


class WriteError(OrvexError):
    """A result can't be written; an older file is as it was."""


class PlayError(OrvexError):
    """A script can't be played on; the drawing is as it was."""


class MissedPickError(OrvexError):
    """A pick of a strict run found nothing; the drawing is as it was."""


class ProgramFaultError(OrvexError):
    """A fault of the program itself; the message says what to report."""


class InterruptedRunError(OrvexError):
    """A signal ended the program; nothing was left behind."""


BY_STATUS: dict[int, type[OrvexError]] = {
    2: CallError,
    3: ReadError,
    4: WriteError,
    5: PlayError,
    6: MissedPickError,
    7: ProgramFaultError,
    130: InterruptedRunError,
    143: InterruptedRunError,
}
