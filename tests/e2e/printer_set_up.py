"""The set-up of printers as a player goes through it, in the system's dialog and the program's own."""

import re

from whole_program import desktop

ROW = 7  # of the File menu
PRINTERS, PAPERS, TRAYS = 0.13, 0.32, 0.5  # the lists of the program's own, in parts of its height


def wait_until_painted():
    """A box takes keys only once it is whole."""
    looks = [b""]

    def is_calm():
        looks.append(desktop.screenshot().bytes)
        return looks[-1] == looks[-2]
    desktop.wait_for("the screen to come to rest", is_calm)


def choose_in_list(program, place, key):
    """In the list at a place of the program's own set-up."""
    box = program.wait_for_box("^Printer Setup$")
    shell = desktop.xdotool("getwindowgeometry", "--shell", box)
    width, height = (int(re.search(rf"{name}=(\d+)", shell)[1]) for name in ("WIDTH", "HEIGHT"))
    desktop.xdotool("mousemove", "--window", box, width // 2, round(height * place), "click", 1)
    wait_until_painted()
    desktop.xdotool("key", key, "Return")
    wait_until_painted()


def wait_until_told(home):
    """The settings tell what was set up."""
    desktop.wait_for("the facts", lambda: b"User selected" in
                     (home.data / "ZEV.Ini").read_bytes())
