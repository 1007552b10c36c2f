"""The Windows program among the services of its system, as Wine has them: printers, which are those of
a print service of this test's own, the default printer, and the end of the session.

    packaging/windows/system_test.py <Wine prefix> <folder of the program> <folder for what it makes>

Must be run with a display.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import unittest

import wine_home
from wine_home import desktop

sys.path.insert(0, str(desktop.ROOT / "tests" / "e2e"))
import print_service  # noqa: E402
import printer_set_up  # noqa: E402
from printer_set_up import choose_in_list  # noqa: E402

CARD = "Two Over One"
ALTERNATE = 7  # row of the Options menu
QUESTION = "Unsaved changes"
DOTS = 100  # per inch, at which pages are looked at
FINE_DOTS = 300  # at which they are compared
STAMP = 0.74  # of the page's height: below it stands the time
WINDOWS_SETTINGS = r"HKCU\Software\Microsoft\Windows NT\CurrentVersion"


def ink_box(page):
    """First and last column and row of a page that hold dark ink, above the time."""
    rows = range(round(page.height * STAMP))

    def is_dark(x, y):
        return max(page.pixel(x, y)) < 100
    columns = [x for x in range(page.width) if any(is_dark(x, y) for y in rows)]
    lines = [y for y in rows if any(is_dark(x, y) for x in range(page.width))]
    return columns[0], columns[-1], lines[0], lines[-1]


def drawn(pdf):
    """The page as a viewer draws it."""
    return desktop.Picture(desktop.output_of("pdftoppm", "-r", str(DOTS), "-singlefile", str(pdf)))


def ink_off(page, other, pixels):
    """How many dark pixels of a page, above the time, lie further from every dark one of the other."""
    sheets = []
    for pdf in (page, other):
        sheet = pdf.with_suffix(".sheet")
        desktop.output_of("pdftoppm", "-gray", "-r", str(FINE_DOTS), "-singlefile", str(pdf),
                          str(sheet))
        sheets.append(f"{sheet}.pgm")
    # The other's is cut off further down: what stands at the cut has a neighbour there, too.
    cut = [f"100%x{STAMP * 100}%+0+0", f"100%x{STAMP * 100 + 1}%+0+0"]
    ink = ["-threshold", "50%", "-negate"]
    near = ["-morphology", "Dilate", f"Square:{pixels}", "-negate"]
    count = desktop.output_of(
        "convert", "(", sheets[0], "-crop", cut[0], "+repage", *ink, ")",
        "(", sheets[1], "-crop", cut[1], "+repage", *ink, *near, ")",
        "-compose", "Multiply", "-composite", "-format", "%[fx:round(mean*w*h)]", "info:")
    return int(count)


class SystemTest(unittest.TestCase):
    prefix = stage = results = None

    def setUp(self):
        self.home = wine_home.WineHome(self.prefix, self.stage)
        self.home.forget()
        self.programs = []
        self.addCleanup(self.end_programs)

    def end_programs(self):
        if self.programs:
            desktop.save_screenshot(self.results / f"{self._testMethodName}.png")
        for program in self.programs:
            program.kill()

    def tearDown(self):
        errors = [line for line in self.home.trace().splitlines() if line[9:].startswith("Error")]
        self.assertEqual(errors, [])

    def start(self, home):
        """The program with the sample card in it."""
        program = desktop.Program(home)
        self.programs.append(program)
        program.wait_for_title(r"\(unnamed\)$")
        program.press("Escape")
        program.press("ctrl+o")
        program.answer_name(CARD)
        program.wait_for_title(rf"\( {CARD} \)$")
        return program


class ServiceTest(SystemTest):
    language = print_service.PDF

    def setUp(self):
        super().setUp()
        self.service = print_service.PrintService(self.results / f"{self._testMethodName}.service")
        self.addCleanup(self.service.stop)
        self.service.add("Office", default=True, language=self.language)
        self.home.environment["CUPS_SERVER"] = self.service.address

    def wait_for_page(self):
        """The file that the printer got."""
        return desktop.wait_for("the printed page", self.service.pages)[-1]

    def page(self, job):
        """The page as a PDF document. Wine sends PostScript."""
        pdf = job
        if job.read_bytes().startswith(b"%!PS"):
            pdf = job.with_suffix(".converted")
            desktop.output_of("ps2pdf", str(job), str(pdf))
        return pdf

    def print_again(self, program):
        """The next page from the program."""
        count = len(self.service.pages())
        program.press("ctrl+p")
        desktop.wait_for("the next page", lambda: len(self.service.pages()) > count)
        return self.wait_for_page()


class PrintersTest(ServiceTest):
    def test_a_page_is_printed_as_this_systems_program_prints_it(self):
        program = self.start(self.home)
        windows = self.page(self.print_again(program))
        program.close()
        program.wait_for_end()
        linux_home = desktop.Home(self.results / f"{self._testMethodName}.home")
        self.addCleanup(shutil.rmtree, linux_home.folder)
        linux_home.environment["CUPS_SERVER"] = self.service.address
        linux = self.page(self.print_again(self.start(linux_home)))
        pictures = drawn(windows), drawn(linux)
        self.assertEqual(*((picture.width, picture.height) for picture in pictures))
        for left, right in zip(*map(ink_box, pictures)):
            self.assertAlmostEqual(left, right, delta=1)
        # Wine's printers get letters as outlines, Linux's as fonts, which viewers fit to their dots.
        self.assertEqual(ink_off(windows, linux, 3), 0)
        self.assertEqual(ink_off(linux, windows, 3), 0)
        self.assertNotIn("image", desktop.output_of("pdfimages", "-list", str(windows)).decode()
                         .split("\n", 2)[2])

    def default_printer(self):
        _, told = self.home.run("reg", "query", WINDOWS_SETTINGS + r"\Windows", "/v", "Device")
        return re.search(r"REG_SZ\s+([^,\s]*)", told)[1]

    def make_default(self, name):
        _, told = self.home.run("reg", "query", WINDOWS_SETTINGS + r"\Devices", "/v", name)
        device = re.search(r"REG_SZ\s+(\S.*)", told)[1].strip()
        self.home.run("reg", "add", WINDOWS_SETTINGS + r"\Windows", "/v", "Device",
                      "/d", f"{name},{device}", "/f")

    def test_the_default_printer_comes_back_when_the_dialog_has_changed_it(self):
        self.service.add("Laser", color=False)
        program = self.start(self.home)
        program.choose_in_file_menu(printer_set_up.ROW)
        box = program.wait_for_box("^Print$")
        self.assertEqual(self.default_printer(), "Office")
        self.make_default("Laser")
        self.assertEqual(self.default_printer(), "Laser")
        program.answer(box, "Escape")
        program.close()
        program.wait_for_end()
        self.assertEqual(self.default_printer(), "Office")


class SettingUpTest(ServiceTest):
    """With a printer that takes what Wine sends as it comes, so that its choices can be read."""

    language = print_service.POSTSCRIPT

    def test_the_systems_dialog_sets_up_the_printer_that_is_used(self):
        program = self.start(self.home)
        before = self.page(self.print_again(program))
        program.choose_in_file_menu(printer_set_up.ROW)
        box = program.wait_for_box("^Print$")
        program.focus(box)
        desktop.xdotool("key", "alt+c", "type", "3")
        program.answer(box, "Return")
        printer_set_up.wait_until_told(self.home)
        job = self.print_again(program)
        self.assertIn(b"*NumCopies 3", job.read_bytes())
        after = self.page(job)
        self.assertEqual(ink_off(after, before, 1), 0)
        self.assertEqual(ink_off(before, after, 1), 0)

    def start_with_the_alternate_set_up(self):
        program = self.start(self.home)
        program.close()
        program.wait_for_end()
        options = self.home.data / "ZEV.Ini"
        options.write_bytes(options.read_bytes().replace(b"PrintAlt=0", b"PrintAlt=1"))
        program = desktop.Program(self.home, self.home.opening(CARD))
        self.programs.append(program)
        program.wait_for_title(rf"\( {CARD} \)$")
        program.choose_in_file_menu(printer_set_up.ROW)
        return program

    def choose_print_to_pdf(self, program):
        """In the alternate set-up."""
        choose_in_list(program, printer_set_up.PRINTERS, "End")
        program.answer(program.wait_for_box("^Printer Setup$"), "Return")
        printer_set_up.wait_until_told(self.home)

    def check_that_a_file_is_printed(self, program):
        page = self.results / "page.pdf"
        page.unlink(missing_ok=True)
        program.press("ctrl+p")
        program.answer_prompt(self.home.named(page), "^Print to PDF: ")
        desktop.wait_for("the page", lambda: page.is_file() and
                         page.read_bytes().endswith(b"%%EOF\n"))
        self.assertEqual(self.service.pages(), [])

    def test_the_alternate_set_up_offers_print_to_pdf(self):
        program = self.start_with_the_alternate_set_up()
        self.choose_print_to_pdf(program)
        self.check_that_a_file_is_printed(program)

    def test_print_to_file_in_the_systems_dialog_is_print_to_pdf(self):
        program = self.start_with_the_alternate_set_up()
        self.choose_print_to_pdf(program)
        program.press("alt+o", *["Down"] * ALTERNATE, "Return")
        desktop.wait_for("the primary method", lambda: b"PrintAlt=0" in
                         (self.home.data / "ZEV.Ini").read_bytes())
        program.choose_in_file_menu(printer_set_up.ROW)
        # It begins with the box checked, and Wine hands that back as it was.
        program.answer(program.wait_for_box("^Print$"), "Return")
        self.check_that_a_file_is_printed(program)

    def test_paper_and_tray_of_the_alternate_set_up_reach_the_job(self):
        program = self.start_with_the_alternate_set_up()
        choose_in_list(program, printer_set_up.PAPERS, "Down")  # A4 instead of Letter
        choose_in_list(program, printer_set_up.TRAYS, "End")  # the lower tray instead of none
        program.answer(program.wait_for_box("^Printer Setup$"), "Return")
        printer_set_up.wait_until_told(self.home)
        job = self.print_again(program).read_bytes()
        self.assertIn(b"*PageSize A4", job)
        self.assertIn(b"*InputSlot Lower", job)


class SessionTest(SystemTest):
    def changed_card(self):
        """The program with a mark that the file doesn't have."""
        program = self.start(self.home)
        card = desktop.Card(program)
        self.marks = self.home.records(CARD)[0]
        self.mark = min(card.marks)
        card.click_mark(self.mark)
        program.wait_for_title(r"\*$")
        return program

    def end_session(self):
        """Tells of it to all programs; the command ends when they have answered."""
        self.home.environment.setdefault("CUPS_SERVER", "127.0.0.1:1")
        return subprocess.Popen(["wine", "wineboot", "--end-session"],
                                env=self.home.usual_environment() | self.home.environment)

    def test_refusing_to_lose_changes_keeps_program_and_session(self):
        program = self.changed_card()
        end = self.end_session()
        program.answer(program.wait_for_box(QUESTION), "Escape")
        self.assertEqual(end.wait(timeout=60), 1)
        self.assertTrue(program.is_running())
        self.assertRegex(program.title(), r"\*$")
        self.assertEqual(self.home.records(CARD)[0], self.marks)

    def test_changes_are_saved_before_the_session_ends(self):
        program = self.changed_card()
        end = self.end_session()
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        program.wait_for_end()
        self.assertEqual(end.wait(timeout=60), 0)
        self.assertEqual(self.home.records(CARD)[0], self.marks ^ {self.mark})

    def test_changes_are_dropped_where_the_player_says_so(self):
        program = self.changed_card()
        end = self.end_session()
        program.answer(program.wait_for_box(QUESTION), "alt+n")
        program.wait_for_end()
        self.assertEqual(end.wait(timeout=60), 0)
        self.assertEqual(self.home.records(CARD)[0], self.marks)

    def test_without_changes_nothing_is_asked(self):
        program = self.start(self.home)
        end = self.end_session()
        program.wait_for_end()
        self.assertEqual(end.wait(timeout=60), 0)


