"""The program on a Wayland desktop: where no program places its window or moves the pointer. Mouse and
keys are the player's; what the program shows is known as a screen reader knows it."""

import re

import by_keyboard
import compositor
import reader
import whole_program
from whole_program import desktop

pyatspi = reader.pyatspi


class WaylandHome(desktop.Home):
    def usual_environment(self):
        environment = super().usual_environment() | reader.ENVIRONMENT
        del environment["DISPLAY"]
        return environment | {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": compositor.SOCKET}


class WaylandProgram(desktop.Program):
    """Its windows have no number, so they are known by what they are called."""

    def come_up(self, is_first, answers):
        self.reader = reader.Reader(self.process)
        if is_first:
            self.answer_first_box()
        for title, keys in answers:
            self.answer(self.wait_for_box(title), keys)
        desktop.wait_for("the program's window", self.title)

    def title(self):
        return self.reader.title()

    def wait_for_box(self, title="."):
        def in_front():
            return [box for box in self.reader.boxes() if re.search(title, box.name) and
                    reader.has_state(box, pyatspi.STATE_ACTIVE)]
        return desktop.wait_for(f"a box {title}", in_front)[0].name

    def focus(self, window):
        """The compositor gives the keys to what has come up last."""

    def wait_until_gone(self, box):
        desktop.wait_for("the box to close", lambda: not self.is_running() or
                         box not in [shown.name for shown in self.reader.boxes()])

    def close(self):
        self.press("alt+f", "x")

    def place(self):
        """By its colours: the ground is seen beside the window alone."""
        picture = desktop.screenshot()
        middle = picture.height // 2
        inside = [x for x in range(picture.width)
                  if picture.pixel(x, middle) != bytes(compositor.GROUND)]
        return inside[0], self.top(picture, inside[0] + 100), picture.width - inside[0]

    @staticmethod
    def top(picture, x):
        return next(y for y in range(picture.height)
                    if picture.pixel(x, y) != bytes(compositor.GROUND))

    def drag_to_the_corner(self):
        """By the title, as a player does whose window has come up half beside the screen."""
        for _ in range(desktop.ATTEMPTS):
            if self.is_in_the_corner():
                return
            self.drag_by_title()
            desktop.value_within(2, self.is_in_the_corner)
        raise TimeoutError("the window can't be dragged into the corner")

    def is_in_the_corner(self):
        return self.place()[:2] == (0, 0)

    def drag_by_title(self):
        """Where the compositor is late, it takes over after the first steps."""
        left, top, _ = self.place()
        x, y = left + 200, top + 12
        desktop.xdotool("mousemove", x, y, "mousedown", 1)
        try:
            for step in range(1, 11):
                desktop.xdotool("mousemove", x - left * step // 10, y - top * step // 10)
        finally:
            desktop.xdotool("mouseup", 1)


class WaylandCard(desktop.Card):
    def form_area(self):
        """The frame is the program's own, so the inside begins where the card's white does."""
        _, top = super().form_area()
        picture = desktop.screenshot()
        return next(x for x in range(picture.width)
                    if picture.pixel(x, top + 5) == b"\xff\xff\xff"), top


class WaylandTest(whole_program.WholeProgramTest):
    home_type = WaylandHome
    program_type = WaylandProgram

    @classmethod
    def tearDownClass(cls):
        reader.BUS.close()

    def setUp(self):
        pyatspi.Registry.getDesktop(0)
        self.programs.append(compositor.Compositor(self.home.runtime))

    def start_in_the_corner(self):
        program = self.start_for_the_first_time()
        desktop.wait_for("the end of the help", lambda: not self.shows_help(program))
        program.drag_to_the_corner()
        return program

    @staticmethod
    def shows_help(program):
        return reader.has_state(program.reader.part("Help page"), pyatspi.STATE_SHOWING)

    @staticmethod
    def filled_fields(program):
        """How many fields are set and how many hold a text."""
        fields, _ = program.reader.fields()
        are_set = [field for field in fields.values()
                   if field.getRole() == reader.CHECK_BOX and reader.is_checked(field)]
        written = [field for field in fields.values()
                   if field.getRole() == reader.TEXT and reader.text_of(field)]
        return len(are_set), len(written)

    def print_card(self, program):
        """To a PDF file; the words on its page."""
        page = self.home.folder / "page.pdf"
        program.press("ctrl+p")
        program.answer_prompt(page, "^Print to PDF: ")
        desktop.wait_for("the page",
                         lambda: page.exists() and page.read_bytes()[-6:] == b"%%EOF\n")
        return desktop.output_of("pdftotext", str(page), "-").decode()

    def test_a_whole_card_is_filled_in_saved_undone_redone_and_printed(self):
        program = self.start_in_the_corner()
        walk = by_keyboard.ByKeyboard.walk(self)
        keys, marks, texts = by_keyboard.ByKeyboard.filling_in(walk)
        WaylandCard(program).click_text(walk[0])
        by_keyboard.ByKeyboard.press_slowly(keys)
        program.press("Escape", "ctrl+s")
        desktop.wait_for("the end of the walk", program.shows_chooser, 120)
        program.answer_name("By hand")
        program.wait_for_title(r"\( By hand \)$")
        saved_marks, saved_texts = self.home.records("By hand")
        self.assertEqual(saved_marks, marks)
        self.assertEqual({key: value for key, value in saved_texts.items() if value}, texts)

        steps = len(marks) + len(texts)
        by_keyboard.ByKeyboard.press_slowly(["ctrl+z"] * steps)
        desktop.wait_for("undo of all", lambda: self.filled_fields(program) == (0, 0), 120)
        program.wait_for_title(r"\( By hand \) \*$")
        by_keyboard.ByKeyboard.press_slowly(["ctrl+y"] * steps)
        desktop.wait_for("redo of all", lambda: self.filled_fields(program) ==
                         (len(marks), len(texts)), 120)
        program.wait_for_title(r"\( By hand \)$")
        words = self.print_card(program)
        for number in texts:
            self.assertRegex(words, rf"\b{number}x")
        self.leave(program)

    def test_the_mouse_reaches_what_it_is_over(self):
        program = self.start_in_the_corner()
        card = WaylandCard(program)
        visible = [number for number, place in card.marks.items()
                   if card.box(place)[1] + card.box(place)[3] < desktop.screenshot().height][:20]
        for number in visible:
            card.click_mark(number)
        desktop.wait_for("the marks", lambda: program.title().endswith("*"))
        program.press("ctrl+s")
        program.answer_name("By mouse")
        program.wait_for_title(r"\( By mouse \)$")
        self.assertEqual(self.home.records("By mouse")[0], set(visible))
        self.leave(program)

    def test_each_stroke_of_a_moment_is_a_step_of_the_walk(self):
        program = self.start_in_the_corner()
        walk = by_keyboard.ByKeyboard.walk(self)
        steps = next(step for step, item in enumerate(walk)
                     if step > 15 and item > by_keyboard.FIRST_MARK)
        WaylandCard(program).click_text(walk[0])
        desktop.xdotool("key", "--delay", 0, *["Tab"] * steps, "space")
        program.press("Escape", "ctrl+s")
        program.answer_name("Quick")
        program.wait_for_title(r"\( Quick \)$")
        self.assertEqual(self.home.records("Quick")[0], {walk[steps] - by_keyboard.FIRST_MARK})
        self.leave(program)

    def test_a_pop_up_opens_at_the_pointer_and_texts_are_copied(self):
        program = self.start_in_the_corner()
        card = WaylandCard(program)
        bold, plain = 2, 4
        card.click_text(bold)
        program.type("abc")
        self.choose_in_pop_up(program, card.box(card.texts[bold]), "Boldface")
        program.press("ctrl+a", "ctrl+c", "Escape")
        card.click_text(plain)
        program.press("ctrl+v", "Escape", "ctrl+s")
        program.answer_name("Copied")
        program.wait_for_title(r"\( Copied \)$")
        texts = self.home.records("Copied")[1]
        self.assertEqual((texts[bold], texts[plain]), ("abc", "abc"))
        lines = self.home.card("Copied").read_text("cp1252")
        style = int(re.search(rf'^{bold},"abc",(\d+)', lines, re.MULTILINE)[1])
        self.assertNotEqual(style, 0)
        self.leave(program)

    @staticmethod
    def choose_in_pop_up(program, box, name):
        """Presses the right button over a field, and the row where it is if the menu's corner is
        where the pointer was."""
        left, top, width, height = box
        x, y = left + width // 2, top + height // 2
        program.click(x, y, 3)
        menu = program.reader.part("Text", pyatspi.ROLE_POPUP_MENU)
        row = program.reader.part(name, reader.MENU_ITEM, menu)
        at, corner = (part.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
                      for part in (row, menu))
        program.click(x + at.x - corner.x + at.width // 2, y + at.y - corner.y + at.height // 2)
        desktop.wait_for("the end of the menu", lambda: not program.reader.found("Text"))


if __name__ == "__main__":
    whole_program.main()
