"""A start that can't go on says so, and tells whoever started the program by its exit code."""

import whole_program
from whole_program import FAILURE

BOX = "^Zevlin$"


class FailingStarts(whole_program.WholeProgramTest):
    announced_error = "Error in "  # the failure that ends the program is traced

    def setUp(self):
        super().setUp()
        self.leave(self.start_for_the_first_time())
        self.layout = self.home.data / "Definitions.Ini"

    def assert_start_fails(self, *answers):
        with self.assertRaisesRegex(RuntimeError, f"ended with code {FAILURE}$"):
            self.start(answers=answers)

    def start_and_be_told(self):
        self.assert_start_fails((BOX, "Escape"))

    def test_a_damaged_layout_ends_it(self):
        damaged = b"rubbish\r\n1,2,3\r\n"
        self.layout.write_bytes(damaged)
        self.start_and_be_told()
        self.assertEqual(self.layout.read_bytes(), damaged)

    def test_a_card_picture_that_is_none_ends_it(self):
        (self.home.data / "Convention card.gif").write_bytes(b"no picture")
        self.start_and_be_told()

    def test_a_layout_that_was_never_installed_ends_it(self):
        self.layout.unlink()
        for installed in self.home.installed.glob("Definitions.Ini.*"):
            installed.unlink()
        self.start_and_be_told()

    def test_a_layout_that_cant_be_read_ends_it_without_a_word(self):
        self.layout.unlink()
        self.layout.mkdir()
        self.assert_start_fails()


if __name__ == "__main__":
    whole_program.main()
