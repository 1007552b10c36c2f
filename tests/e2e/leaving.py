"""Leaving the program with and without unsaved changes: by its window, by its menu, and because the
session ends."""

import signal
import subprocess

import virtual_screen
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

    def test_exit_asks_too_and_leaves(self):
        program = self.changed_card()
        program.press("alt+f", "x")
        program.answer(program.wait_for_box(QUESTION), "Escape")
        self.assertTrue(program.is_running())
        program.press("alt+f", "x")
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Two Over One")[0], self.marks ^ {self.mark})

    def test_closing_the_chooser_keeps_the_program(self):
        program = self.start_for_the_first_time()
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.close()
        program.wait_for_title(r"\(unnamed\)$")
        self.leave(program)

    def test_a_text_that_is_still_open_is_a_change(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        field = min(card.texts)
        card.click_text(field)
        program.type("kept")
        program.close()
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        program.answer_name("Open text")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Open text")[1][field], "kept")

    def test_the_end_of_the_session_asks_about_changes(self):
        program = self.changed_card()
        program.process.send_signal(signal.SIGTERM)
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Two Over One")[0], self.marks ^ {self.mark})

    def test_the_end_of_the_session_closes_the_chooser_and_leaves(self):
        program = self.start_for_the_first_time()
        program.press("ctrl+o")
        program.wait_for_chooser()
        program.process.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait_for_end(), 0)

    def test_a_second_signal_while_the_question_is_up_asks_it_no_second_time(self):
        program = self.changed_card()
        program.process.send_signal(signal.SIGTERM)
        box = program.wait_for_box(QUESTION)
        program.process.send_signal(signal.SIGTERM)
        # The key that was sent after the signal had its effect, so the signal was dealt with.
        program.focus(box)
        before = desktop.screenshot().bytes
        desktop.xdotool("key", "Tab")
        desktop.wait_for("another button with the focus",
                         lambda: desktop.screenshot().bytes != before)
        self.assertEqual(program.boxes(), [box])
        program.answer(box, "Escape")
        self.assertRegex(program.title(), r"\( Two Over One \) \*$")
        self.assertEqual(self.home.records("Two Over One")[0], self.marks)
        # No second box is in the way.
        program.press("ctrl+s")
        program.wait_for_title(r"\( Two Over One \)$")

    def test_each_signal_after_a_cancelled_question_asks_anew(self):
        program = self.changed_card()
        for ending in (signal.SIGTERM, signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            program.process.send_signal(ending)
            program.answer(program.wait_for_box(QUESTION), "Escape")
            self.assertRegex(program.title(), r"\( Two Over One \) \*$")
        program.process.send_signal(signal.SIGTERM)
        program.answer(program.wait_for_box(QUESTION), "alt+y")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertEqual(self.home.records("Two Over One")[0], self.marks ^ {self.mark})

    def test_a_lost_screen_ends_it_without_a_crash(self):
        self.leave(self.start_for_the_first_time())
        with virtual_screen.Screen() as screen:
            self.home.environment = {"DISPLAY": screen.name}
            program = subprocess.Popen([*self.home.command(), "Two Over One"], cwd=self.home.folder,
                                       env=self.home.usual_environment() | self.home.environment)
            screen.wait_for_window(program)
        self.assertEqual(program.wait(timeout=30), 1)
        self.assertTrue(self.home.card("Two Over One").exists())


if __name__ == "__main__":
    whole_program.main()
