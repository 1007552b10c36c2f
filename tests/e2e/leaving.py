"""Leaving the program with and without unsaved changes."""

import whole_program
from whole_program import desktop

QUESTION = "Unsaved changes"


class Leaving(whole_program.WholeProgramTest):
    def changed_card(self):
        """The program with a sample card in which a mark was clicked."""
        self.leave(self.start_for_the_first_time())
        self.marks = self.home.records("Two Over One")[0]
        program = self.start("Two Over One")
        program.wait_for_title(r"\( Two Over One \)$")
        card = desktop.Card(program)
        self.mark = min(card.marks)
        card.click_mark(self.mark)
        program.wait_for_title(r"\*$")
        return program

    def test_without_changes_asks_nothing(self):
        self.leave(self.start_for_the_first_time())

    def test_cancel_keeps_the_program_and_the_changes(self):
        program = self.changed_card()
        program.close()
        program.answer(program.wait_for_box(QUESTION), "Escape")
        self.assertRegex(program.title(), r"\( Two Over One \) \*$")
        self.assertTrue(program.is_running())
        self.assertEqual(self.home.records("Two Over One")[0], self.marks)

    def test_no_leaves_and_drops_the_changes(self):
        program = self.changed_card()
        program.close()
        program.answer(program.wait_for_box(QUESTION), "alt+n")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Two Over One")[0], self.marks)

    def test_yes_saves_and_leaves(self):
        program = self.changed_card()
        program.close()
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Two Over One")[0], self.marks ^ {self.mark})

    def test_yes_on_an_unnamed_card_asks_the_name(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        card.click_mark(min(card.marks))
        program.wait_for_title(r"\*$")
        program.close()
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        program.answer_name("Named at last")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Named at last")[0], {min(card.marks)})


if __name__ == "__main__":
    whole_program.main()
