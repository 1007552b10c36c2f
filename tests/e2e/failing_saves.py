"""A Save that fails: the program ends as told and the next start gives the card back; where not even
that is possible, it stays and says so."""

import contextlib
import ctypes
import os

import read_only
import rescuing
from rescuing import CARD
from whole_program import FAILURE, desktop, main

BOX = "^Zevlin$"
SAVE_AS = 3  # row of the File menu


class FailingSaveTest(rescuing.RescueTest):
    home_type = read_only.HomeOfAnOrdinaryUser

    def assert_save_ends_the_program(self, program):
        program.press("ctrl+s")
        self.assertEqual(program.wait_for_end(), FAILURE)
        self.assertTrue(self.is_mark_safe())

    def unwritable(self, path):
        """Takes the right to write away until the test's end."""
        before = path.stat().st_mode
        path.chmod(before & ~0o222)
        self.addCleanup(self.make_writable, path, before)

    @staticmethod
    def make_writable(path, mode):
        with contextlib.suppress(FileNotFoundError):
            path.chmod(mode)


class RefusedSaves(FailingSaveTest):
    announced_error = "Permission denied"

    def test_a_read_only_card_file_ends_it_and_costs_nothing(self):
        program = self.changed_card()
        self.unwritable(self.home.card(CARD))
        self.assert_save_ends_the_program(program)
        self.assert_file_is_as_it_was()
        self.home.card(CARD).chmod(0o644)
        self.assert_mark_comes_back()

    def test_yes_at_the_end_on_a_read_only_card_file_costs_nothing(self):
        program = self.changed_card()
        self.unwritable(self.home.card(CARD))
        program.close()
        program.answer(program.wait_for_box(rescuing.QUESTION), rescuing.YES)
        self.assertEqual(program.wait_for_end(), FAILURE)
        self.home.card(CARD).chmod(0o644)
        self.assert_mark_comes_back()

    def test_a_card_whose_file_is_still_read_only_comes_back_and_is_saved_by_another_name(self):
        program = self.changed_card()
        self.unwritable(self.home.card(CARD))
        self.assert_save_ends_the_program(program)
        again = self.assert_comes_back()
        again.choose_in_file_menu(SAVE_AS)
        again.answer_name("Elsewhere")
        again.wait_for_title(r"\( Elsewhere \)$")
        self.assertEqual(self.home.records("Elsewhere")[0], self.saved_marks | {self.mark})
        self.assert_file_is_as_it_was()
        self.assertEqual(self.journals(), [])

    def test_a_folder_that_is_gone_costs_nothing(self):
        program = self.changed_card()
        away = self.home.data.with_name("away")
        self.home.data.rename(away)
        program.press("ctrl+s")
        self.decide_on_a_card_without_its_file(program)
        self.assertEqual(program.wait_for_end(), FAILURE)
        self.assertTrue(self.is_mark_safe())
        away.rename(self.home.data)
        self.assert_mark_comes_back()

    def decide_on_a_card_without_its_file(self, program):
        """Its file has gone, with the folder; so the player is asked first."""
        box = program.wait_for_box(BOX)
        program.answer(box, rescuing.YES)

    def test_without_room_for_a_copy_either_it_stays_and_says_so(self):
        program = self.changed_card()
        self.wait_until_safe()
        # The journal can't take the last change any more.
        for path in (self.state, *self.state.iterdir()):
            self.unwritable(path)
        last = min(set(self.card.marks) - self.saved_marks - {self.mark})
        self.card.click_mark(last)
        self.unwritable(self.home.card(CARD))
        for _ in range(2):
            program.press("ctrl+s")
            program.answer(program.wait_for_box(BOX), "Return")
            self.assert_shown_changed(program)
            self.assert_file_is_as_it_was()
        # Once the file can be written, the save succeeds.
        self.home.card(CARD).chmod(0o644)
        program.press("ctrl+s")
        program.wait_for_title(rf"\( {CARD} \)$")
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks | {self.mark, last})
        self.leave(program)

class FullDisk(FailingSaveTest):
    announced_error = "Disk full"

    def setUp(self):
        """The data folder lies on a disk of its own, which others fill up."""
        super().setUp()
        try:
            self.disk = SmallDisk(self.home.data, kilobytes=512)
        except OSError as refusal:
            self.skipTest(f"no disk can be made here: {refusal}")
        self.addCleanup(self.disk.unmount)

    def test_a_save_ends_it_and_costs_nothing(self):
        program = self.changed_card()
        self.disk.fill()
        self.assert_save_ends_the_program(program)
        self.assert_file_is_as_it_was()
        self.disk.make_room()
        self.assert_mark_comes_back()

    def test_a_zoom_keeps_the_card_and_says_so(self):
        program = self.changed_card()
        self.disk.fill()
        program.press("ctrl+equal")
        program.answer(program.wait_for_box(BOX), "Return")
        self.assert_shown_changed(program)
        self.assert_file_is_as_it_was()
        self.disk.make_room()
        self.save(program)
        self.assertEqual(self.home.records(CARD)[0], self.saved_marks | {self.mark})
        self.leave(program)


class SmallDisk:
    """A folder whose files lie on a disk in memory from now on. Only this process and those that it
    starts see it."""

    OWN_MOUNTS = 0x20000  # for a process, rather than those of the system

    def __init__(self, folder, kilobytes):
        system = ctypes.CDLL(None, use_errno=True)
        if system.unshare(self.OWN_MOUNTS) != 0:
            raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))
        desktop.output_of("mount", "--make-rprivate", "/")
        self.folder = folder
        self.stuffing = folder / "stuffing"
        kept = {path.name: path.read_bytes() for path in folder.iterdir()}
        owner = folder.stat()
        desktop.output_of("mount", "-t", "tmpfs", "-o", f"size={kilobytes}k", "none", folder)
        for name, content in kept.items():
            (folder / name).write_bytes(content)
        for path in (folder, *folder.iterdir()):
            os.chown(path, owner.st_uid, owner.st_gid)

    def fill(self):
        with open(self.stuffing, "wb", buffering=0) as file, contextlib.suppress(OSError):
            while True:
                file.write(bytes(1024))

    def make_room(self):
        self.stuffing.unlink()

    def unmount(self):
        desktop.output_of("umount", "--lazy", self.folder)


if __name__ == "__main__":
    main()
