"""What others do to the player's files while a changed card is open: the card, its name and its star
stay, and one box says what could not be used."""

import itertools

import rescuing
from rescuing import CARD, NO, YES
from whole_program import desktop, main

BOX = "^Zevlin$"
PDF_BOX = "^Print to PDF: "
EXPORT_BOX = "^Print card image to disk$"
SAVE_AS, EXPORT = 3, 8  # rows of the File menu
OTHER = "Standard American"
ELSEWHERE = "Mine"
SAVE_AS_BUTTON = ("Tab", "Return")  # the second one


class ChangedByOthers(rescuing.RescueTest):
    """Another program writes or removes the file of the card."""

    def save_over(self, program, keys):
        program.press("ctrl+s")
        program.answer(program.wait_for_box(BOX), keys)

    def assert_saved(self, name):
        self.assertEqual(self.home.records(name), (self.saved_marks | {self.mark},
                                                   self.saved_texts))
        self.assertEqual(self.journals(), [])

    def card_that_another_program_changed(self):
        program = self.changed_card()
        self.theirs = self.home.card(OTHER).read_bytes()
        self.home.card(CARD).write_bytes(self.theirs)
        return program

    def test_yes_saves_over_what_they_made(self):
        program = self.card_that_another_program_changed()
        self.save_over(program, YES)
        program.wait_for_title(rf"\( {CARD} \)$")
        self.assert_saved(CARD)
        # From then on the file counts as the program's own.
        self.card.click_mark(self.mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.wait_for_title(rf"\( {CARD} \)$")
        self.assert_file_is_as_it_was()
        self.leave(program)

    def test_no_and_escape_leave_both_as_they_are(self):
        program = self.card_that_another_program_changed()
        for keys in (NO, "Escape"):
            self.save_over(program, keys)
            self.assert_shown_changed(program)
            self.assertEqual(self.home.card(CARD).read_bytes(), self.theirs)
        self.wait_until_safe()
        program.kill()
        # The changes that came back don't replace the other program's file without a question,
        # either.
        again = self.assert_comes_back()
        self.save_over(again, YES)
        again.wait_for_title(rf"\( {CARD} \)$")
        self.assert_saved(CARD)

    def test_save_as_keeps_both(self):
        program = self.card_that_another_program_changed()
        program.press("ctrl+s")
        program.answer(program.wait_for_box(BOX), SAVE_AS_BUTTON)
        program.answer_name(ELSEWHERE)
        program.wait_for_title(rf"\( {ELSEWHERE} \)$")
        self.assert_saved(ELSEWHERE)
        self.assertEqual(self.home.card(CARD).read_bytes(), self.theirs)
        self.leave(program)

    def test_a_removed_file_is_asked_about_and_written_again(self):
        program = self.changed_card()
        self.home.card(CARD).unlink()
        self.save_over(program, NO)
        self.assert_shown_changed(program)
        self.assertFalse(self.home.card(CARD).exists())
        self.save_over(program, YES)
        program.wait_for_title(rf"\( {CARD} \)$")
        self.assert_saved(CARD)
        self.leave(program)

    def test_the_question_at_the_end_leads_to_the_same_question(self):
        program = self.card_that_another_program_changed()
        program.close()
        program.answer(program.wait_for_box(rescuing.QUESTION), YES)
        program.answer(program.wait_for_box(BOX), NO)
        # The program didn't save, so it didn't close.
        self.assert_shown_changed(program)
        self.assertEqual(self.home.card(CARD).read_bytes(), self.theirs)


class FolderTrouble(rescuing.RescueTest):
    """Layout, settings or the whole folder are damaged or gone."""

    announced_error = "Error in "  # what can't be used is traced

    size_keys = itertools.cycle(("ctrl+minus", "ctrl+equal"))

    def changed_card(self):
        program = super().changed_card()
        self.options = self.home.data / "ZEV.Ini"
        self.layout = self.home.data / "Definitions.Ini"
        self.pdf = self.home.folder / "page.pdf"
        self.image = self.home.data / "card.gif"
        return program

    def zoom(self, program):
        before = desktop.screenshot().bytes
        program.press(next(self.size_keys))
        return before

    def zoom_without_a_box(self, program):
        before = self.zoom(program)
        desktop.wait_for("another size", lambda: desktop.screenshot().bytes != before)

    def zoom_and_be_told(self, program):
        self.zoom(program)
        program.answer(program.wait_for_box(BOX), "Return")
        self.assert_shown_changed(program)

    def print_and_export(self, program):
        """Neither of them tells again what the zoom told, or they wouldn't come to their ends."""
        program.press("ctrl+p")
        program.answer_prompt(self.pdf, PDF_BOX)
        desktop.wait_for("the page", lambda: self.pdf.exists() and
                         self.pdf.read_bytes()[-6:] == b"%%EOF\n")
        self.assert_shown_changed(program)
        program.choose_in_file_menu(EXPORT, "Right")
        program.answer_prompt(self.image.name, EXPORT_BOX)
        desktop.wait_for("the image", self.image.exists)
        self.assert_shown_changed(program)

    def assert_nothing_is_lost(self, program):
        self.save(program)
        self.assertEqual(self.home.records(CARD), (self.saved_marks | {self.mark},
                                                   self.saved_texts))
        self.leave(program)

    def test_a_deleted_layout_is_replaced_by_the_installed_one(self):
        program = self.changed_card()
        before = self.layout.read_bytes()
        self.layout.unlink()
        self.zoom_without_a_box(program)
        self.assert_shown_changed(program)
        desktop.wait_for("the layout", self.layout.exists)
        self.assertEqual(self.layout.read_bytes(), before)
        self.print_and_export(program)
        self.assert_nothing_is_lost(program)

    def test_a_damaged_layout_keeps_the_old_places(self):
        program = self.changed_card()
        whole = self.layout.read_bytes()
        for damaged in (b"rubbish\r\n1,2,3\r\n", whole[:3000], b""):
            self.layout.write_bytes(damaged)
            self.zoom_and_be_told(program)
            self.layout.write_bytes(whole)
            self.zoom_without_a_box(program)
            self.assert_shown_changed(program)
        self.layout.write_bytes(whole[:3000])
        self.zoom_and_be_told(program)
        self.print_and_export(program)
        self.assert_nothing_is_lost(program)

    def test_a_job_has_no_use_for_a_damaged_layout(self):
        program = self.changed_card()
        damaged = b"rubbish\r\n"
        self.layout.write_bytes(damaged)
        self.print_and_export(program)
        desktop.wait_for("the layout as it was", lambda: self.layout.read_bytes() == damaged)
        self.assert_nothing_is_lost(program)

    def test_settings_that_are_a_folder_stay_in_memory(self):
        program = self.changed_card()
        self.options.unlink()
        self.options.mkdir()
        self.zoom_and_be_told(program)
        self.print_and_export(program)
        self.save(program)
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks | {self.mark})

    def test_a_folder_that_goes_and_comes_back_costs_nothing(self):
        program = self.changed_card()
        away = self.home.data.with_name("away")
        self.home.data.rename(away)
        self.zoom_and_be_told(program)
        program.press("ctrl+p")
        program.answer_prompt(self.pdf, PDF_BOX)
        desktop.wait_for("the page", lambda: self.pdf.exists() and
                         self.pdf.read_bytes()[-6:] == b"%%EOF\n")
        self.assert_shown_changed(program)
        program.choose_in_file_menu(EXPORT, "Right")
        program.answer_prompt(self.image.name, EXPORT_BOX)
        program.answer(program.wait_for_box(BOX), "Return")
        self.assert_shown_changed(program)
        # The program doesn't make a new one in its place.
        self.assertFalse(self.home.data.exists())
        away.rename(self.home.data)
        self.zoom_without_a_box(program)
        self.pdf.unlink()
        self.print_and_export(program)
        self.assert_nothing_is_lost(program)

    def test_killed_without_its_folder_it_gives_the_card_back_when_that_is_there_again(self):
        program = self.changed_card()
        away = self.home.data.with_name("away")
        self.home.data.rename(away)
        self.zoom_and_be_told(program)
        program.kill()
        away.rename(self.home.data)
        self.assert_mark_comes_back()


if __name__ == "__main__":
    main()
