"""The whole card filled in by keyboard, along the walk from its first field to its last."""

import itertools

import whole_program
from whole_program import desktop

FIRST = 1           # the field in the card's upper left, where the walk begins and ends
FIRST_MARK = 1000   # a mark's number in the walk is above this
SUITS = {"F5": "^c", "F6": "^d", "F7": "^h", "F8": "^s"}


class ByKeyboard(whole_program.WholeProgramTest):
    def test_the_whole_card_can_be_filled_in(self):
        program = self.start_for_the_first_time()
        walk = self.walk()
        self.assertGreater(len(walk), 200)
        filled = self.fill_in(program, walk)
        self.assertEqual(filled, set(desktop.layout_fields(self.home)[1]))

    def test_the_walk_finds_its_fields_on_a_magnified_screen(self):
        self.fill_in(self.start_for_the_first_time(magnified=1.5), self.walk()[:60])

    def fill_in(self, program, walk):
        """Fills in the fields of the walk, saves, and compares; the text areas that it filled."""
        keys, marks, texts = self.filling_in(walk)
        # The walk begins at the field that is clicked; from here on only keys are used.
        desktop.Card(program).click_text(walk[0])
        self.press_slowly(keys)
        program.press("Escape", "ctrl+s")
        desktop.wait_for("the end of the walk", program.shows_chooser, 120)
        program.answer_name("By keyboard")
        program.wait_for_title(r"\( By keyboard \)$")
        saved_marks, saved_texts = self.home.records("By keyboard")
        self.assertEqual(saved_marks, marks)
        self.assertEqual({key: value for key, value in saved_texts.items() if value}, texts)
        return set(texts)

    def test_shift_and_tab_lead_back_to_where_the_walk_began(self):
        program = self.start_for_the_first_time()
        walk = self.walk()[:20]
        desktop.Card(program).click_text(walk[0])
        self.press_slowly(["Tab"] * 19 + ["shift+Tab"] * 19 + ["b", "a", "c", "k"])
        program.press("Escape", "ctrl+s")
        program.answer_name("Back")
        program.wait_for_title(r"\( Back \)$")
        marks, texts = self.home.records("Back")
        self.assertEqual(marks, set())
        self.assertEqual({key: value for key, value in texts.items() if value}, {FIRST: "back"})

    def walk(self):
        """The items in the order in which TAB visits them."""
        following = self.home.tab_pairs()
        items = [FIRST]
        while following[items[-1]] != FIRST:
            items.append(following[items[-1]])
        return items

    @staticmethod
    def filling_in(walk):
        """The keys that fill in all fields but some of the marks, and what the card then holds."""
        keys, marks, texts = [], set(), {}
        suits = itertools.cycle(SUITS)
        for item in walk:
            if item > FIRST_MARK:
                if item % 4:
                    keys.append("space")
                    marks.add(item - FIRST_MARK)
            else:
                suit = next(suits)
                keys += [*str(item), "x", suit]
                texts[item] = f"{item}x{SUITS[suit]}"
            keys.append("Tab")
        return keys[:-1], marks, texts

    @staticmethod
    def press_slowly(keys):
        """A key each 10 milliseconds: faster, two strokes would count as one that is held."""
        for start in range(0, len(keys), 200):
            desktop.xdotool("key", "--delay", 10, *keys[start:start + 200])


if __name__ == "__main__":
    whole_program.main()
