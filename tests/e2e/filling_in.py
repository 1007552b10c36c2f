"""Filling in a card with mouse and keys, saving it, and opening it again."""

import whole_program
from whole_program import desktop


class FillingIn(whole_program.WholeProgramTest):
    def test_a_click_sets_a_mark_and_another_removes_it(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        mark = self.shown_marks(card)[0]
        empty = card.ink(card.marks[mark])
        card.click_mark(mark)
        desktop.wait_for("the mark's ink", lambda: card.ink(card.marks[mark]) != empty)
        program.wait_for_title(r"\*$")
        card.click_mark(mark)
        desktop.wait_for("the mark's ink to go", lambda: card.ink(card.marks[mark]) == empty)

    def test_what_was_filled_in_is_in_the_file_that_was_named_at_the_prompt(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        first, second, third = self.shown_marks(card)[:3]
        for mark in (first, second, third, second):
            card.click_mark(mark)
        text, other = self.shown_texts(card)[:2]
        card.click_text(text)
        program.type("12, or 11 & a")
        program.press("F6")
        program.press("Escape")
        card.click_text(other)
        program.type('"yes"')
        program.press("F7", "F5", "F8")
        program.press("Escape")
        program.press("ctrl+s")
        program.answer_name("Joe and Ann")
        program.wait_for_title(r"\( Joe and Ann \)$")

        marks, texts = self.home.records("Joe and Ann")
        self.assertEqual(marks, {first, third})
        self.assertEqual(texts[text], "12, or 11 & a^d")
        self.assertEqual(texts[other], "\u00b2yes\u00b2^h^c^s")
        self.assertEqual({key for key, value in texts.items() if value}, {text, other})

    def test_a_saved_card_looks_the_same_when_the_command_line_names_it(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        mark, text = self.shown_marks(card)[0], self.shown_texts(card)[0]
        blank = card.ink(card.texts[text])
        card.click_mark(mark)
        card.click_text(text)
        program.type("Weak, 5-10 ^s")
        program.press("Escape")
        program.press("ctrl+s")
        program.answer_name("Reopened")
        program.wait_for_title(r"\( Reopened \)$")
        looks = self.looks(card, mark, text)
        self.assertNotEqual(looks[1], blank)
        self.leave(program)

        again = self.start("Reopened.zev")
        again.wait_for_title(r"\( Reopened \)$")
        card = desktop.Card(again)
        desktop.wait_for("the same card", lambda: self.looks(card, mark, text) == looks)

    def test_saving_again_asks_no_name(self):
        self.leave(self.start_for_the_first_time())
        program = self.start("Standard American")
        program.wait_for_title(r"\( Standard American \)$")
        before = self.home.records("Standard American")[0]
        card = desktop.Card(program)
        mark = self.shown_marks(card)[0]
        card.click_mark(mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.wait_for_title(r"\( Standard American \)$")
        self.assertEqual(self.home.records("Standard American")[0], before ^ {mark})

    def test_tab_walks_on_and_space_toggles(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        walk = self.home.tab_pairs()
        start = next(number for number in self.shown_marks(card)
                     if walk.get(number + 1000, 0) > 1000
                     and walk[number + 1000] - 1000 in self.shown_marks(card))
        following = walk[start + 1000] - 1000
        empty = card.ink(card.marks[following])
        card.click_mark(start)
        program.wait_for_title(r"\*$")
        program.press("Tab")
        program.press("space")
        desktop.wait_for("the next mark", lambda: card.ink(card.marks[following]) != empty)
        program.press("ctrl+s")
        program.answer_name("Walked")
        program.wait_for_title(r"\( Walked \)$")
        self.assertEqual(self.home.records("Walked")[0], {start, following})

    @staticmethod
    def looks(card, mark, text):
        return card.ink(card.marks[mark]), card.ink(card.texts[text])

    @staticmethod
    def shown(card, places):
        height = desktop.screenshot().height - 10
        return [number for number, place in sorted(places.items())
                if sum(card.box(place)[1::2]) < height]

    def shown_marks(self, card):
        return self.shown(card, card.marks)

    def shown_texts(self, card):
        """Text areas wide enough for a few words."""
        return [number for number in self.shown(card, card.texts)
                if card.texts[number][2] > 150]


if __name__ == "__main__":
    whole_program.main()
