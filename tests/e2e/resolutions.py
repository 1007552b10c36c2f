"""The program on screens of other resolutions, with the layout of that screen and with another's."""

import whole_program
from whole_program import desktop

NUMBERS = {96: 15, 110: 13, 120: 12}  # the installed layout for each resolution


class Resolutions(whole_program.WholeProgramTest):
    def test_96_dots_per_inch_get_the_layout_made_for_them(self):
        self.check_new_player(96)

    def test_110_dots_per_inch_get_the_layout_made_for_them(self):
        self.check_new_player(110)

    def test_120_dots_per_inch_get_the_layout_made_for_them(self):
        self.check_new_player(120)

    def test_a_layout_kept_from_another_screen_is_converted(self):
        program = self.start_for_the_first_time()
        self.fill_in_something(program, "Moved")
        self.leave(program)
        marks, texts = self.home.records("Moved")
        usual = self.layout()
        for dots in (110, 120):
            (self.home.data / "Definitions.Ini").write_bytes(usual)
            program = self.start("Moved.zev", dots_per_inch=dots,
                                 answers=[("^ZEV Configuration error$", "alt+n")])
            program.wait_for_title(r"\( Moved \)$")
            self.assertRegex(self.layout(), rb"\r\n%d,\d+\r\n" % NUMBERS[dots])
            marks = self.swap_first_marks(program, marks)
            self.assertEqual(self.home.records("Moved"), (marks, texts))
            self.leave(program)

    def check_new_player(self, dots):
        installed = self.home.installed / f"Definitions.Ini.{NUMBERS[dots]}"
        program = self.start_for_the_first_time(dots_per_inch=dots)
        self.assertEqual(self.layout(), installed.read_bytes())
        self.fill_in_something(program, "New")

    @staticmethod
    def swap_first_marks(program, marks):
        """Clicks the first two marks, of which one is set, saves, and tells the marks then set."""
        card = desktop.Card(program)
        clicked = set(sorted(card.marks)[:2])
        for mark in clicked:
            card.click_mark(mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.wait_for_title(r"\( Moved \)$")
        return marks ^ clicked

    def fill_in_something(self, program, name):
        card = desktop.Card(program)
        mark, text = min(card.marks), min(card.texts)
        card.click_mark(mark)
        card.click_text(text)
        program.type("North & South")
        program.press("Tab", "F7", "Escape", "ctrl+s")
        program.answer_name(name)
        program.wait_for_title(rf"\( {name} \)$")
        marks, texts = self.home.records(name)
        self.assertEqual(marks, {mark})
        self.assertEqual({key: value for key, value in texts.items() if value},
                         {text: "North & South", self.home.tab_pairs()[text]: "^h"})

    def layout(self):
        return (self.home.data / "Definitions.Ini").read_bytes()


if __name__ == "__main__":
    whole_program.main()
