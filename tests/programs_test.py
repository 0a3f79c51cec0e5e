#!/usr/bin/env python3
"""The built programs as their users start them.

    programs_test.py BIN_DIRECTORY VERSION
"""

import os
import re
import resource
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

BIN = Path()
MANUALS = Path(__file__).resolve().parent.parent / "packaging/man"
VERSION = ""
ANN = "Ann Smith,22 Sep 1949,9.05,P,4,073.59,40.45"


class Programs(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="tolvanis-test-")
        self.addCleanup(scratch.cleanup)
        self.home = Path(scratch.name)
        self.environment = {"PATH": os.environ["PATH"], "HOME": scratch.name, "QT_QPA_PLATFORM": "offscreen",
                            "XDG_RUNTIME_DIR": scratch.name}

    def run_program(self, name, *arguments, **others):
        return subprocess.run([BIN / name, *arguments], env={**self.environment, **others.pop("environment", {})},
                              capture_output="stdout" not in others, text=True, timeout=60, cwd=self.home, **others)

    def start(self, name):
        program = subprocess.Popen([BIN / name], env=self.environment, cwd=self.home, stderr=subprocess.DEVNULL)
        self.addCleanup(program.wait)
        self.addCleanup(program.kill)
        return program

    def test_each_tells_its_usage_and_refuses_what_it_does_not_know(self):
        for name in ("tolvanis", "tolvanis-chart", "tolvanis-atlas"):
            with self.subTest(name):
                told = self.run_program(name, "--help")
                self.assertEqual((told.returncode, told.stdout.startswith(f"Usage: {name}")), (0, True))
                refused = self.run_program(name, "--bogus")
                self.assertEqual((refused.returncode, refused.stdout), (2, ""))
                self.assertIn(f"Usage: {name}", refused.stderr)
                manual = (MANUALS / f"{name}.1").read_text(encoding="utf-8").replace("\\-", "-")
                options = re.findall(r"--[a-z-]+", told.stdout)
                self.assertEqual([option for option in options if option not in manual], [])
        for name in ("tolvanis", "tolvanis-chart", "tolvanis-atlas"):
            self.assertEqual(self.run_program(name, "--version").stdout, f"{name} {VERSION}\n")
            with open("/dev/full", "w", encoding="ascii") as full:
                told = self.run_program(name, "--help", stdout=full, stderr=subprocess.PIPE)
                self.assertEqual((told.returncode, told.stderr), (1, f"{name}: cannot write to standard output\n"))

    def test_a_chart_is_printed_or_saved(self):
        printed = self.run_program("tolvanis-chart", "--birth", ANN)
        self.assertEqual((printed.returncode, printed.stderr), (0, ""))
        self.assertIn("Ann Smith", printed.stdout)
        saved = self.run_program("tolvanis-chart", "--birth", ANN, "--output", "ann.txt")
        self.assertEqual((saved.returncode, saved.stdout), (0, ""))
        self.assertEqual((self.home / "ann.txt").read_text(encoding="utf-8"), printed.stdout)
        self.assertEqual(self.run_program("tolvanis-chart", "--birth", "Ann").returncode, 1)
        (self.home / "two.fil").write_text(f"{ANN}\nBob,99 Sep 1949,9.05,P,4,073.59,40.45\n", encoding="ascii")
        partly = self.run_program("tolvanis-chart", "--names", "two.fil", "--output", "two.txt")
        self.assertEqual((partly.returncode, partly.stdout), (1, ""))
        self.assertIn("two.fil:2", partly.stderr)
        self.assertEqual((self.home / "two.txt").read_text(encoding="utf-8"), printed.stdout)

    def test_a_wheel_is_drawn_without_a_display(self):
        for name, start in (("a.svg", b"<?xml"), ("a.png", b"\x89PNG"), ("a.pdf", b"%PDF")):
            drawn = self.run_program("tolvanis", "--wheel", name, "--birth", ANN,
                                     environment={"QT_QPA_PLATFORM": ""})
            self.assertEqual((drawn.returncode, drawn.stderr), (0, ""))
            self.assertTrue((self.home / name).read_bytes().startswith(start), name)

    def test_what_is_no_picture_is_wrong_usage(self):
        refused = self.run_program("tolvanis", "--wheel", "a.gif", "--birth", ANN)
        self.assertEqual((refused.returncode, refused.stdout), (2, ""))
        self.assertIn("a picture's name ends in .svg, .pdf or .png", refused.stderr)

    def test_no_display_is_told(self):
        told = self.run_program("tolvanis", environment={"QT_QPA_PLATFORM": ""})
        self.assertEqual(told.returncode, 1)
        self.assertIn("there is no display", told.stderr)
        for name in ("tolvanis", "tolvanis-atlas"):
            told = self.run_program(name, environment={"QT_QPA_PLATFORM": "xcb", "DISPLAY": ":7777"})
            self.assertEqual((told.returncode, told.stderr.count("\n")), (1, 1), told.stderr)
            self.assertIn(f"{name}: the display cannot be reached", told.stderr)

    def test_too_little_memory_is_told(self):
        limit = (8 << 20, 8 << 20)
        for name, arguments in (("tolvanis", ("--wheel", "a.svg")), ("tolvanis-chart", ())):
            told = self.run_program(name, *arguments, "--birth", ANN, "--at", "Rome, Italy",
                                    preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_DATA, limit))
            self.assertEqual((told.returncode, told.stderr), (1, f"{name}: there is not enough memory\n"))

    def test_the_first_start_fills_the_users_directory_and_stays_open(self):
        program = self.start("tolvanis")
        own = self.home / ".local/share/tolvanis"
        wanted = ["GA_MA.LL", "NAMES.FIL", "NATAL.ORB", "OPTIONS.OPT"]
        for _ in range(200):
            if all((own / name).exists() for name in wanted):
                break
            time.sleep(0.05)
        self.assertEqual([name for name in wanted if not (own / name).exists()], [])
        time.sleep(0.3)
        self.assertIsNone(program.poll())

    def test_the_atlas_opens(self):
        (self.home / "TSRTEMP.TXT").write_text("of the last look-up", encoding="ascii")
        program = self.start("tolvanis-atlas")
        for _ in range(200):
            if not (self.home / "TSRTEMP.TXT").exists():
                break
            time.sleep(0.05)
        self.assertFalse((self.home / "TSRTEMP.TXT").exists())
        time.sleep(0.5)
        self.assertIsNone(program.poll())


if __name__ == "__main__":
    VERSION = sys.argv.pop()
    BIN = Path(sys.argv.pop()).resolve()
    unittest.main()
