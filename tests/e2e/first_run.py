"""The first start of a fresh installation, and the second one."""

import whole_program
from whole_program import desktop


class FirstRun(whole_program.WholeProgramTest):
    def test_makes_the_data_folder_and_moves_the_players_files_there(self):
        samples = sorted(path.name for path in self.home.installed.glob("*.zev"))
        self.assertEqual(len(samples), 2)
        program = self.start_for_the_first_time()
        self.leave(program)
        for name in ("Definitions.Ini", "ZEV.Ini", "Readme.txt", *samples):
            self.assertTrue((self.home.data / name).is_file(), name)
        left = sorted(path.name for path in self.home.installed.iterdir())
        self.assertEqual(left, ["Definitions.Ini.12", "Definitions.Ini.13", "Definitions.Ini.15",
                                "Readme.txt"])

    def test_lays_the_help_page_over_the_card_and_escape_closes_it(self):
        program = self.start()
        desktop.wait_for("the options file", (self.home.data / "ZEV.Ini").exists)
        program.wait_for_title(r"\(unnamed\)$")
        card = desktop.Card(program)
        mark = min(card.marks)
        # The card takes no clicks while the page is there.
        page = self.shown_when_still()
        card.click_mark(mark)
        program.press("Escape")
        desktop.wait_for("the page to go", lambda: self.middle(desktop.screenshot()) != page)
        self.assertRegex(program.title(), r"\(unnamed\)$")
        card.click_mark(mark)
        program.wait_for_title(r"\*$")

    def test_turns_fit_to_width_on(self):
        program = self.start_for_the_first_time()
        self.leave(program)
        options = (self.home.data / "ZEV.Ini").read_text("cp1252")
        self.assertRegex(options, r"(?m)^Fit=1 ")

    def test_is_told_from_the_second_one(self):
        self.leave(self.start_for_the_first_time())
        before = {path.name: path.stat().st_mtime for path in self.home.data.glob("*.zev")}
        program = self.start("Two Over One")
        program.wait_for_title(r"\( Two Over One \)$")
        # No page lies over the card: a mark can be clicked at once.
        card = desktop.Card(program)
        card.click_mark(min(card.marks))
        program.wait_for_title(r"\*$")
        after = {path.name: path.stat().st_mtime for path in self.home.data.glob("*.zev")}
        self.assertEqual(before, after)

    @staticmethod
    def middle(picture):
        return picture.part(picture.width // 2 - 200, picture.height // 2 - 200, 400, 400)

    def shown_when_still(self):
        """The middle of the screen once two looks at it agree."""
        looks = [None]

        def still():
            looks.append(self.middle(desktop.screenshot()))
            return looks[-1] if looks[-1] == looks[-2] else None
        return desktop.wait_for("a still picture", still)


if __name__ == "__main__":
    whole_program.main()
