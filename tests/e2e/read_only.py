"""A data folder that takes no more files while the program runs, as an ordinary user meets it."""

import os

import whole_program
from whole_program import desktop

NOBODY = 65534


class HomeOfAnOrdinaryUser(desktop.Home):
    """Nothing is read-only for the superuser, so the tests that run as one start the program as
    somebody else, in a home of theirs."""

    def install(self):
        super().install()
        if os.geteuid() != 0:
            return
        for path in (self.folder.parent, self.folder, *self.folder.rglob("*")):
            os.chown(path, NOBODY, NOBODY)

    def command(self):
        if os.geteuid() != 0:
            return super().command()
        return ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups",
                *super().command()]


class ReadOnlyDataFolder(whole_program.WholeProgramTest):
    home_type = HomeOfAnOrdinaryUser
    # Where the trace can be written it tells what failed.
    announced_error = "Permission denied"

    def card_in_a_folder_that_became_read_only(self):
        """A saved card with one mark, shown, in a folder that from then on takes no new file."""
        program = self.start_for_the_first_time()
        self.card = desktop.Card(program)
        self.first, self.second = sorted(self.card.marks)[:2]
        self.card.click_mark(self.first)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.answer_name("Kept")
        program.wait_for_title(r"\( Kept \)$")
        self.home.data.chmod(0o555)
        self.assertFalse(self.can_create_files())
        return program

    def can_create_files(self):
        probe = self.home.data / "probe"
        command = [*self.home.command()[:-1], "/usr/bin/touch", str(probe)]
        try:
            desktop.output_of(*command)
        except Exception:
            return False
        probe.unlink()
        return True

    def tearDown(self):
        self.home.data.chmod(0o755)
        super().tearDown()

    def test_a_card_that_has_its_file_is_still_filled_in_and_saved(self):
        program = self.card_in_a_folder_that_became_read_only()
        self.card.click_mark(self.second)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.wait_for_title(r"\( Kept \)$")
        self.assertEqual(self.home.records("Kept")[0], {self.first, self.second})
        self.leave(program)

    def test_a_zoom_keeps_the_changed_card_and_says_once_what_could_not_be_written(self):
        program = self.card_in_a_folder_that_became_read_only()
        saved = self.home.card("Kept").read_bytes()
        self.card.click_mark(self.second)
        program.wait_for_title(r"\*$")
        before = desktop.screenshot().bytes
        program.press("ctrl+equal")
        program.answer(program.wait_for_box("^Zevlin$"), "Return")
        self.assertRegex(program.title(), r"\( Kept \) \*$")
        self.assertNotEqual(desktop.screenshot().bytes, before)
        self.assertEqual(self.home.card("Kept").read_bytes(), saved)
        self.assertFalse(self.home.card("$$Tempcard").exists())
        # A second zoom must not show a box again, which would keep the program from saving.
        program.press("ctrl+equal", "ctrl+s")
        program.wait_for_title(r"\( Kept \)$")
        self.assertEqual(self.home.records("Kept")[0], {self.first, self.second})
        self.leave(program)

    def test_the_next_start_opens_the_saved_card_and_leaves_without_a_question(self):
        program = self.card_in_a_folder_that_became_read_only()
        program.press("ctrl+equal")
        program.answer(program.wait_for_box("^Zevlin$"), "Return")
        self.leave(program)
        again = self.start("Kept")
        again.wait_for_title(r"\( Kept \)$")
        self.leave(again)

    def test_a_working_card_that_a_crash_left_lets_the_zoom_go_on(self):
        program = self.start_for_the_first_time()
        self.card = desktop.Card(program)
        mark = min(self.card.marks)
        self.card.click_mark(mark)
        program.wait_for_title(r"\*$")
        left = self.home.card("$$Tempcard")
        left.write_bytes(b"left by a crash")
        if os.geteuid() == 0:
            os.chown(left, NOBODY, NOBODY)
        self.home.data.chmod(0o555)
        before = desktop.screenshot().bytes
        program.press("ctrl+equal")
        desktop.wait_for("another size", lambda: desktop.screenshot().bytes != before)
        self.home.data.chmod(0o755)
        program.press("ctrl+s")
        program.answer_name("Carried over")
        program.wait_for_title(r"\( Carried over \)$")
        self.assertEqual(self.home.records("Carried over")[0], {mark})
        self.assertFalse(self.home.card("Carried over").read_bytes().startswith(b"left"))


if __name__ == "__main__":
    whole_program.main()
