"""Sets up a printer of a real print service in the program's dialogs, and looks at what its job asks
of the printer."""

import re

import print_service
import whole_program
from whole_program import desktop

CARD = "Two Over One"
SETUP = 7  # row of the File menu


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
        self.wait_until_painted()
        desktop.xdotool("key", "--clearmodifiers", *keys)

    def wait_until_painted(self):
        """A box takes keys only once it is whole."""
        looks = [b""]

        def is_calm():
            looks.append(desktop.screenshot().bytes)
            return looks[-1] == looks[-2]
        desktop.wait_for("the screen to come to rest", is_calm)

    def choose_neighbour(self, program, place, key):
        """In the list at a place of the set-up, which is told in parts of its height."""
        box = program.wait_for_box("^Printer Setup$")
        shell = desktop.xdotool("getwindowgeometry", "--shell", box)
        width, height = (int(re.search(rf"{name}=(\d+)", shell)[1])
                         for name in ("WIDTH", "HEIGHT"))
        desktop.xdotool("mousemove", "--window", box, width // 2, round(height * place),
                        "click", 1)
        self.wait_until_painted()
        desktop.xdotool("key", key, "Return")

    def wait_for_set_up(self):
        desktop.wait_for("the facts", lambda: "User selected" in
                         (self.home.data / "ZEV.Ini").read_text("cp1252"))

    def page_and_options(self, program):
        """Width and height of the printed page in inches, and what the job asks for."""
        program.press("ctrl+p")
        pages = desktop.wait_for("the printed page", self.service.pages)
        told = desktop.output_of("pdfinfo", str(pages[0])).decode()
        size = re.search(r"Page size: +([0-9.]+) x ([0-9.]+) pts", told)
        return [float(points) / 72 for points in size.groups()], self.service.options(1)

    def test_what_the_systems_set_up_chooses_reaches_the_job(self):
        program = self.start_with_card()
        program.choose_in_file_menu(SETUP)
        self.press_in(program, "^Printer Setup$", "alt+r")
        for keys in (("Tab", "Down", "Tab", "Tab", "Down"),  # A4, landscape
                     ("ctrl+shift+Tab",), ("shift+Tab", "shift+Tab", "Down"),  # the lower tray
                     ("Return",)):
            self.press_in(program, "^Printer Properties$", *keys)
        for keys in (("alt+o",), ("Tab", "Tab", "Tab", "Up", "Up", "Return")):  # three copies
            self.press_in(program, "^Printer Setup$", *keys)
        self.wait_for_set_up()
        (width, height), options = self.page_and_options(program)
        self.assertAlmostEqual(width, 11.69, delta=0.01)
        self.assertAlmostEqual(height, 8.27, delta=0.01)
        self.assertEqual(options["copies"], "3")
        self.assertEqual(options["PageSize"], "A4")
        self.assertEqual(options["InputSlot"], "Lower")
        self.leave(program)

    def test_what_the_alternate_set_up_chooses_reaches_the_job(self):
        options_file = self.home.data / "ZEV.Ini"
        options_file.write_bytes(options_file.read_bytes().replace(b"PrintAlt=0", b"PrintAlt=1"))
        program = self.start_with_card()
        program.choose_in_file_menu(SETUP)
        self.choose_neighbour(program, 0.32, "Up")  # A4 instead of Letter
        self.choose_neighbour(program, 0.5, "Down")  # the second tray instead of none
        self.wait_until_painted()
        desktop.xdotool("key", "Return")
        self.wait_for_set_up()
        (width, _), options = self.page_and_options(program)
        self.assertAlmostEqual(width, 8.27, delta=0.01)
        self.assertEqual(options["PageSize"], "A4")
        self.assertEqual(options["InputSlot"], "Lower")
        self.leave(program)


if __name__ == "__main__":
    whole_program.main()
