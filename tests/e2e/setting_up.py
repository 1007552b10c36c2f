"""Sets up a printer of a real print service in the program's dialogs, and looks at what its job asks
of the printer."""

import re

import print_service
import printer_set_up
import whole_program
from printer_set_up import choose_in_list
from whole_program import desktop

CARD = "Two Over One"


class SettingUpTest(whole_program.WholeProgramTest):
    def setUp(self):
        self.service = print_service.PrintService(self.home.folder.parent / "service")
        self.addCleanup(self.service.stop)
        self.home.environment["CUPS_SERVER"] = self.service.address
        self.service.add("Office", default=True)
        self.leave(self.start_for_the_first_time())

    def start_with_card(self):
        program = self.start(CARD)
        program.wait_for_title(rf"\( {CARD} \)$")
        desktop.wait_for("the card on the screen", lambda: desktop.Card(program).scale > 0)
        return program

    def press_in(self, program, title, *keys):
        """Presses keys in a box once it has the focus."""
        box = program.wait_for_box(title)

        def has_focus():
            if desktop.window_in_focus() != box:
                desktop.xdotool("windowfocus", box)
            return desktop.window_in_focus() == box
        desktop.wait_for(f"the focus of {title}", has_focus)
        printer_set_up.wait_until_painted()
        desktop.xdotool("key", "--clearmodifiers", *keys)

    def page_and_options(self, program):
        """Width and height of the printed page in inches, and what the job asks for."""
        program.press("ctrl+p")
        pages = desktop.wait_for("the printed page", self.service.pages)
        told = desktop.output_of("pdfinfo", str(pages[0])).decode()
        size = re.search(r"Page size: +([0-9.]+) x ([0-9.]+) pts", told)
        return [float(points) / 72 for points in size.groups()], self.service.options(1)

    def test_what_the_set_up_chooses_reaches_the_job(self):
        program = self.start_with_card()
        program.choose_in_file_menu(printer_set_up.ROW)
        for keys in (("alt+s", "Up"),  # A4
                     ("alt+a", "End"), ("alt+e", "End"), ("alt+q", "End"),  # the last of each
                     ("alt+i", "ctrl+a", "3"), ("alt+l",), ("Return",)):
            self.press_in(program, "^Printer Setup$", *keys)
        printer_set_up.wait_until_told(self.home)
        (width, height), options = self.page_and_options(program)
        self.assertAlmostEqual(width, 11.69, delta=0.01)
        self.assertAlmostEqual(height, 8.27, delta=0.01)
        self.assertEqual(options["copies"], "3")
        self.assertEqual(options["PageSize"], "A4")
        self.assertEqual(options["InputSlot"], "Lower")
        self.assertEqual(options["MediaType"], "Glossy")
        self.assertEqual(options["cupsPrintQuality"], "High")
        self.leave(program)

    def test_grey_is_asked_of_a_colour_printer(self):
        program = self.start_with_card()
        program.choose_in_file_menu(printer_set_up.ROW)
        for keys in (("alt+n", "Down"), ("Return",)):
            self.press_in(program, "^Printer Setup$", *keys)
        printer_set_up.wait_until_told(self.home)
        _, options = self.page_and_options(program)
        self.assertEqual(options["print-color-mode"], "monochrome")
        self.leave(program)

    def test_what_the_alternate_set_up_chooses_reaches_the_job(self):
        options_file = self.home.data / "ZEV.Ini"
        options_file.write_bytes(options_file.read_bytes().replace(b"PrintAlt=0", b"PrintAlt=1"))
        program = self.start_with_card()
        program.choose_in_file_menu(printer_set_up.ROW)
        choose_in_list(program, printer_set_up.PAPERS, "Up")  # A4 instead of Letter
        choose_in_list(program, printer_set_up.TRAYS, "Down")  # the second tray instead of none
        desktop.xdotool("key", "Return")
        printer_set_up.wait_until_told(self.home)
        (width, _), options = self.page_and_options(program)
        self.assertAlmostEqual(width, 8.27, delta=0.01)
        self.assertEqual(options["PageSize"], "A4")
        self.assertEqual(options["InputSlot"], "Lower")
        self.leave(program)


if __name__ == "__main__":
    whole_program.main()
