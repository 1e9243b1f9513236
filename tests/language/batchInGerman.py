"""orvex-batch says and writes the same wherever it runs: each call under a German locale, the system's messages included, and
under none. The locale is made for the test alone, where the system can make one."""
import os
import pathlib
import subprocess
import sys
import tempfile

program, drawing = sys.argv[1:3]
CALLS = [
    ["show", "{plan}", "--output", "{here}/no/such/folder.png"],
    ["show", "{plan}", "--output", "{here}/plan.svg", "--size", "400x300"],
    ["list", "{here}/missing.dxf"],
    ["list", "{plan}"],
    ["audit", "{plan}", "--json"],
    ["join", "{plan}", "--output", "{here}/joined.dxf"],
    ["run", "{plan}", "--script", "{here}/wrong.scr", "--output", "{here}/none.dxf"],
    ["run", "{plan}", "--script", "{here}/cut.scr", "--output", "{here}/cut.dxf"],
    ["--help"],
]


def run_all(here, language):
    (here / "wrong.scr").write_text("MLINE\nS\n1,5\n", encoding="utf-8")
    (here / "cut.scr").write_text("-MLEDIT\nCA\n2400,0\n3600,0\n\n", encoding="utf-8")
    environment = {key: value for key, value in os.environ.items() if not key.startswith(("LC_", "LANG"))} | language
    said = []
    for call in CALLS:
        arguments = [part.format(plan=drawing, here=here) for part in call]
        run = subprocess.run([program, *arguments], env=environment, capture_output=True, timeout=120, check=False)
        said.append((call, run.returncode, *(text.replace(bytes(here), b"") for text in (run.stdout, run.stderr))))
    return said, {path.name: path.read_bytes() for path in here.iterdir()}


with tempfile.TemporaryDirectory() as folder:
    locales, here = pathlib.Path(folder, "locales"), pathlib.Path(folder, "here")
    for each in (locales, here):
        each.mkdir()
    made = subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", str(locales / "de_DE.UTF-8")], capture_output=True, check=False)
    print("with" if (locales / "de_DE.UTF-8").exists() else f"without: {made.stderr}", "the system's own German")
    german = {"LC_ALL": "de_DE.UTF-8", "LANGUAGE": "de", "LOCPATH": str(locales)}
    expected, expected_files = run_all(here, {"LC_ALL": "C.UTF-8"})
    found, files = run_all(here, german)

wrong = [f"{a} instead of {b}" for a, b in zip(found, expected) if a != b]
wrong += [f"{name} differs" for name in expected_files if files.get(name) != expected_files[name]]
assert len(files) == 5, files.keys()
print("\n".join(wrong))
sys.exit(1 if wrong else 0)
