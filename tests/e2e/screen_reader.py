"""The card through the eyes of a screen reader: its fields by their names, with neither mouse nor
place, over the system's own bus."""

import os
import subprocess

import whole_program
from whole_program import desktop


class Bus:
    """A session bus of the test's own. It must be there before the first question."""

    def __init__(self):
        self.process = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.address = self.process.stdout.readline().decode().strip()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.address


BUS = Bus()
import pyatspi  # noqa: E402
from gi.repository import GLib  # noqa: E402

CHECK_BOX, TEXT = pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TEXT


def parts_below(part):
    yield part
    for child in part:
        yield from parts_below(child)


class ScreenReaderTest(whole_program.WholeProgramTest):
    @classmethod
    def tearDownClass(cls):
        BUS.process.kill()
        BUS.process.wait()

    def start_and_listen(self):
        """The program with a blank card; what the screen reader knows of it."""
        self.home.environment = {"DBUS_SESSION_BUS_ADDRESS": BUS.address,
                                 "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        pyatspi.Registry.getDesktop(0)
        program = self.start_for_the_first_time()
        self.application = desktop.wait_for("the program on the bus", self.find_application)
        return program

    @staticmethod
    def find_application():
        found = [part for part in pyatspi.Registry.getDesktop(0) if part and part.name == "zevlin"]
        return found[0] if found else None

    def part(self, name, role=None):
        def found():
            for part in parts_below(self.application):
                # The name of a menu's row tells its key, too.
                if part.name.partition("\t")[0] == name and role in (None, part.getRole()):
                    return part
            return None
        return desktop.wait_for(f"a part with the name {name}", found)

    def fields(self):
        """All fields of the card, by name."""
        card = self.part("Convention card")
        fields = [field for section in card if section.getRole() == pyatspi.ROLE_PANEL
                  for field in section]
        return {field.name: field for field in fields}, len(fields)

    @staticmethod
    def act(part, number=0):
        part.queryAction().doAction(number)

    def act_without_answer(self, part):
        """What waits for the player answers too late, or when its part is gone."""
        try:
            self.act(part)
        except GLib.Error:
            pass

    def is_checked(self, part):
        return part.getState().contains(pyatspi.STATE_CHECKED)

    def save(self, name):
        """By the menu, in the panel that asks for a name."""
        self.act(self.part("File", pyatspi.ROLE_MENU_ITEM))
        self.act_without_answer(self.part("Save", pyatspi.ROLE_MENU_ITEM))
        self.part("Name of the card", TEXT).queryEditableText().setTextContents(name)
        panel = self.part("Name of the card", TEXT).parent
        self.act_without_answer(next(part for part in panel if part.name == "OK"))

    def test_a_whole_card_is_filled_in_saved_and_read(self):
        program = self.start_and_listen()
        fields, count = self.fields()
        self.assertEqual(len(fields), count)  # each has a name of its own
        marks, texts = desktop.layout_fields(self.home)
        self.assertEqual(count, len(marks) + len(texts))
        written = {}
        for number, field in enumerate(fields.values()):
            if field.getRole() == CHECK_BOX:
                self.act(field)
            else:
                written[field.name] = f"t{number}"
                field.queryEditableText().setTextContents(written[field.name])
        self.save("Read aloud")
        program.wait_for_title(r"\( Read aloud \)$")
        saved_marks, saved_texts = self.home.records("Read aloud")
        self.assertEqual(saved_marks, set(marks))
        self.assertEqual(sorted(saved_texts.values()), sorted(written.values()))
        for name, field in fields.items():
            if field.getRole() == CHECK_BOX:
                self.assertTrue(self.is_checked(field), name)
            else:
                self.assertEqual(field.queryText().getText(0, -1), written[name])
        self.leave(program)

    def test_what_changes_is_told(self):
        program = self.start_and_listen()
        fields, _ = self.fields()
        heard = []
        kinds = ("object:state-changed:checked", "object:state-changed:focused",
                 "object:text-changed:insert")
        pyatspi.Registry.registerEventListener(
            lambda event: heard.append((str(event.type), event.source.name)), *kinds)

        def hears(kind, name):
            def heard_it():
                GLib.MainContext.default().iteration(False)
                return (kind, name) in heard
            desktop.wait_for(f"{kind} of {name}", heard_it)

        stayman = "Notrump opening bids, 2 clubs Stayman"
        self.act(fields[stayman])
        hears("object:state-changed:checked", stayman)
        program.press("Tab")
        hears("object:state-changed:focused", "Notrump opening bids, 2 clubs Puppet Stayman")
        description = "General approach, description"
        fields[description].queryEditableText().setTextContents("4\u2665 up")
        hears("object:text-changed:insert", description)
        self.assertEqual(fields[description].queryText().getText(0, -1), "4 hearts up")
        one_notrump = "Notrump opening bids, 1 notrump, lowest points"
        self.act(fields[one_notrump])
        hears("object:state-changed:focused", one_notrump)
        program.press("1", "5", "Escape")
        hears("object:text-changed:insert", one_notrump)
        program.press("ctrl+z", "ctrl+z", "ctrl+z")
        desktop.wait_for("undo", lambda: not self.is_checked(fields[stayman]))
        self.assertEqual(fields[description].queryText().getText(0, -1), "")

    def test_a_field_lies_where_it_is_seen(self):
        program = self.start_and_listen()
        fields, _ = self.fields()
        for zoom in ("ctrl+0", "ctrl+minus"):
            program.press(zoom)
            mark = fields["Special doubles, negative"]
            before = self.place(mark)

            def is_stable():
                nonlocal before
                last, before = before, self.place(mark)
                return before == last
            desktop.wait_for("the end of the zoom", is_stable)
            left, top, width, height = before
            self.assertEqual(self.is_checked(mark), False)
            program.click(left + width / 2, top + height / 2)
            desktop.wait_for("the check", lambda: self.is_checked(mark))
            self.act(mark)

    @staticmethod
    def place(part):
        extents = part.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height


if __name__ == "__main__":
    whole_program.main()
