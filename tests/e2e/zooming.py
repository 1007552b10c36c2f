"""Zoom and fit in windows that fill the screen, and in others."""

import whole_program
import x11
from whole_program import desktop

IN, OUT, FIT = "ctrl+KP_Add", "ctrl+KP_Subtract", "ctrl+0"


def geometry(window):
    """Left, top, width and height on the screen."""
    shell = desktop.xdotool("getwindowgeometry", "--shell", window)
    lines = dict(line.split("=") for line in shell.split())
    return tuple(int(lines[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))


def states(window):
    return desktop.output_of("xprop", "-id", window, "_NET_WM_STATE").decode()


class Zooming(whole_program.WholeProgramTest):
    def change_state(self, program, action, state):
        before = geometry(program.window)
        x11.change_state(program.window, action, state)
        desktop.wait_for("the window's state", lambda: all(
            (name in states(program.window)) == (action == x11.ADD) for name in state) and
            geometry(program.window) != before)

    def zoom(self, program, keys):
        """The card behind the step, which must change its size."""
        before = desktop.Card(program).scale
        program.press(keys)
        desktop.wait_for("another size", lambda: desktop.Card(program).scale != before)
        return desktop.Card(program)

    def check_stays(self, state):
        program = self.start_for_the_first_time()
        self.zoom(program, OUT)
        normal = geometry(program.window)
        self.change_state(program, x11.ADD, state)
        before = geometry(program.window)
        for keys in (IN, OUT, OUT, FIT):
            card = self.zoom(program, keys)
            self.assertTrue(all(name in states(program.window) for name in state), keys)
            self.assertEqual(geometry(program.window), before, keys)
        mark = min(card.marks)
        card.click_mark(mark)
        program.wait_for_title(r"\*$")
        program.press("ctrl+s")
        program.answer_name("Full")
        program.wait_for_title(r"\( Full \)$")
        self.assertEqual(self.home.records("Full")[0], {mark})
        self.change_state(program, x11.REMOVE, state)
        desktop.wait_for("the place it had", lambda: geometry(program.window) == normal)
        return program

    def test_a_maximised_window_stays_and_its_card_changes(self):
        program = self.check_stays(x11.MAXIMISED)
        self.zoom(program, OUT)
        card = self.zoom(program, OUT)
        width = round(card.scale * desktop.DESIGN_WIDTH)
        desktop.wait_for("a window of the card's width",
                         lambda: geometry(program.window)[2] == width)

    def test_a_full_screen_window_stays_and_its_card_changes(self):
        self.check_stays(x11.FULL_SCREEN)


if __name__ == "__main__":
    whole_program.main()
