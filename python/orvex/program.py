"""Calls of ``orvex-batch``."""

from __future__ import annotations

import os
import re
import shutil
import subprocess
from dataclasses import dataclass

from .errors import BY_STATUS, CallError, ProgramFaultError

_COMPLAINT = "orvex-batch: "
STANDARD_INPUT = "standard input"


@dataclass(frozen=True)
class Answer:
    """What a call gave: the result, the lines that were printed, the warnings."""

    result: bytes
    printed: str
    warnings: tuple[str, ...]


def file_name(path: str | os.PathLike[str]) -> str:
    """A file's name that no option or stream is mistaken for."""
    name = os.fspath(path)
    return "./-" if name == "-" else name


def call(*arguments: str, data: bytes | None = None, names: dict[str, str] | None = None) -> Answer:
    """Runs the program; ``names`` says what files are called in errors."""
    program = os.environ.get("ORVEX_BATCH") or shutil.which("orvex-batch")
    if program is None:
        raise CallError("there is no orvex-batch; ORVEX_BATCH in the environment can name it", 2)
    try:
        run = subprocess.run([program, *arguments], input=data if data is not None else b"", capture_output=True,
                             check=False)
    except (OSError, ValueError) as error:
        raise CallError(f"{program} can't be run: {error}", 2) from error
    lines = run.stderr.decode(errors="replace").splitlines()
    complaints = [line.removeprefix(_COMPLAINT) for line in lines if line.startswith(_COMPLAINT)]
    printed = "".join(line + "\n" for line in lines if not line.startswith(_COMPLAINT))
    if run.returncode != 0:
        _fail(run.returncode, complaints, names or {})
    return Answer(run.stdout, printed, tuple(complaints))


def _fail(status: int, complaints: list[str], names: dict[str, str]) -> None:
    if status < 0:
        raise ProgramFaultError(f"orvex-batch was ended by signal {-status}", 7)
    faults = [i for i, text in enumerate(complaints) if not re.search(r": warning: |^this is a fault", text)]
    at = faults[-1] if faults else len(complaints)
    text = complaints[at] if faults else f"orvex-batch ended with status {status}"
    file, line = None, None
    for known, name in names.items():
        match = re.match(re.escape(known) + r":(?:(\d+):)? (.*)", text, re.DOTALL)
        if match:
            file, line, text = name, int(match[1]) if match[1] else None, match[2]
            break
    raise BY_STATUS.get(status, ProgramFaultError)(text, status, file, line, tuple(complaints[:at]))
