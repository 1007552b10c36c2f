"""Changing the layout: a mark is moved and recoloured, a text area added, the design saved."""

import whole_program
from whole_program import desktop

RED = 2


class Designing(whole_program.WholeProgramTest):
    def test_a_mark_that_was_moved_and_saved_is_set_at_its_new_place(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        mark = self.lonely_mark(card)
        left, top = card.marks[mark][:2]
        program.press("ctrl+shift+d")
        self.drag(card, card.marks[mark], 40, 25)
        self.save_design(program, lambda: self.mark(mark)[0] != left)
        moved = self.mark(mark)
        self.assertAlmostEqual(moved[0], left + 40 / card.scale, delta=1)
        self.assertAlmostEqual(moved[1], top + 25 / card.scale, delta=1)
        program.press("ctrl+shift+d")
        card.marks[mark] = moved
        card.click_mark(mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.answer_name("Moved")
        program.wait_for_title(r"\( Moved \)$")
        self.assertEqual(self.home.records("Moved")[0], {mark})

    def test_a_text_area_is_added_by_the_right_button(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        number = max(card.texts) + 1
        program.press("ctrl+shift+d")
        # The last of the shapes, above the three commands that end the menu.
        program.press("alt+d", "Up", "Up", "Up", "Up", "Return")
        left, top, width, height = card.box(card.texts[min(card.texts)])
        x, y = round(card.left) + 2, top + height
        desktop.xdotool("mousemove", x, y, "mousedown", 3, "mousemove", x + 30, y,
                        "mousemove", x + 60, y, "mouseup", 3)
        self.save_design(program,
                         lambda: number in desktop.layout_fields(self.home)[1])
        place = desktop.layout_fields(self.home)[1][number]
        self.assertAlmostEqual(place[2], 60 / card.scale, delta=1)

    def test_a_colour_is_chosen_in_the_pop_up_of_a_mark(self):
        program = self.start_for_the_first_time()
        card = desktop.Card(program)
        mark = next(number for number in card.marks if self.color(number) != RED)
        program.press("ctrl+shift+d")
        card.click(card.marks[mark], button=3)
        program.press("Down", "Down", "Return")
        self.save_design(program, lambda: self.color(mark) == RED)

    def lonely_mark(self, card):
        """A mark with room to its right and below, so that a drag ends on nothing else."""
        def overlaps(place, other):
            return (place[0] < other[0] + other[2] and other[0] < place[0] + place[2]
                    and place[1] < other[1] + other[3] and other[1] < place[1] + place[3])
        others = list(card.texts.values())
        for number, (left, top, width, height) in card.marks.items():
            area = (left, top, width + 60 / card.scale, height + 45 / card.scale)
            marks = [place for key, place in card.marks.items() if key != number]
            if top * card.scale < 400 and not any(overlaps(area, other)
                                                  for other in others + marks):
                return number
        return min(card.marks)

    def drag(self, card, place, across, down):
        left, top, width, height = card.box(place)
        x, y = round(left + 0.4 * width), round(top + 0.5 * height)
        desktop.xdotool("mousemove", x, y, "mousedown", 1, "mousemove", x + across // 2, y,
                        "mousemove", x + across, y + down, "mouseup", 1)

    def save_design(self, program, is_saved):
        program.press("alt+d", "Up", "Return")
        desktop.wait_for("the layout's file", lambda: value_or_none(is_saved))

    def mark(self, number):
        return desktop.layout_fields(self.home)[0][number]

    def color(self, number):
        """1 black, 2 red, 3 blue."""
        lines = (self.home.data / "Definitions.Ini").read_bytes().decode("cp1252").split("\r\n")
        records = [line.split(",") for line in lines if line and not line.startswith("'")]
        return int(records[4 + number][5])


def value_or_none(condition):
    """The file is looked at while it is being written."""
    try:
        return condition()
    except (IndexError, KeyError, ValueError):
        return None


if __name__ == "__main__":
    whole_program.main()
