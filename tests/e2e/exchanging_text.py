"""Texts that come from other programs and go to them."""

import subprocess

import whole_program
from whole_program import desktop

FIELD, NEXT = 1, 2


def put(text, selection="clipboard"):
    """What another program copies; it stays in the background as long as nothing else is copied."""
    subprocess.run(["xclip", "-selection", selection], input=text.encode(), check=True, timeout=20,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def taken(selection="clipboard"):
    """What another program would paste."""
    found = subprocess.run(["xclip", "-selection", selection, "-o"], capture_output=True,
                           timeout=20)
    return found.stdout.decode()


class ExchangingText(whole_program.WholeProgramTest):
    def test_texts_of_other_programs_go_in_at_the_caret(self):
        program, card = self.open_field()
        program.type("ad")
        put("b♥♠\tŁódź\n")
        program.press("Left", "ctrl+v")
        card.click_text(NEXT)
        put("2♣\ufe0f3♢", "primary")
        card.click(card.texts[NEXT], button=2)
        self.assertEqual(self.saved(program), {FIELD: "ab^h ^s Lódz d", NEXT: "2^c3^d"})

    def test_other_programs_get_the_signs_of_the_suits(self):
        program, _ = self.open_field()
        program.type("1^c^H")
        program.press("Escape")
        card = desktop.Card(program)
        card.click_text(FIELD)
        program.press("ctrl+c")
        desktop.wait_for("the copy", lambda: taken() == "1♣♥")
        program.press("Home", "shift+Right", "shift+Right", "shift+Right", "ctrl+x")
        desktop.wait_for("what was cut", lambda: taken() == "1♣")
        left, top, width, height = card.box(card.texts[FIELD])
        desktop.xdotool("mousemove", left + width // 2, top + height // 2,
                        "click", "--repeat", 3, "--delay", 20, 1)
        desktop.wait_for("what was selected", lambda: taken("primary") == "♥")

    def test_cut_and_paste_moves_a_text_whatever_was_copied_before(self):
        program, card = self.open_field()
        program.type("old^H")
        program.press("ctrl+c")
        card.click_text(NEXT)
        program.type("alpha beta")
        program.press("shift+Left", "shift+Left", "shift+Left", "shift+Left", "ctrl+x")
        program.press("Home", "ctrl+v")
        self.assertEqual(self.saved(program), {FIELD: "old^H", NEXT: "betaalpha "})

    def test_what_was_copied_goes_into_the_next_field_as_it_was_typed(self):
        program, card = self.open_field()
        program.type("old^H")
        program.press("ctrl+c")
        card.click_text(NEXT)
        program.type("new")
        program.press("ctrl+v")
        self.assertEqual(self.saved(program), {FIELD: "old^H", NEXT: "old^H"})

    def open_field(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        card.click_text(FIELD)
        return program, card

    def saved(self, program):
        program.press("Escape", "ctrl+s")
        program.answer_name("Texts")
        program.wait_for_title(r"\( Texts \)$")
        return {key: value for key, value in self.home.records("Texts")[1].items() if value}


if __name__ == "__main__":
    whole_program.main()
