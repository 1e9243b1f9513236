#!/usr/bin/python3
"""The Python package over orvex-batch: package.py PROGRAM TREE"""

import contextlib
import io
import os
import pathlib
import runpy
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, TREE = os.path.abspath(sys.argv[1]), pathlib.Path(sys.argv[2]).resolve()
sys.path.insert(0, str(TREE / "python"))
sys.dont_write_bytecode = True
os.environ["ORVEX_BATCH"] = PROGRAM
import orvex  # noqa: E402


class Package(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)
        shutil.copy(TREE / "samples/flat.dxf", "flat.dxf")
        self.flat = pathlib.Path("flat.dxf").read_bytes()

    def batch(self, *arguments):
        return subprocess.run([PROGRAM, *arguments], capture_output=True, check=True).stdout

    def test_the_example_makes_a_door(self):
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            runpy.run_path(str(TREE / "python/examples/doors.py"))
        self.assertIn("69 joints, 0 places left", printed.getvalue())
        self.assertTrue(pathlib.Path("doors.png").read_bytes().startswith(b"\x89PNG"))
        doors = orvex.open("doors.dxf").multiline("4F").vertices[0].lines
        # Each line has the door's ends among its breaks, 900 apart.
        for line in doors:
            self.assertTrue(any(abs(b - a - 900) < 1e-6 for a, b in zip(line[2:], line[3:])), line)

    def test_joins_as_the_program_does(self):
        plan = orvex.open("flat.dxf")
        report = plan.join(tolerance=60, tee="closed", layers=["WALL-INT", "WALL-EXT"])
        self.batch("join", "flat.dxf", "--tolerance", "60", "--tee", "closed", "--layer", "WALL-INT", "--layer", "WALL-EXT",
                   "--output", "joined.dxf")
        self.assertEqual(plan.data, pathlib.Path("joined.dxf").read_bytes())
        self.assertEqual(report.counts["joined"], sum(joint.result == "joined" for joint in report.joints))
        self.assertEqual(pathlib.Path("flat.dxf").read_bytes(), self.flat)

    def test_saves_under_any_name(self):
        for name in ("-", "-x.dxf", "new\nline.dxf", "--output"):
            orvex.open("flat.dxf").save(name)
            self.assertEqual(pathlib.Path(name).read_bytes(), self.flat)
            self.assertEqual(len(orvex.open(name).multilines), 40)

    def test_failures_say_where_and_change_nothing(self):
        plan = orvex.open("flat.dxf")
        bad = orvex.Script().command("ZOOM", "E").command("NOSUCH")
        with self.assertRaises(orvex.PlayError) as caught:
            plan.run(bad)
        self.assertEqual((caught.exception.file, caught.exception.line, caught.exception.status), ("script", 3, 5))
        with self.assertRaises(orvex.MissedPickError) as caught:
            plan.run(orvex.Script().command("-MLEDIT", "CS").pick((-1e6, 0)).enter(), strict=True)
        self.assertEqual((caught.exception.file, caught.exception.line), ("script", 3))
        with self.assertRaises(orvex.WriteError) as caught:
            plan.save("nowhere/plan.dxf")
        self.assertEqual(caught.exception.file, "nowhere/plan.dxf")
        self.assertEqual(plan.data, self.flat)
        pathlib.Path("bad.dxf").write_bytes(b"0\nSECTION\nx\n")
        with self.assertRaises(orvex.ReadError) as caught:
            orvex.open("bad.dxf")
        self.assertEqual((caught.exception.file, caught.exception.line), ("bad.dxf", 3))
        with self.assertRaises(FileNotFoundError):
            orvex.open("nowhere.dxf")

    def test_an_answer_is_one_line_and_stays_what_it_is(self):
        for answer in ("a\nb", "a\r", "", " a", "a ", "; a", "\ud800"):
            with self.assertRaises(ValueError, msg=repr(answer)):
                orvex.Script().answer(answer)
        for point in ((1,), (1, 2, 3, 4), (float("nan"), 0)):
            with self.assertRaises(ValueError, msg=repr(point)):
                orvex.Script().point(point)
        script = orvex.Script().command("MLINE", "S", 0.1).point((1e-7, 1 / 3)).pick((1, 2, 3), "3a").cancel()
        self.assertEqual(str(script), f"MLINE\nS\n0.1\n1e-07,{1 / 3!r}\n1,2,3 #3A\n*CANCEL*\n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
