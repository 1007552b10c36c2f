"""The question at the start about changes that were not saved: its answers, whose changes it offers,
and what is left of a card without any journal."""

import signal

import rescuing
from rescuing import CARD, NO, QUESTION, YES
from whole_program import desktop, main

OTHER = "Standard American"
CLOSE_BOX = "alt+F4"  # as the frame's button does


class RescueQuestion(rescuing.RescueTest):
    def setUp(self):
        super().setUp()
        self.other_saved = self.home.records(OTHER)

    def leave_changes(self, name=CARD):
        """What a killed program leaves."""
        program = self.open_card(name)
        self.change(program)
        self.wait_until_safe()
        program.kill()

    def test_yes_is_the_answer_of_the_enter_key(self):
        self.leave_changes()
        program = self.assert_comes_back(key="Return")
        self.save(program)
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks | {self.mark})

    def test_yes_and_no_save_leave_a_card_that_is_offered_again(self):
        self.leave_changes()
        self.assert_comes_back().kill()
        self.assert_mark_comes_back()

    def test_what_is_brought_back_and_given_up_by_answer_is_gone(self):
        self.leave_changes()
        program = self.assert_comes_back()
        program.close()
        program.answer(program.wait_for_box(QUESTION), NO)
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.journals(), [])
        self.assert_nothing_is_offered()
        self.assert_file_is_as_it_was()

    def test_no_gives_the_changes_up_for_good(self):
        self.leave_changes()
        self.leave(self.start_and_answer(NO, CARD))
        self.assertEqual(self.journals(), [])
        self.assert_nothing_is_offered()
        self.assert_file_is_as_it_was()

    def test_all_other_answers_ask_again_at_the_next_start(self):
        self.leave_changes()
        for keys in (("Escape",), (CLOSE_BOX,), ("Tab", "Tab", "Return")):
            program = self.start_and_answer(keys, CARD)
            program.wait_for_title(rf"\( {CARD} \)$")
            self.leave(program)
        self.assert_mark_comes_back()

    def test_an_undecided_question_and_a_kill_ask_again(self):
        self.leave_changes()
        for ending in (signal.SIGKILL, signal.SIGTERM):
            program = self.start_until_question()
            program.process.send_signal(ending)
            program.process.wait(timeout=30)
        self.assert_mark_comes_back()

    def start_until_question(self):
        """A start that hangs in its question."""
        class Asking(desktop.Program):
            def come_up(self, is_first, answers):
                self.wait_for_box(QUESTION)
        program = Asking(self.home, CARD)
        self.programs.append(program)
        return program

    def test_a_living_copys_changes_are_not_offered(self):
        living = self.changed_card()
        self.wait_until_safe()
        self.leave(self.open_card(OTHER))
        self.assertTrue(self.is_mark_safe())
        self.save(living)
        self.leave(living)

    def test_of_two_copies_only_the_killed_ones_changes_are_offered(self):
        living = self.changed_card()
        self.wait_until_safe()
        mark = self.mark
        dead = self.open_card(OTHER)
        dead.press("Escape")
        self.saved_marks = self.other_saved[0]
        self.change(dead)
        desktop.wait_for("two journals", lambda: len(self.journals()) == 2)
        dead.kill()
        third = self.assert_comes_back(OTHER)
        third.press("ctrl+s")
        third.wait_for_title(rf"\( {OTHER} \)$")
        self.assertEqual(self.home.records(OTHER)[0], self.other_saved[0] | {self.mark})
        # The first program has kept running.
        self.assertRegex(living.title(), rf"\( {CARD} \) \*$")
        living.focus(living.window)
        self.save(living)
        self.assertIn(mark, self.home.records(CARD)[0])
        self.leave(third)
        self.leave(living)

    def test_the_changes_of_two_killed_copies_are_offered_one_by_one(self):
        self.leave_changes(CARD)
        first = self.mark
        second = self.start_and_answer("Escape", OTHER)
        second.wait_for_title(rf"\( {OTHER} \)$")
        self.saved_marks = self.other_saved[0]
        self.change(second)
        desktop.wait_for("two journals", lambda: len(self.journals()) == 2)
        self.wait_until_safe()
        second.kill()
        program = self.start(answers=[(QUESTION, NO), (QUESTION, YES)])
        self.assert_shown_changed(program, OTHER)
        self.save(program, OTHER)
        self.assertEqual(self.home.records(OTHER)[0], self.other_saved[0] | {self.mark})
        self.assertNotIn(first, self.home.records(CARD)[0])

    def test_a_temporary_card_without_a_journal_is_offered(self):
        shown = self.home.card(CARD).read_bytes()
        self.home.card("$$Tempcard").write_bytes(shown)
        program = self.assert_comes_back(name="")
        self.assertFalse(self.home.card("$$Tempcard").exists())
        program.press("ctrl+s")
        program.answer_name("Found again")
        program.wait_for_title(r"\( Found again \)$")
        self.assertEqual(self.home.records("Found again"), (self.saved_marks, self.saved_texts))
        self.leave(program)
        self.assert_nothing_is_offered()

    def test_a_temporary_card_beside_a_journal_goes_silently(self):
        self.leave_changes()
        self.home.card("$$Tempcard").write_bytes(self.home.card(OTHER).read_bytes())
        program = self.assert_comes_back()
        self.assertFalse(self.home.card("$$Tempcard").exists())
        self.save(program)
        self.leave(program)
        self.assert_nothing_is_offered()

    def test_a_temporary_card_that_is_given_up_is_gone(self):
        self.home.card("$$Tempcard").write_bytes(self.home.card(CARD).read_bytes())
        self.leave(self.start_and_answer(NO, CARD))
        self.assertFalse(self.home.card("$$Tempcard").exists())
        self.assert_nothing_is_offered()


if __name__ == "__main__":
    main()
