#!/usr/bin/env python3
"""Pages and images of the command without a window, as a whole program without any display."""

import os
import pathlib
import pty
import re
import shlex
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

STAGE = pathlib.Path(os.environ["ZEVLIN_BUILD"]) / "stage"
SAMPLES = STAGE / "zevlin-files"
README = pathlib.Path(__file__).resolve().parents[2] / "README.md"
LONGEST_RUN = 120  # seconds


def is_whole(pdf):
    content = pdf.read_bytes()
    return content.startswith(b"%PDF") and content.endswith(b"%%EOF\n")


class CardsPages(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="zevlin-pages-"))
        self.addCleanup(shutil.rmtree, self.home)
        self.temporary = self.home / "tmp"
        self.temporary.mkdir()
        self.data = self.home / "Documents" / "ZEV"
        self.data.mkdir(parents=True)
        for card in SAMPLES.glob("*.zev"):
            shutil.copy(card, self.data)
        self.environment = {"HOME": str(self.home), "TMPDIR": str(self.temporary),
                            "PATH": f"{STAGE}:{os.environ['PATH']}"}

    def run_cards(self, *arguments, **variables):
        return subprocess.run([STAGE / "zevlin-cards", *arguments], cwd=self.home,
                              env=self.environment | variables, capture_output=True, text=True,
                              check=False, timeout=LONGEST_RUN)

    def start_cards(self, *arguments, **options):
        return subprocess.Popen([STAGE / "zevlin-cards", *arguments], cwd=self.home,
                                env=self.environment, start_new_session=True, **options)

    def make_club(self, count):
        club = self.home / "club"
        club.mkdir()
        for number in range(count):
            shutil.copy(SAMPLES / "Two Over One.zev", club / f"{number}.zev")
        return club

    def assert_nothing_left(self):
        """Nothing but what was asked for."""
        self.assertEqual(list(self.temporary.iterdir()), [])
        self.assertEqual(sorted(path.name for path in self.data.iterdir()),
                         ["Standard American.zev", "Two Over One.zev"])

    def test_the_readme_makes_one_file_of_the_sample_cards_and_tells_how_they_differ(self):
        lines = re.findall(r"^    (zevlin-cards .*\"Standard American\".*)$",
                           README.read_text(encoding="utf-8"), re.MULTILINE)
        self.assertEqual(len(lines), 2)
        told = [subprocess.run(shlex.split(line), cwd=self.home, env=self.environment,
                               capture_output=True, text=True, check=False, timeout=LONGEST_RUN)
                for line in lines]
        self.assertEqual([(run.returncode, run.stderr) for run in told], [(0, ""), (1, "")])
        pages = (self.home / "cards.pdf").read_bytes()
        self.assertEqual(pages.count(b"/Type /Page\n"), 2)
        self.assertIn("Names, both partners", told[1].stdout)
        self.assert_nothing_left()

    def test_an_image_of_a_card_of_the_data_folder(self):
        told = self.run_cards("image", "Two Over One")
        self.assertEqual((told.returncode, told.stdout, told.stderr), (0, "", ""))
        image = (self.home / "Two Over One.png").read_bytes()
        self.assertEqual(int.from_bytes(image[16:20], "big"), 1198)
        self.assert_nothing_left()

    def test_each_run_makes_the_same_bytes(self):
        for folder, zone in (("a", "Asia/Tokyo"), ("b", "America/New_York")):
            for command in (["pdf", "--both"], ["image"]):
                self.run_cards(*command, "-o", folder, str(self.data), TZ=zone)
        names = sorted(path.name for path in (self.home / "a").iterdir())
        self.assertEqual(len(names), 4)
        for name in names:
            self.assertEqual((self.home / "a" / name).read_bytes(),
                             (self.home / "b" / name).read_bytes())

    def test_a_given_date_is_that_of_stamp_and_file(self):
        date = {"SOURCE_DATE_EPOCH": "1790000000"}
        for folder, zone in (("a", "Asia/Tokyo"), ("b", "UTC")):
            self.run_cards("pdf", "--stamp", "-o", folder, "Two Over One", TZ=zone, **date)
        page = self.home / "a" / "Two Over One.pdf"
        self.assertEqual(page.read_bytes(), (self.home / "b" / page.name).read_bytes())
        words = subprocess.run(["pdftotext", page, "-"], capture_output=True, text=True, check=True,
                               timeout=20).stdout
        self.assertIn("[ Two Over One ] 2026-09-21 14:13:20", re.sub(r" +", " ", words))

    def test_a_stop_leaves_whole_files_and_the_run_goes_on(self):
        club = self.make_club(400)
        pages = self.home / "pages"
        for ending in (signal.SIGINT, signal.SIGTERM):
            before = len(list(pages.glob("*"))) if pages.exists() else 0
            with self.start_cards("pdf", "--newer", "-o", pages, club) as process:
                limit = time.monotonic() + LONGEST_RUN
                while not pages.exists() or len(list(pages.glob("*.pdf"))) < before + 5:
                    self.assertLess(time.monotonic(), limit)
                    self.assertIsNone(process.poll())
                os.killpg(process.pid, ending) if ending == signal.SIGINT else process.terminate()
                self.assertEqual(process.wait(LONGEST_RUN), 128 + ending)
            made = list(pages.iterdir())
            self.assertLess(len(made), 400)
            self.assertTrue(all(is_whole(page) for page in made))
            self.assert_nothing_left()
        kept = {page: page.stat().st_mtime_ns for page in pages.iterdir()}
        self.assertEqual(self.run_cards("pdf", "--newer", "-o", pages, club).returncode, 0)
        self.assertEqual(len(list(pages.iterdir())), 400)
        self.assertEqual({page: page.stat().st_mtime_ns for page in kept}, kept)

    def test_a_terminal_shows_progress(self):
        club = self.make_club(60)
        ours, theirs = pty.openpty()
        with self.start_cards("pdf", "-o", "pages", club, stderr=theirs) as process:
            os.close(theirs)
            shown = b""
            try:
                while chunk := os.read(ours, 4096):
                    shown += chunk
            except OSError:  # the terminal's other end is closed
                pass
            self.assertEqual(process.wait(LONGEST_RUN), 0)
        os.close(ours)
        self.assertRegex(shown, rb"\r\[=* *\] \d+/60  [\d.]+/s  \d+:\d\d left")
        self.assertTrue(shown.endswith(b" \r"))

    def test_a_full_disk_is_told_and_the_rest_goes_on(self):
        pages = self.home / "pages"
        pages.mkdir()
        (pages / "Two Over One.pdf").symlink_to("/dev/full")
        told = self.run_cards("pdf", "-o", "pages", "Standard American", "Two Over One")
        self.assertEqual((told.returncode, told.stderr),
                         (1, "pages/Two Over One.pdf: Disk full\n"))
        self.assertTrue(is_whole(pages / "Standard American.pdf"))
        self.assertEqual(len(list(pages.iterdir())), 2)

    def test_without_a_place_for_the_form_nothing_is_done(self):
        told = self.run_cards("pdf", "Two Over One", TMPDIR="/no/such/folder")
        self.assertEqual(told.returncode, 2)
        self.assertRegex(told.stderr, r"\Azevlin-cards: .+\n\Z")
        self.assertFalse((self.home / "Two Over One.pdf").exists())

    def test_names_with_line_ends(self):
        shutil.copy(SAMPLES / "Two Over One.zev", self.home / "a\nb.zev")
        told = self.run_cards("pdf", "a\nb.zev")
        self.assertEqual((told.returncode, told.stderr), (0, ""))
        self.assertTrue(is_whole(self.home / "a\nb.pdf"))

    def test_a_list_by_the_standard_input(self):
        club = self.make_club(3)
        names = "\0".join(str(card) for card in club.iterdir()) + "\0none\0"
        told = subprocess.run([STAGE / "zevlin-cards", "image", "--type", "gif", "-0", "--files-from",
                               "-"], input=names, env=self.environment, cwd=self.home,
                              capture_output=True, text=True, check=False, timeout=LONGEST_RUN)
        self.assertEqual((told.returncode, told.stderr), (1, "none: File not found\n"))
        self.assertEqual(len(list(self.home.glob("*.gif"))), 3)


if __name__ == "__main__":
    unittest.main()
