"""The commands as a script sees them: what they print, what they refuse and how, and what a kill leaves behind."""

import json
import os
import pathlib
import random
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = sys.argv.pop(1)
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
        done = subprocess.run(self.command(words), capture_output=True, text=True, timeout=300)
        self.assertEqual(done.returncode, expect, f"{words}: {done.stdout}{done.stderr}")
        return done.stdout if expect == DONE else done.stderr

    def rows(self, *words):
        return json.loads(self.run_it(*words, "--json"))

    def simulate(self, plate="P1", *more):
        self.run_it("simulate", "--project", "Trial", "--plate", plate, "--folder", self.folder / plate, *more)

    def analyze(self, *more, expect=DONE):
        return self.run_it("analyze", "--project", "Trial", "--study", "First", *more, expect=expect)

    def test_wells_of_a_plate_to_a_study_to_csv_and_pictures(self):
        self.simulate()
        wells = "B2,C2,D2"
        self.analyze("--plate", "P1", "--wells", wells, "--picture", self.folder / "plate.png")
        results = self.rows("results", "--study", "First")
        self.assertEqual([row["well"] for row in results], wells.split(","))
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
        self.run_it("analyze", "--again", "alleles", "--study", "First", "--loci", "S01")
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
        of_trial = ["analyze", "--project", "Trial", "--study", "First", "--plate", "P1"]
        refused = {
            "empty.fsa": ["import", "--project", "Trial", self.folder / "empty.fsa"],
            "short.fsa": ["import", "--project", "Trial", self.folder / "short.fsa"],
            "has this trace already": ["import", "--project", "Trial", ladder],
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
            "fast": ["results", "--fast"],
        }
        for named, words in usage.items():
            with self.subTest(named):
                self.assertIn(named, self.run_it(*words, expect=USAGE))
        self.assertEqual(self.rows("results"), [])
        self.assertEqual(self.rows("studies"), [])
        self.lab = self.folder / "text"
        self.assertIn("text", self.run_it("results", expect=FAILED))
        self.lab = self.folder / "absent"
        self.assertIn("absent", self.run_it("results", expect=FAILED))

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
