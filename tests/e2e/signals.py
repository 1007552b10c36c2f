"""The wish of the system that the program ends, while something is open on the screen: the changes
are safe at once, and the question comes as soon as it can be put."""

import signal

import rescuing
from rescuing import CARD, QUESTION, YES
from whole_program import desktop, main

SAVE_AS, SETUP = 3, 7  # rows of the File menu


class Signals(rescuing.RescueTest):
    def end_with_changes(self, program, ending):
        """Sends the signal, upon which the change is safe."""
        program.process.send_signal(ending)
        desktop.wait_for("the change in a file", self.is_mark_safe, rescuing.LONGEST_WAIT)

    def check_below(self, open_it, title, ending=signal.SIGTERM):
        """What is open stays; the question follows when it is answered."""
        program = self.changed_card()
        open_it(program)
        box = program.wait_for_box(title)
        self.end_with_changes(program, ending)
        self.assertEqual(program.boxes(), [box])
        program.answer(box, "Escape")
        self.check_question(program)

    def check_question(self, program):
        """It comes, once; and again for the next signal."""
        program.answer(program.wait_for_box(QUESTION), "Escape")
        self.assert_shown_changed(program)
        self.assert_file_is_as_it_was()
        program.process.send_signal(signal.SIGTERM)
        program.answer(program.wait_for_box(QUESTION), YES)
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks | {self.mark})
        self.assertEqual(self.journals(), [])

    def test_the_question_follows_an_input_box(self):
        self.check_below(lambda program: program.press("alt+o", "Return"), "^My ID$")

    def test_the_question_follows_a_message_box(self):
        saved = self.home.card(CARD).read_bytes()

        def make_it_ask(program):
            self.home.card(CARD).unlink()
            program.press("ctrl+s")
            program.wait_for_box("^Zevlin$")
            self.home.card(CARD).write_bytes(saved)
        self.check_below(make_it_ask, "^Zevlin$", signal.SIGHUP)

    def test_the_question_follows_the_file_box_of_a_print(self):
        self.check_below(lambda program: program.press("ctrl+p"), "^Print to PDF: ")

    def test_the_question_follows_the_set_up(self):
        self.check_below(lambda program: program.choose_in_file_menu(SETUP), "^Printer Setup$",
                         signal.SIGINT)

    def test_an_open_menu_gives_way_to_the_question(self):
        program = self.changed_card()
        before = desktop.screenshot().bytes
        program.press("alt+f")
        desktop.wait_for("the menu", lambda: desktop.screenshot().bytes != before)
        self.end_with_changes(program, signal.SIGTERM)
        self.check_question(program)

    def test_the_chooser_gives_way_to_the_question(self):
        program = self.changed_card()
        program.choose_in_file_menu(SAVE_AS)
        program.wait_for_chooser()
        self.end_with_changes(program, signal.SIGTERM)
        self.check_question(program)

    def test_killed_below_an_open_box_after_a_signal_it_loses_nothing(self):
        program = self.changed_card()
        program.press("alt+o", "Return")
        program.wait_for_box("^My ID$")
        self.end_with_changes(program, signal.SIGTERM)
        program.kill()
        self.assert_mark_comes_back()


if __name__ == "__main__":
    main()
