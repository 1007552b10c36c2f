"""What the tests of the rescue of unsaved changes share: a changed card, the file that holds its
changes, and the look at what the next start gives back."""

import re
import time

import whole_program
from whole_program import desktop

CARD = "Two Over One"
QUESTION = "^Unsaved changes$"  # of the box at the start, and of the one at the end
YES, NO = "alt+y", "alt+n"
LONGEST_WAIT = 2  # seconds from a change to its being safe


def text_in(content, field):
    """The text of a field in what a card file or a journal holds."""
    found = re.search(rb'^%d,"(.*)",\d+\r$' % field, content, re.MULTILINE)
    return found[1].decode("cp1252") if found else ""


class RescueTest(whole_program.WholeProgramTest):
    """Begins with the sample card, saved and unchanged."""

    def setUp(self):
        self.state = self.home.folder / ".local" / "state" / "zevlin"
        self.leave(self.start_for_the_first_time())
        self.saved_marks, self.saved_texts = self.home.records(CARD)

    def open_card(self, name=CARD, **settings):
        program = self.start(self.home.opening(name), **settings)
        program.wait_for_title(rf"\( {name} \)$")
        return program

    def find_fields(self, program):
        """A mark and a text area that are empty on the card."""
        self.card = desktop.Card(program)
        self.mark = min(set(self.card.marks) - self.saved_marks)
        self.field = min(field for field in self.card.texts if not self.saved_texts.get(field))

    def change(self, program):
        """Sets a mark."""
        self.find_fields(program)
        self.card.click_mark(self.mark)
        program.wait_for_title(r"\*$")

    def changed_card(self, **settings):
        program = self.open_card(**settings)
        self.change(program)
        return program

    def journals(self):
        """The files that hold unsaved changes."""
        return sorted(self.state.glob("changes-*.zev"))

    def journal(self):
        """What the newest of them holds."""
        files = self.journals()
        try:
            return max(files, key=lambda path: path.stat().st_mtime_ns).read_bytes()
        except (ValueError, FileNotFoundError):
            return b""

    def is_mark_safe(self):
        return re.search(rb"^%d,1,\d+\r$" % self.mark, self.journal(), re.MULTILINE)

    def wait_until_safe(self, condition=None):
        """By then a sudden end costs nothing."""
        began = time.monotonic()
        desktop.wait_for("the changes in a file", condition or self.is_mark_safe)
        return time.monotonic() - began

    def start_and_answer(self, keys, *arguments):
        """The next start, its question answered by one key or some."""
        return self.start(*arguments, answers=[(QUESTION, keys)])

    def assert_comes_back(self, name=CARD, key=YES):
        """The next start gives the changed card back, with name and star."""
        program = self.start_and_answer(key)
        self.assert_shown_changed(program, name)
        return program

    def assert_shown_changed(self, program, name=CARD):
        told = rf"\( {name} \)" if name else r"\(unnamed\)"
        program.wait_for_title(rf"{told} \*$")

    def save(self, program, name=CARD):
        program.press("ctrl+s")
        program.wait_for_title(rf"\( {name} \)$")
        self.assertEqual(self.journals(), [])

    def assert_mark_comes_back(self, name=CARD):
        """It is on the card that the next start gives back, all else is as it was, and there is no
        question at the start after that."""
        program = self.assert_comes_back(name)
        self.save(program, name)
        marks, texts = self.home.records(name)
        self.assertEqual(marks, self.saved_marks | {self.mark})
        self.assertEqual(texts, self.saved_texts)
        self.leave(program)
        self.leave(self.open_card(name))

    def assert_nothing_is_offered(self):
        self.leave(self.open_card())

    def assert_file_is_as_it_was(self, name=CARD):
        self.assertEqual(self.home.records(name), (self.saved_marks, self.saved_texts))
