"""Everything by keyboard alone: a whole card from its first field to the printed page. No event of a
mouse is sent."""

import itertools
import unittest.mock

import whole_program
from whole_program import desktop

FIRST = 1           # the field in the card's upper left, where the walk begins and ends
FIRST_MARK = 1000   # a mark's number in the walk is above this
SUITS = {"F5": "^c", "F6": "^d", "F7": "^h", "F8": "^s"}
SAVE_AS = 3         # row of the File menu


def keys_alone(xdotool):
    """The function, which refuses whatever a mouse would do."""
    def checked(*arguments):
        mouse = {"mousemove", "mousemove_relative", "click", "mousedown", "mouseup"}
        if mouse & {str(argument) for argument in arguments}:
            raise AssertionError("a test by keyboard uses the mouse")
        return xdotool(*arguments)
    return checked


class ByKeyboard(whole_program.WholeProgramTest):
    def setUp(self):
        alone = unittest.mock.patch.object(desktop, "xdotool", keys_alone(desktop.xdotool))
        alone.start()
        self.addCleanup(alone.stop)

    def test_a_whole_card_is_filled_in_saved_undone_redone_and_printed(self):
        program = self.start_for_the_first_time()
        walk = self.walk()
        all_marks, all_texts = desktop.layout_fields(self.home)
        self.assertEqual(sorted(walk), sorted([*all_texts] + [FIRST_MARK + mark for mark in all_marks]))
        keys, marks, texts = self.filling_in(walk)
        self.assertEqual(marks, set(all_marks))
        program.press("F2")
        self.press_slowly(keys)
        program.press("Escape", "ctrl+s")
        self.name_card(program, "Filled in")
        self.check_card("Filled in", marks, texts)
        steps = len(marks) + len(texts)
        self.press_slowly(["ctrl+z"] * steps)
        self.save_as(program, "Undone")
        self.check_card("Undone", set(), {})
        self.press_slowly(["ctrl+y"] * steps)
        self.save_as(program, "Redone")
        self.check_card("Redone", marks, texts)
        self.check_page(self.print(program), texts)
        self.leave(program)

    def test_the_walk_finds_its_fields_on_a_magnified_screen(self):
        program = self.start_for_the_first_time(magnified=1.5)
        keys, marks, texts = self.filling_in(self.walk()[:60], leaves_some=True)
        program.press("F2")
        self.press_slowly(keys)
        program.press("Escape", "ctrl+s")
        self.name_card(program, "Magnified")
        self.check_card("Magnified", marks, texts)

    def test_shift_and_tab_lead_back_to_where_the_walk_began(self):
        program = self.start_for_the_first_time()
        program.press("F2")
        self.press_slowly(["Tab"] * 19 + ["shift+Tab"] * 19 + ["b", "a", "c", "k"])
        program.press("Escape", "ctrl+s")
        self.name_card(program, "Back")
        self.check_card("Back", set(), {FIRST: "back"})

    def test_the_walk_goes_on_after_what_interrupts_it(self):
        program = self.start_for_the_first_time()
        texts, marks = self.walk()[:2], [item - FIRST_MARK for item in self.walk()[2:5]]
        program.press("F2", "a", "Escape", "Tab", "b", "ctrl+b", "Tab", "space", "ctrl+s")
        self.name_card(program, "Interrupted")
        self.press_slowly(["Tab", "space", "ctrl+KP_Add", "Tab", "space", "ctrl+KP_Subtract",
                           "shift+Tab", "space", "ctrl+s"])
        program.wait_for_title(r"\( Interrupted \)$")
        desktop.wait_for("the saved card",
                         lambda: self.home.records("Interrupted")[0] == {marks[0], marks[2]})
        self.assertEqual(self.texts("Interrupted"), {texts[0]: "a", texts[1]: "b"})

    def test_cards_are_renamed_and_deleted_in_the_chooser(self):
        program = self.start_for_the_first_time()
        for name in ("Adams", "Brown"):
            self.save_as(program, name)
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.press("Tab", "Home", "F2")
        program.answer_prompt("Clark", "^Rename card$")
        desktop.wait_for("the new name", self.home.card("Clark").exists)
        self.assertFalse(self.home.card("Adams").exists())
        # These two stand above the sample cards.
        program.press("Home", "Delete")
        desktop.wait_for("the deletion", lambda: not self.home.card("Brown").exists())
        program.press("Home", "shift+F10", "Down", "Return")
        program.wait_for_title(r"\( Clark \)$")

    def name_card(self, program, name):
        """In the chooser, once all keys before it have been taken."""
        desktop.wait_for("the chooser", program.shows_chooser, 120)
        program.answer_name(name)
        program.wait_for_title(rf"\( {name} \)$")

    def save_as(self, program, name):
        program.choose_in_file_menu(SAVE_AS)
        self.name_card(program, name)

    def print(self, program):
        pdf = self.home.folder / "page.pdf"
        program.press("ctrl+p")
        program.answer_prompt(pdf, "^Print to PDF: ")
        desktop.wait_for("the page", lambda: pdf.exists() and pdf.read_bytes()[-6:] == b"%%EOF\n")
        return pdf

    def texts(self, name):
        """Those of a card that hold something."""
        return {number: text for number, text in self.home.records(name)[1].items() if text}

    def check_card(self, name, marks, texts):
        self.assertEqual(self.home.records(name)[0], marks)
        self.assertEqual(self.texts(name), texts)

    def check_page(self, pdf, texts):
        words = desktop.output_of("pdftotext", str(pdf), "-").decode()
        missing = [number for number in texts if f"{number}x" not in words]
        self.assertEqual(missing, [])
        for suit in "\u2663\u2666\u2665\u2660":
            self.assertIn(f"x{suit}", words)

    def walk(self):
        """The items in the order in which TAB visits them."""
        following = self.home.tab_pairs()
        items = [FIRST]
        while following[items[-1]] != FIRST:
            items.append(following[items[-1]])
        return items

    @staticmethod
    def filling_in(walk, leaves_some=False):
        """The keys that fill in all fields, or leave some of the marks, and what the card then
        holds."""
        keys, marks, texts = [], set(), {}
        suits = itertools.cycle(SUITS)
        for item in walk:
            if item < FIRST_MARK:
                suit = next(suits)
                keys += [*str(item), "x", suit]
                texts[item] = f"{item}x{SUITS[suit]}"
            elif item % 4 or not leaves_some:
                keys.append("space")
                marks.add(item - FIRST_MARK)
            keys.append("Tab")
        return keys[:-1], marks, texts

    @staticmethod
    def press_slowly(keys):
        """A key each 10 milliseconds: faster, two strokes would count as one that is held."""
        for start in range(0, len(keys), 200):
            desktop.xdotool("key", "--delay", 10, *keys[start:start + 200])


if __name__ == "__main__":
    whole_program.main()
