"""The commands as a script sees them: what they print, what they refuse and how, and what a kill leaves behind."""

import contextlib
import fcntl
import json
import os
import pathlib
import pty
import random
import signal
import sqlite3
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

PROGRAM = os.path.abspath(sys.argv.pop(1))
KILLS = int(os.environ.get("GLEANER_KILLS", "6"))
DONE, FAILED, USAGE, REFUSED, STOPPED = range(5)


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.lab = self.folder / "lab.sqlite"

    def command(self, words):
        return [PROGRAM, words[0], "--lab", str(self.lab), *map(str, words[1:])]

    def run_it(self, *words, expect=DONE):
        done = subprocess.run(self.command(words), cwd=self.folder, capture_output=True, text=True, timeout=300)
        self.assertEqual(done.returncode, expect, f"{words}: {done.stdout}{done.stderr}")
        return done.stdout if expect == DONE else done.stdout + done.stderr

    def rows(self, *words):
        return json.loads(self.run_it(*words, "--json"))

    def simulate(self, plate="P1", *more):
        self.run_it("simulate", "--project", "Trial", "--plate", plate, "--folder", self.folder / plate, *more)

    def analyze(self, *more, expect=DONE):
        return self.run_it("analyze", "--project", "Trial", "--study", "First", *more, expect=expect)

    def test_wells_of_a_plate_to_a_study_to_csv_and_pictures(self):
        self.simulate()
        wells = "B02,c2,D2"
        self.run_it("analyze", "--project", "TRIAL ", "--study", "First", "--plate", "p1", "--wells", wells, "--picture",
                    self.folder / "plate.png")
        results = self.rows("results", "--study", "First")
        self.assertEqual([row["well"] for row in results], ["B2", "C2", "D2"])
        exported = self.run_it("export", "--study", "First").splitlines()
        self.assertEqual(exported[0], "result,sample,plate,well,status,locus,allele,dye,size_bp,height_rfu")
        picture = self.folder / "trace.png"
        shown = json.loads(self.run_it("show", results[0]["result"], "--picture", picture, "--json"))
        self.assertEqual(sum(line.startswith(f"{results[0]['result']},") for line in exported), len(shown["calls"]))
        for png in (picture, self.folder / "plate.png"):
            self.assertEqual(png.read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
        self.assertEqual(self.rows("studies")[0]["results"], 3)
        self.assertEqual(self.rows("log"), [])

    def test_results_are_analyzed_again_without_touching_the_study(self):
        self.simulate()
        self.analyze("--plate", "P1", "--wells", "B2,C2")
        before = self.rows("results", "--study", "First")
        self.run_it("analyze", "--again", "alleles", "--study", "First", "--loci", "s01")
        self.run_it("analyze", "--again", "results", "--study", "First")
        self.assertEqual(self.rows("results", "--study", "First"), before)
        results = self.rows("results")
        self.assertEqual(len(results), 6)
        alleles = json.loads(self.run_it("show", results[2]["result"], "--json"))["calls"]
        self.assertEqual({call["locus"] for call in alleles}, {"S01"})

    def test_what_cannot_be_is_refused_by_its_name(self):
        self.simulate()
        ladder = next((self.folder / "P1").glob("*A01*"))
        (self.folder / "empty.fsa").write_bytes(b"")
        (self.folder / "short.fsa").write_bytes(ladder.read_bytes()[:5000])
        (self.folder / "panels.txt").write_text("Panel\tX\nL1\tblue\tlow\t200\n")
        (self.folder / "bins.txt").write_text("Panel Name\tX\n")
        (self.folder / "text").write_text("no lab")
        os.mkfifo(self.folder / "pipe")
        of_trial = ["analyze", "--project", "Trial", "--study", "First", "--plate", "P1"]
        refused = {
            "empty.fsa": ["import", "--project", "Trial", self.folder / "empty.fsa"],
            "short.fsa": ["import", "--project", "Trial", self.folder / "short.fsa"],
            "has this trace already": ["import", "--project", "Trial", ladder],
            "no regular file": ["import", "--project", "Trial", self.folder / "pipe"],
            'project "[all projects]"': ["simulate", "--project", "[all projects]", "--plate", "P1"],
            "missing.fsa": ["import", "--project", "Trial", self.folder / "missing.fsa"],
            "panels.txt: line 2": ["import", "--kit", "K", "--panels", self.folder / "panels.txt",
                                   "--bins", self.folder / "bins.txt"],
            'project "None"': ["analyze", "--project", "None", "--study", "First"],
            'plate "P9"': ["analyze", "--project", "Trial", "--study", "First", "--plate", "P9"],
            'well "I13"': [*of_trial, "--wells", "A2,I13"],
            'locus "Q77"': [*of_trial, "--wells", "A2", "--loci", "S01,Q77"],
            'study "Nothing"': ["results", "--study", "Nothing"],
            "result 999": ["show", "999"],
            "nowhere/out.csv": ["export", "--file", self.folder / "nowhere/out.csv"],
        }
        for named, words in refused.items():
            with self.subTest(named):
                self.assertIn(named, self.run_it(*words, expect=REFUSED))
        usage = {
            'no command "analyse"': ["analyse"],
            "--project is needed": ["simulate", "--plate", "P2"],
            "neither STR nor SNP": [*of_trial, "--type", "DNA"],
            "no whole number": ["show", "first"],
            "5000000000 is beyond": ["simulate", "--plate", "P2", "--project", "Trial", "--seed", "5000000000"],
            'none "Colour"': ["settings", "Colour", "1"],
            "MaximumResults needs": ["settings", "MaximumResults"],
            "below 1": ["settings", "MaximumResults", "0"],
            "fast": ["results", "--fast"],
            "--wells needs --plate": [*of_trial[:-2], "--wells", "A2"],
            "--samples does not go with --plate": [*of_trial, "--samples", "Ladder"],
            "--project does not go with --again": [*of_trial, "--again", "results"],
            "--project does not go with --study": ["results", "--study", "First", "--project", "Trial"],
            "--wells is empty": [*of_trial, "--wells", " , "],
            "--plate is empty": [*of_trial[:-1], ""],
            "--plate is given twice": [*of_trial, "--plate", "P2"],
            "--again is empty": ["analyze", "--study", "First", "--again", ""],
            "--kit needs --panels": ["import", "--kit", "K"],
            "--project is for files": ["import", "--kit", "K", "--panels", "p", "--bins", "b", "--project", "Trial"],
            "--kit is empty": ["import", "--kit", "   "],
            "--plate has 300 bytes": ["simulate", "--project", "Trial", "--plate", "P" * 300],
            "word 5 (P1%0Astored 1) has a control character": ["simulate", "--plate", "P1\nstored 1"],
            "word 4 (u%FF.fsa) is no UTF-8": ["import", "u\udcff.fsa"],
        }
        for named, words in usage.items():
            with self.subTest(named):
                self.assertIn(named, self.run_it(*words, expect=USAGE))
        self.assertEqual(self.rows("results"), [])
        self.assertEqual(self.rows("studies"), [])
        self.lab = ""
        self.assertIn("--lab is empty", self.run_it("results", expect=USAGE))
        self.lab = ":memory:"
        self.run_it("import", "--project", "Trial", "missing.fsa", expect=REFUSED)
        self.assertTrue((self.folder / ":memory:").exists())
        self.lab = self.folder / "text"
        self.assertIn("text", self.run_it("results", expect=FAILED))
        self.lab = self.folder / "absent"
        self.assertIn("absent", self.run_it("results", expect=FAILED))

    def change_lab(self, *statements):
        lab = sqlite3.connect(self.lab)
        for statement in statements:
            lab.execute(statement)
        lab.commit()
        lab.close()

    def test_what_ends_early_says_why_and_what_was_done(self):
        self.simulate()
        three = ["--plate", "P1", "--wells", "B2,C2,D2"]
        self.run_it("settings", "MaximumResults", "2")
        self.assertEqual([row["value"] for row in self.rows("settings")], [2, 650])
        self.assertIn("it would have 3 results", self.analyze(*three, expect=REFUSED))
        self.change_lab("DELETE FROM settings", "INSERT INTO settings VALUES ('WarningSizeMB', 0)")
        self.assertIn("Nothing was analyzed", self.analyze(*three, expect=REFUSED))
        self.assertEqual(self.rows("results"), [])
        breaks = "BEGIN SELECT RAISE(FAIL, 'the disk is gone'); END"
        self.change_lab("DELETE FROM settings",
                        f"CREATE TRIGGER one BEFORE INSERT ON results WHEN EXISTS (SELECT 1 FROM results) {breaks}",
                        f"CREATE TRIGGER two BEFORE INSERT ON samples WHEN (SELECT MAX(sample_id) FROM samples) > 96 "
                        f"{breaks}")
        said = self.analyze(*three, expect=FAILED)
        self.assertIn("the disk is gone", said)
        self.assertIn("What was analyzed is stored", said)
        self.assertEqual(len(self.rows("results")), 1)
        self.assertEqual(self.rows("studies"), [])
        files = sorted((self.folder / "P1").glob("*_B0[1-3].fsa"))
        said = self.run_it("import", "--project", "Beta", *files, expect=FAILED)
        self.assertIn(f"ended at {files[1]}", said)
        self.assertIn(f"{files[0]}  97 ", said)

    def test_output_that_goes_nowhere_is_no_work_done(self):
        with open("/dev/full", "w") as full:
            done = subprocess.run([PROGRAM, "help"], stdout=full, stderr=subprocess.PIPE, text=True)
        self.assertEqual(done.returncode, FAILED)
        self.assertIn("cannot be written", done.stderr)

    def open_window(self, **named):
        kept = {name: value for name, value in os.environ.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        return subprocess.run([PROGRAM, "--lab", self.lab], env={**kept, **named}, capture_output=True, text=True,
                              timeout=60)

    def test_without_a_display_the_window_says_so_and_how_to_go_on(self):
        self.simulate()
        nowhere = {"there is no display": [{}, {"DISPLAY": ""}, {"DISPLAY": "", "QT_QPA_PLATFORM": ""}],
                   "cannot be reached": [{"DISPLAY": ":4321"}, {"WAYLAND_DISPLAY": "nowhere"}]}
        for said, displays in nowhere.items():
            for named in displays:
                with self.subTest(named):
                    done = self.open_window(**named)
                    self.assertEqual(done.returncode, USAGE)
                    self.assertIn(said, done.stderr)
                    self.assertIn("--screenshots FOLDER", done.stderr)
        self.assertIn("QT_QPA_PLATFORM", self.open_window(QT_QPA_PLATFORM="nothing").stderr)
        with self.assertRaises(subprocess.TimeoutExpired):  # a platform that is asked for by name opens the window
            subprocess.run([PROGRAM, "--lab", self.lab], env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, timeout=3)

    def test_pictures_of_the_window_that_cannot_be_written_are_refused(self):
        (self.folder / "file").write_text("")
        shots = self.folder / "file" / "shots"
        done = subprocess.run([PROGRAM, "--screenshots", shots], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, REFUSED)
        self.assertIn(str(shots), done.stderr)

    def test_help_is_about_the_command(self):
        for words in (["help", "analyze"], ["analyze", "--help"]):
            shown = subprocess.run([PROGRAM, *words], capture_output=True, text=True)
            self.assertEqual(shown.returncode, DONE)
            self.assertIn("Usage: gleaner-workbench analyze [options]\n", shown.stdout)
        self.assertIn("gleaner-workbench analyze --help", self.run_it("analyze", "--quick", expect=USAGE))
        # The commands draw on no screen, whatever one the user's windows are for.
        for words in (["--lab", "x", "studies"], ["--lab=x", "studies"]):
            shown = subprocess.run([PROGRAM, *words], capture_output=True, text=True)
            self.assertIn("as in: studies --lab FILE", shown.stderr)
        shown = subprocess.run([PROGRAM, "help"], env={**os.environ, "QT_QPA_PLATFORM": "nothing"},
                               stdout=subprocess.DEVNULL)
        self.assertEqual(shown.returncode, DONE)

    def test_the_progress_line_stays_a_line(self):
        try:
            ours, theirs = pty.openpty()
        except OSError as error:
            self.skipTest(f"no terminal can be made here: {error}")
        self.simulate()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 40, 0, 0))
        words = ["analyze", "--project", "Trial", "--plate", "P1", "--study", "First", "--lines"]
        run = subprocess.Popen(self.command(words), stdout=theirs, stderr=theirs)
        os.close(theirs)
        said = b""
        with contextlib.suppress(OSError):  # that is how its end is told
            while part := os.read(ours, 65536):
                said += part
        self.assertEqual(run.wait(), DONE)
        drawn = said.decode().replace("\r\n", "\n").split("\r\x1b[K")
        self.assertGreater(len(drawn), 96)
        for piece in drawn:
            line, _, rest = piece.partition("\n")
            self.assertTrue(len(line) < 40 or line.startswith("stored "), line)
            self.assertFalse("stored" in line and " of 96 " in line, line)
        self.assertLess(len(said), 100_000)

    def test_each_seed_is_a_run_of_its_own(self):
        for seed in (1, 2):
            self.simulate("P1", "--without-faults", "--seed", seed)
        self.analyze("--plate", "P1")
        statuses = [row["status"] for row in self.rows("results")]
        self.assertEqual((statuses.count("PASS"), len(statuses)), (96, 96))
        self.analyze("--samples", "p1-b01,P1-B02")
        self.assertEqual([row["status"] for row in self.rows("results")][96:], ["PASS"] * 4)

    def test_a_lab_is_for_one_writer_at_a_time(self):
        self.simulate()
        holder = sqlite3.connect(self.lab, isolation_level=None)
        holder.execute("BEGIN IMMEDIATE")
        self.assertIn("lab.sqlite", self.run_it("simulate", "--project", "Trial", "--plate", "P2", expect=FAILED))
        holder.execute("ROLLBACK")
        holder.close()
        self.simulate("P2")

    def test_an_interrupt_stops_the_run_and_keeps_what_is_stored(self):
        self.simulate()
        run = self.start_run()
        reported = [run.stdout.readline() for _ in range(3)]
        run.send_signal(signal.SIGINT)
        run.communicate(timeout=60)
        self.assertEqual(run.returncode, STOPPED)
        self.assertTrue(all(line.startswith("stored ") for line in reported))
        self.assertIn(len(self.rows("results")), range(3, 96))
        self.assertEqual(self.rows("studies"), [])

    def start_run(self, study="First"):
        words = ["analyze", "--project", "Trial", "--plate", "P1", "--study", study, "--lines"]
        return subprocess.Popen(self.command(words), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def test_a_kill_at_any_moment_leaves_a_whole_lab(self):
        self.simulate("P1", "--without-faults")
        moments = random.Random(1)
        begun = time.monotonic()
        self.analyze("--plate", "P1", "--quiet")
        lasts = time.monotonic() - begun
        for number in range(KILLS):
            run = self.start_run(f"Study {number}")
            time.sleep(moments.uniform(0, lasts))
            run.kill()
            reported = {int(line.split()[1]) for line in run.communicate()[0].splitlines() if line.endswith("PASS")
                        or line.startswith("stored ")}
            with sqlite3.connect(self.lab) as lab:
                self.assertEqual(lab.execute("PRAGMA integrity_check").fetchall(), [("ok",)])
            stored = {row["result"] for row in self.rows("results")}
            self.assertLessEqual(reported, stored)
            self.assertEqual({row["results"] for row in self.rows("studies")}, {96})  # whole or absent


if __name__ == "__main__":
    unittest.main()
