"""What a screen reader's client knows of the program, and does with it, over the system's own bus."""

import os
import subprocess

import whole_program  # noqa: F401 (where desktop lies)
import desktop


class Bus:
    """A session bus of the test's own. It must be there before the first question."""

    def __init__(self):
        self.process = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.address = self.process.stdout.readline().decode().strip()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.address

    def close(self):
        self.process.kill()
        self.process.wait()
        self.process.stdout.close()


BUS = Bus()
import pyatspi  # noqa: E402
from gi.repository import GLib  # noqa: E402

# By this the program talks on the bus.
ENVIRONMENT = {"DBUS_SESSION_BUS_ADDRESS": BUS.address, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
CHECK_BOX, TEXT, MENU_ITEM = pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TEXT, pyatspi.ROLE_MENU_ITEM
BUTTON, LIST_ITEM, DIALOG = pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_DIALOG


def parts_below(part):
    """Those that are shown at the moment or can be at any time, the part itself first."""
    yield part
    for child in part:
        if child:
            yield from parts_below(child)


def act(part, number=0):
    part.queryAction().doAction(number)


def act_without_answer(part):
    """What waits for the player answers too late, or when its part is gone."""
    try:
        act(part)
    except GLib.Error:
        pass


def has_state(part, state):
    return part.getState().contains(state)


def is_checked(part):
    return has_state(part, pyatspi.STATE_CHECKED)


def text_of(part):
    return part.queryText().getText(0, -1)


def write(part, text):
    part.queryEditableText().setTextContents(text)


class Reader:
    """One that has found the program of a process."""

    def __init__(self, process):
        self.application = desktop.wait_for("the program on the bus",
                                            lambda: self.find_application(process.pid))

    @staticmethod
    def find_application(process):
        found = [part for part in pyatspi.Registry.getDesktop(0)
                 if part and part.get_process_id() == process]
        return found[0] if found else None

    def found(self, name, role=None, within=None):
        """None if there is no such part at the moment."""
        try:
            for part in parts_below(within or self.application):
                if part.name == name and role in (None, part.getRole()):
                    return part
        except GLib.Error:
            pass  # it went while it was looked at
        return None

    def part(self, name, role=None, within=None):
        return desktop.wait_for(f"a part with the name {name}",
                                lambda: self.found(name, role, within))

    def title(self):
        """Of the program's window; empty while there is none."""
        frames = [part.name for part in self.application
                  if part and part.getRole() == pyatspi.ROLE_FRAME]
        return frames[0] if frames else ""

    def boxes(self):
        """The boxes and dialogs that are windows of their own."""
        return [part for part in self.application
                if part and part.getRole() in (DIALOG, pyatspi.ROLE_ALERT)]

    def box(self, title):
        """The one of this title; None if there is none."""
        return next((box for box in self.boxes() if box.name == title), None)

    def fields(self):
        """All fields of the card, by name."""
        card = self.part("Convention card")
        fields = [field for section in card if section.getRole() == pyatspi.ROLE_PANEL
                  for field in section]
        return {field.name: field for field in fields}, len(fields)

    def choose(self, menu, row):
        """A command of a menu; `row` is how its name begins."""
        entry = self.part(menu, MENU_ITEM)
        act(entry)
        self.choose_shown(row, entry)

    def choose_shown(self, row, within=None):
        """A row of a menu that is open."""
        def offered():
            return [part for part in parts_below(within or self.application)
                    if part.name.startswith(row) and part.getRole() == MENU_ITEM and
                    has_state(part, pyatspi.STATE_SHOWING)]
        act_without_answer(desktop.wait_for(f"the row {row}", offered)[0])
