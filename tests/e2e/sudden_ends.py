"""Ends that give the program no time: killed while the player types, zooms or prints, the screen
lost, the session over before its question is answered. The next start gives the changes back."""

import os
import random
import signal
import threading
import time

import rescuing
import virtual_screen
from rescuing import CARD, LONGEST_WAIT, QUESTION
from whole_program import desktop, main

KEY_INTERVAL = 0.15  # seconds between two letters of a fast typist
NEW = 0  # row of the File menu
TYPED = "the quick brown fox jumps over"


class SuddenEnds(rescuing.RescueTest):
    def test_a_change_is_safe_within_two_seconds(self):
        program = self.open_card()
        self.find_fields(program)
        self.card.click_mark(self.mark)
        self.assertLess(self.wait_until_safe(), LONGEST_WAIT)
        program.kill()
        self.assert_mark_comes_back()

    def test_killed_while_typing_it_loses_no_letter_older_than_two_seconds(self):
        program = self.open_card()
        self.find_fields(program)
        self.card.click_text(self.field)
        times = []
        killed = random.uniform(3.5, 0.9 * KEY_INTERVAL * len(TYPED))
        began = time.monotonic()
        for letter in TYPED:
            desktop.xdotool("key", "space" if letter == " " else letter)
            times.append(time.monotonic())
            if times[-1] - began > killed:
                break
            self.pause_until(times[-1] + KEY_INTERVAL)
        program.kill()
        end = time.monotonic()
        must_be_there = sum(end - moment > LONGEST_WAIT for moment in times)
        self.assertGreater(must_be_there, 0)
        again = self.assert_comes_back()
        self.save(again)
        text = self.home.records(CARD)[1][self.field]
        self.assertTrue(TYPED.startswith(text), text)
        # A blank at the end isn't part of a text.
        self.assertGreaterEqual(len(text), len(TYPED[:must_be_there].rstrip()), text)
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks)

    @staticmethod
    def pause_until(moment):
        desktop.value_within(moment - time.monotonic(), lambda: False)

    def test_killed_in_a_zoom_it_loses_nothing_whenever_that_is(self):
        program = self.changed_card()
        self.wait_until_safe()
        for _ in range(6):
            self.kill_within(program, 1, ("ctrl+equal", "ctrl+minus"))
            program = self.assert_comes_back()
        self.save(program)
        self.assertEqual(self.home.records(CARD), (self.saved_marks | {self.mark},
                                                   self.saved_texts))

    def kill_within(self, program, seconds, keys):
        """Kills it at a random moment while keys are pressed without a pause."""
        def press():
            for turn in range(200):
                if not program.is_running():
                    return
                desktop.xdotool("key", keys[turn % len(keys)])
        pressing = threading.Thread(target=press)
        pressing.start()
        self.pause_until(time.monotonic() + random.uniform(0.1, seconds))
        program.kill()
        pressing.join()

    def test_killed_at_once_after_a_change_and_a_zoom_it_loses_neither(self):
        program = self.changed_card()
        before = self.home.data.joinpath("ZEV.Ini").stat().st_mtime_ns
        program.press("ctrl+equal")
        desktop.wait_for("the zoom", lambda: self.home.data.joinpath("ZEV.Ini").stat().st_mtime_ns
                         != before)
        program.kill()
        self.assert_mark_comes_back()

    def test_killed_while_a_print_asks_for_its_file_it_loses_nothing(self):
        program = self.changed_card()
        program.press("ctrl+p")
        program.wait_for_box("^Print to PDF: ")
        program.kill()
        self.assert_mark_comes_back()

    def test_killed_in_the_midst_of_a_print_it_loses_nothing(self):
        program = self.changed_card()
        for turn in range(5):
            program.press("ctrl+p")
            box = program.wait_for_box("^Print to PDF: ")
            program.focus(box)
            desktop.xdotool("key", "ctrl+a", "type", str(self.home.folder / f"page{turn}.pdf"))
            desktop.xdotool("key", "Return")
            self.pause_until(time.monotonic() + random.uniform(0, 0.5))
            program.kill()
            program = self.assert_comes_back()
        self.save(program)
        self.assertEqual(self.home.records(CARD), (self.saved_marks | {self.mark},
                                                   self.saved_texts))

    def test_a_lost_screen_costs_not_even_the_last_change(self):
        here = os.environ["DISPLAY"]
        self.addCleanup(os.environ.update, DISPLAY=here)
        with virtual_screen.Screen() as screen:
            os.environ["DISPLAY"] = screen.name
            program = self.open_card()
            program.focus(program.window)
            self.change(program)
        self.assertEqual(program.process.wait(timeout=30), 1)
        os.environ["DISPLAY"] = here
        self.assert_mark_comes_back()

    def test_killed_behind_the_question_of_a_closed_window_it_loses_nothing(self):
        program = self.changed_card()
        program.close()
        program.wait_for_box(QUESTION)
        self.wait_until_safe()
        program.kill()
        self.assert_mark_comes_back()

    def test_a_session_that_ends_without_an_answer_costs_nothing(self):
        for ending in (signal.SIGTERM, signal.SIGHUP):
            program = self.changed_card()
            program.process.send_signal(ending)
            program.wait_for_box(QUESTION)
            # The journal is written before the question, without any delay.
            self.assertTrue(self.is_mark_safe())
            self.pause_until(time.monotonic() + 1)
            program.kill()
            again = self.start_and_answer(rescuing.NO, CARD)
            self.leave(again)
        self.assert_file_is_as_it_was()

    def test_an_unnamed_card_comes_back_unnamed(self):
        program = self.open_card()
        program.choose_in_file_menu(NEW)
        program.wait_for_title(r"\(unnamed\)$")
        self.saved_marks, self.saved_texts = set(), {}
        self.change(program)
        self.wait_until_safe()
        program.kill()
        again = self.assert_comes_back(name="")
        again.press("ctrl+s")
        again.answer_name("Named after all")
        again.wait_for_title(r"\( Named after all \)$")
        self.assertEqual(self.home.records("Named after all")[0], {self.mark})


if __name__ == "__main__":
    main()
