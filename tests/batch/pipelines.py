#!/usr/bin/python3
"""Plays the calls of docs/pipelines.md: pipelines.py PROGRAM DOCUMENT FLAT

All ways through the plans have to give the same drawings and tell the same.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from program import Report

TASKS = 4


def outcomes(path):
    lines = map(json.loads, path.read_text().splitlines())
    return sorted((line["input"], line["status"], line["messages"], line["counts"]) for line in lines)


def results(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}


def main():
    program, document, flat = map(pathlib.Path, sys.argv[1:])
    report = Report()
    blocks = re.findall(r"^```(sh|bash)\n(.*?)^```$", document.read_text(), re.DOTALL | re.MULTILINE)
    environment = dict(os.environ, PATH=f"{program.resolve().parent}:{os.environ['PATH']}", HOME="/nonexistent")
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        (folder / "plans").mkdir()
        for name in ("a", "b", "with blank", "d", "e'"):
            shutil.copy(flat, folder / "plans" / f"{name}.dxf")
        (folder / "plans/c.dxf").write_text("broken\n")
        for kind, text in blocks:
            tools = [tool for tool in ("parallel", "jq") if re.search(rf"^\s*{tool}\b", text, re.MULTILINE)]
            missing = [tool for tool in tools if shutil.which(tool) is None]
            if missing:
                print("without", *missing)
                continue
            tasks = range(TASKS) if kind == "bash" else [None]
            for task in tasks:
                more = {} if task is None else {"SLURM_ARRAY_TASK_ID": str(task), "SLURM_ARRAY_TASK_COUNT": str(TASKS),
                                                "SLURM_CPUS_PER_TASK": "2"}
                run = subprocess.run(["/bin/bash", "-c", text], cwd=folder, env=environment | more, capture_output=True,
                                     text=True, timeout=300)
                # A broken plan among the others is told, and is no reason to stop.
                strange = [line for line in run.stderr.splitlines() if "plans/c.dxf:1:" not in line
                           and not re.match(r"(corner|tee|cross) at|\d+ joined", line)]
                report.check(not strange, f"{text}: {strange}")
        expected = results(folder / "joined")
        report.check(sorted(expected) == ["a.dxf", "b.dxf", "d.dxf", "e'.dxf", "with blank.dxf"], f"{sorted(expected)}")
        told = outcomes(folder / "join.jsonl")
        report.check([line[1] for line in told].count(3) == 1 and len(told) == 6, f"{told}")
        for way in ("parallel", "array"):
            if (folder / f"{way}-join.jsonl").exists():
                report.check(results(folder / f"{way}-joined") == expected, f"{way}: other drawings")
                report.check(outcomes(folder / f"{way}-join.jsonl") == told, f"{way}: another report")
        report.check((folder / "array-joined").exists(), "no array of jobs was played")
        report.check((folder / "a.svg").read_text().startswith("<svg"), "no picture through pipes")
        if shutil.which("jq"):
            report.check("3 plans/c.dxf" in (folder / "failed.txt").read_text(), "the failure isn't found")
    report.finish()


if __name__ == "__main__":
    main()