class CardsTest(SystemTest):
    """The command without a window."""

    CARDS = [rf"C:\Zevlin\zevlin-files\{name}.zev" for name in ("Standard American", CARD)]

    def setUp(self):
        super().setUp()
        # Wine's own folder of fonts lacks those of the card.
        self.home.environment["WINEQT_QPA_FONTDIR"] = self.home.named(self.results.parent / "fonts")

    def cards(self, *arguments):
        return self.home.run(r"C:\Zevlin\zevlin-cards.exe", *arguments)

    def test_pages_and_images(self):
        made = self.home.program / "made"
        folder = r"C:\Zevlin\made"
        self.assertEqual(self.cards("pdf", "-o", folder, *self.CARDS)[0], 0)
        self.assertEqual(self.cards("image", "-o", folder, *self.CARDS)[0], 0)
        self.assertEqual(self.cards("pdf", "--together", folder + r"\all.pdf", *self.CARDS)[0], 0)
        self.assertEqual(sorted(path.name for path in made.iterdir()),
                         ["Standard American.pdf", "Standard American.png", "Two Over One.pdf",
                          "Two Over One.png", "all.pdf"])
        self.assertEqual((made / "all.pdf").read_bytes().count(b"/Type /Page\n"), 2)
        words = desktop.output_of("pdftotext", str(made / f"{CARD}.pdf"), "-")
        self.assertIn(b"Robin Fields & Sandy Moore", words)
        self.assertFalse(self.home.data.exists())

    def test_texts_differences_and_checks(self):
        code, told = self.cards("text", self.CARDS[1])
        self.assertEqual(code, 0)
        self.assertIn("  Names, both partners: Robin Fields & Sandy Moore\n", told)
        self.assertEqual(self.cards("diff", *self.CARDS)[0], 1)
        self.assertEqual(self.cards("diff", self.CARDS[0], self.CARDS[0]), (0, ""))
        self.assertEqual(self.cards("check", r"C:\Zevlin\zevlin-files"), (0, ""))


def main():
    SystemTest.prefix, SystemTest.stage, SystemTest.results = (
        pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    SystemTest.results.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)


if __name__ == "__main__":
    main()
