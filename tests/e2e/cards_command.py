#!/usr/bin/env python3
"""The command without a window, as a whole program without any display."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

STAGE = pathlib.Path(os.environ["ZEVLIN_BUILD"]) / "stage"
PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging" / "debian"
SAMPLES = STAGE / "zevlin-files"


def completions(*words, folder=None):
    """What bash offers for the last word."""
    script = ('. "$1"; shift; COMP_WORDS=(zevlin-cards "$@"); COMP_CWORD=$#; _zevlin_cards; '
              'printf "%s\\n" "${COMPREPLY[@]}"')
    told = subprocess.run(["bash", "-c", script, "bash", PACKAGING / "zevlin-cards.bash", *words],
                          cwd=folder, capture_output=True, text=True, check=True, timeout=20)
    return set(told.stdout.split())


def contents(folder):
    """Names, contents and times of all files below a folder."""
    return {path: (path.read_bytes(), path.stat().st_mtime_ns)
            for path in folder.rglob("*") if path.is_file()}


class CardsCommand(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="zevlin-cards-"))
        self.addCleanup(shutil.rmtree, self.home)
        self.data = self.home / "Documents" / "ZEV"
        self.data.mkdir(parents=True)
        for card in SAMPLES.glob("*.zev"):
            shutil.copy(card, self.data)

    def run_cards(self, *arguments, **options):
        environment = {"HOME": str(self.home), "PATH": os.environ["PATH"]}
        return subprocess.run([STAGE / "zevlin-cards", *arguments], env=environment, cwd=self.home,
                              capture_output=True, text=True, check=False, timeout=60, **options)

    def test_text_tells_a_card_of_the_data_folder_by_its_name(self):
        told = self.run_cards("text", "Two Over One")
        self.assertEqual((told.returncode, told.stderr), (0, ""))
        self.assertIn("  Names, both partners: Robin Fields & Sandy Moore\n", told.stdout)
        self.assertIn("  General approach, two over one game forcing: yes\n", told.stdout)

    def test_text_as_json_is_json(self):
        told = self.run_cards("text", "--json", "Two Over One", "Standard American")
        self.assertEqual((told.returncode, told.stderr), (0, ""))
        cards = json.loads(told.stdout)
        self.assertEqual([card["card"] for card in cards], ["Two Over One", "Standard American"])
        names = {field["name"]: field["value"] for field in cards[0]["fields"]}
        self.assertEqual(names["Names, both partners"], "Robin Fields & Sandy Moore")
        self.assertIs(names["General approach, two over one game forcing"], True)

    def test_diff_tells_how_the_sample_cards_differ(self):
        told = self.run_cards("diff", "Two Over One", "Standard American")
        self.assertEqual((told.returncode, told.stderr), (1, ""))
        self.assertIn("\nNames, both partners\n< Robin Fields & Sandy Moore\n"
                      "> Pat Baker & Lee Cooper\n", told.stdout)
        same = self.run_cards("diff", "Two Over One", "two over one.zev")
        self.assertEqual((same.returncode, same.stdout, same.stderr), (0, "", ""))
        missing = self.run_cards("diff", "Two Over One", "None")
        self.assertEqual((missing.returncode, missing.stdout), (2, ""))
        self.assertEqual(missing.stderr, "None: File not found\n")

    def test_check_names_the_damaged_card_and_goes_on(self):
        self.assertEqual(self.run_cards("check", str(self.data)).returncode, 0)
        whole = (SAMPLES / "Two Over One.zev").read_bytes()
        damaged = self.data / "cut\nshort.zev"
        damaged.write_bytes(whole[:len(whole) // 2])
        told = self.run_cards("check", str(self.data))
        self.assertEqual((told.returncode, told.stdout), (1, ""))
        lines = whole[:len(whole) // 2].count(b"\n") + 1
        self.assertRegex(told.stderr, rf"/cut\\nshort\.zev:{lines}: the file ends before ")
        self.assertEqual(told.stderr.count("\n"), 1)

    def test_names_may_come_by_the_standard_input(self):
        names = "\n".join(str(path) for path in self.data.glob("*.zev")) + "\nnone.zev\n"
        told = self.run_cards("check", "--files-from", "-", input=names)
        self.assertEqual((told.returncode, told.stderr), (1, "none.zev: File not found\n"))

    def test_changes_nothing_at_home(self):
        before = contents(self.home)
        for command in (["text", "Two Over One"], ["diff", "Two Over One", "Standard American"],
                        ["check", str(self.data)], ["text", "None"]):
            self.run_cards(*command)
        self.assertEqual(contents(self.home), before)

    def test_a_home_without_a_folder_stays_as_it_is(self):
        shutil.rmtree(self.home / "Documents")
        told = self.run_cards("text", "None")
        self.assertEqual((told.returncode, told.stderr), (1, "None: File not found\n"))
        self.assertEqual(list(self.home.iterdir()), [])

    def test_a_full_disk_is_told(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            told = subprocess.run([STAGE / "zevlin-cards", "text", SAMPLES / "Two Over One.zev"],
                                  stdout=full, stderr=subprocess.PIPE, text=True, check=False,
                                  timeout=60)
        self.assertEqual(told.returncode, 2)
        self.assertEqual(told.stderr, "zevlin-cards: the output can't be written\n")

    def test_help_and_version(self):
        for arguments in (["--help"], ["text", "--help"], ["diff", "-h"], ["check", "--help"]):
            told = self.run_cards(*arguments)
            self.assertEqual((told.returncode, told.stderr), (0, ""))
            self.assertIn("Usage: zevlin-cards", told.stdout)
        self.assertRegex(self.run_cards("--version").stdout, r"^zevlin-cards \d+\.\d+\.\d+\n$")
        self.assertEqual(self.run_cards("unheard-of").returncode, 2)

    def test_man_page_and_completion_know_each_command_and_option(self):
        page = (PACKAGING / "zevlin-cards.1").read_text(encoding="utf-8").replace("\\-", "-")
        commands = re.findall(r"^  ([a-z]+) ", self.run_cards("--help").stdout, re.MULTILINE)
        self.assertIn("check", commands)
        self.assertLessEqual(set(commands), completions(""))
        for command in commands:
            told = self.run_cards(command, "--help").stdout
            options = set(re.findall(r"(--[a-z-]+)", told))
            self.assertEqual(completions(command, "--"), options)
            self.assertIn(f".B {command}\n", page)
            for option in options:
                self.assertIn(option, page)

    def test_completion_offers_cards_and_folders(self):
        (self.home / "notes.txt").touch()
        (self.home / "a.ZEV").touch()
        self.assertEqual(completions("check", "", folder=self.home), {"a.ZEV", "Documents"})
        self.assertEqual(completions("check", "--files-from", "", folder=self.home), set())
        self.assertEqual(completions("te"), {"text"})


if __name__ == "__main__":
    unittest.main()
