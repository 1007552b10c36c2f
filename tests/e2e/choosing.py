"""A card from nothing: named, styled, recoloured, renamed and opened again."""

import whole_program
from whole_program import desktop


class Choosing(whole_program.WholeProgramTest):
    def test_the_chooser_works_by_keyboard_alone(self):
        program = self.start_for_the_first_time()
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.press("Down", "Down", "Return")
        program.wait_for_title(r"\( Two Over One \)$")
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.press("Escape")
        program.wait_for_title(r"\(unnamed\)$")

    def test_alt_and_a_letter_presses_a_button(self):
        program = self.start_for_the_first_time()
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.press("Down", "alt+o")
        program.wait_for_title(r"\( Standard American \)$")

    def test_closing_the_window_closes_only_the_chooser(self):
        program = self.start_for_the_first_time()
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.close()
        program.wait_for_title(r"\(unnamed\)$")
        self.assertTrue(program.is_running())
        self.leave(program)

    def test_a_second_start_opens_the_chooser_and_no_key_gets_past_it(self):
        self.leave(self.start_for_the_first_time())
        program = self.start()
        program.wait_for_chooser()
        program.press("ctrl+s", "F1", "ctrl+o")
        program.press("Escape")
        program.wait_for_title(r"\(unnamed\)$")
        self.assertFalse(self.home.card("").exists())

    def test_a_card_named_beyond_ascii_opens_from_the_command_line(self):
        self.leave(self.start_for_the_first_time())
        content = self.home.card("Standard American").read_bytes()
        for name in ("Müller", "Soe\u0301"):
            self.home.card(name).write_bytes(content)
        for argument, title in (("Müller", "Müller"), ("/any/Łódź/Müller.zev", "Müller"),
                                ("mu\u0308LLER.zev", "müLLER"), ("Soé", "Soé")):
            program = self.start(argument)
            program.wait_for_title(rf"\( {title} \)$")
            self.leave(program)

    def test_a_card_from_elsewhere_is_opened_as_a_copy_and_others_stay(self):
        self.leave(self.start_for_the_first_time())
        first, second = (self.home.card(name).read_bytes()
                         for name in ("Standard American", "Two Over One"))
        elsewhere = self.home.folder / "elsewhere"
        elsewhere.mkdir()
        for name in ("Jones", "Alone"):
            (elsewhere / f"{name}.zev").write_bytes(second)
        for name in ("Jones", "a", "a.b"):
            self.home.card(name).write_bytes(first)
        program = self.start(self.home.named(elsewhere / "Jones.zev"),
                             answers=[("^Zevlin$", "Return")])
        program.wait_for_title(r"\( Jones 2 \)$")
        self.save_with_another_mark(program, "Jones 2")
        self.assertEqual((elsewhere / "Jones.zev").read_bytes(), second)
        self.assertEqual(self.home.card("Jones").read_bytes(), first)
        for argument, title, answers in (
                (self.home.named(elsewhere / "Alone.zev"), r"\(unnamed\)", [("^Zevlin$", "Escape")]),
                (self.home.named(elsewhere / "Nobody.zev"), r"\(unnamed\)", []),
                (self.home.named(elsewhere / "a.b.zev"), r"\( a \)", []),
                ("a.b.zev", r"\( a \)", []), ("jones.ZEV", r"\( jones \)", [])):
            program = self.start(argument, answers=answers)
            program.wait_for_title(title + "$")
            self.leave(program)
        program = self.start("Two", "Over", "One")
        program.wait_for_title(r"\( Two Over One \)$")

    def save_with_another_mark(self, program, name):
        """Clicks a mark that isn't set, saves and leaves: the card keeps what it held before."""
        before = self.home.records(name)
        card = desktop.Card(program)
        mark = min(set(card.marks) - before[0])
        card.click_mark(mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.wait_for_title(rf"\( {name} \)$")
        self.assertEqual(self.home.records(name), (before[0] | {mark}, before[1]))
        self.leave(program)

    def test_a_name_that_no_card_can_have_opens_nothing(self):
        self.leave(self.start_for_the_first_time())
        content = self.home.card("Standard American").read_bytes()
        for name in ("Łódź Müller", "Lodz Müller", "?ód? Müller", ""):
            self.home.card(name).write_bytes(content)
        program = self.start("/any/where/Łódź Müller.zev")
        program.wait_for_title(r"\(unnamed\)$")
        self.leave(program)

    def test_a_card_is_renamed_from_its_pop_up_and_opened_again(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        mark, text = min(card.marks), self.wide_text(card)
        card.click_mark(mark)
        card.click_text(text)
        program.type("1NT 15-17")
        program.press("ctrl+b")
        program.press("ctrl+s")
        program.answer_name("Aces")
        program.wait_for_title(r"\( Aces \)$")
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.press("Tab", "Home")
        self.right_click_selected_card(program)
        program.press("r")
        box = program.wait_for_box("^Rename card$")
        desktop.xdotool("windowfocus", "--sync", box, "key", "ctrl+a", "type", "Kings")
        program.answer(box, "Return")
        desktop.wait_for("the new file", self.home.card("Kings").exists)
        self.assertFalse(self.home.card("Aces").exists())
        program.answer_name("Kings")
        program.wait_for_title(r"\( Kings \)$")
        marks, texts = self.home.records("Kings")
        self.assertEqual(marks, {mark})
        self.assertEqual(texts[text], "1NT 15-17")

    def test_a_custom_colour_is_there_again_at_the_next_start(self):
        program = self.start_for_the_first_time()
        program.press("alt+o", "Up", "Up", "Up", "Right", "Down", "Return")
        # The first slider has the keys.
        program.press("End", "Return")
        desktop.wait_for("the colour in the options", lambda: "ColorScheme=255 " in
                         (self.home.data / "ZEV.Ini").read_text("cp1252"))
        program.press("ctrl+s")
        program.answer_name("Red")
        program.wait_for_title(r"\( Red \)$")
        self.leave(program)
        again = self.start("Red")
        again.wait_for_title(r"\( Red \)$")
        card = desktop.Card(again)
        mark = min(card.marks)
        card.click_mark(mark)
        again.wait_for_title(r"\*$")
        desktop.wait_for("a mark in pure red",
                         lambda: b"\xff\x00\x00" in self.pixels(card.ink(card.marks[mark])))

    @staticmethod
    def pixels(ink):
        return {ink[at:at + 3] for at in range(0, len(ink), 3)}

    @staticmethod
    def wide_text(card):
        height = desktop.screenshot().height - 10
        return next(number for number, place in sorted(card.texts.items())
                    if place[2] > 150 and sum(card.box(place)[1::2]) < height)

    @staticmethod
    def right_click_selected_card(program):
        """The selected row is the only broad stripe of its colour."""
        def row():
            picture = desktop.screenshot()
            for y in range(100, picture.height - 100):
                colors = [picture.pixel(x, y) for x in range(500, 760, 4)]
                if len(set(colors[-20:])) == 1 and colors[-1] == HIGHLIGHT:
                    return y + 6
            return None
        program.click(740, desktop.wait_for("the selected row", row), button=3)


HIGHLIGHT = b"\x30\x8c\xc6"

if __name__ == "__main__":
    whole_program.main()
