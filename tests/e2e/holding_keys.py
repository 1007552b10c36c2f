"""Keys that are held down on a busy machine, where the server repeats them: each acts once."""

import contextlib
import os
import subprocess
import sys

import whole_program
import x11
from whole_program import desktop

FIRST, FIRST_MARK = 1, 1000
SECONDS = 1.5
DELAY, INTERVAL = 150, 15  # milliseconds until a held key repeats, and from then on


@contextlib.contextmanager
def busy_machine():
    """More work than the machine has processors."""
    work = [subprocess.Popen([sys.executable, "-c", "while True: pass"])
            for _ in range(2 * (os.cpu_count() or 1))]
    try:
        yield
    finally:
        for process in work:
            process.kill()
            process.wait(timeout=10)


class HoldingKeys(whole_program.WholeProgramTest):
    def setUp(self):
        x11.repeat_keys(DELAY, INTERVAL)

    @staticmethod
    def hold(key):
        with busy_machine():
            desktop.xdotool("keydown", key, "sleep", SECONDS, "keyup", key)

    def open_field(self, number):
        program = self.start_for_the_first_time()
        desktop.Card(program).click_text(number)
        return program

    def saved(self, program):
        """The set marks and the texts that aren't empty."""
        program.press("Escape", "ctrl+s")
        program.answer_name("Held")
        program.wait_for_title(r"\( Held \)$")
        marks, texts = self.home.records("Held")
        return marks, {key: value for key, value in texts.items() if value}

    def test_the_server_repeats_a_held_letter(self):
        program = self.open_field(FIRST)
        self.hold("a")
        _, texts = self.saved(program)
        self.assertGreater(len(texts[FIRST]), 20)

    def test_suit_keys_insert_one_suit(self):
        program = self.open_field(FIRST)
        for key in ("F5", "F6", "F7", "F8"):
            self.hold(key)
            program.type("x")
        self.assertEqual(self.saved(program), (set(), {FIRST: "^cx^dx^hx^sx"}))

    def test_space_turns_a_mark_once(self):
        program = self.start_for_the_first_time()
        desktop.Card(program).click_mark(1)
        for _ in range(3):
            self.hold("space")
        self.assertEqual(self.saved(program), (set(), {}))

    def test_tab_and_enter_go_one_field_on(self):
        program = self.start_for_the_first_time()
        following = self.home.tab_pairs()
        first = next(item for item in following if max(
            item, following[item], following.get(following[item], FIRST_MARK)) < FIRST_MARK)
        second = following[first]
        desktop.Card(program).click_text(first)
        self.hold("Tab")
        program.type("one")
        self.hold("Return")
        program.type("two")
        self.assertEqual(self.saved(program)[1], {second: "one", following[second]: "two"})


if __name__ == "__main__":
    whole_program.main()
