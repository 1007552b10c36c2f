"""The program through the eyes of a screen reader: fields, menus, boxes and panels by their names, with
neither mouse nor place, over the system's own bus."""

import re

import reader
import whole_program
from whole_program import desktop

pyatspi, GLib = reader.pyatspi, reader.GLib


class ReadProgram(desktop.Program):
    """Known and worked over the bus alone."""

    def answer_first_box(self):
        self.reader = reader.Reader(self.process)
        box = desktop.wait_for("the first box", lambda: self.reader.box("Zevlin"))
        self.first_text = box.description
        reader.act_without_answer(self.reader.part("OK", reader.BUTTON, box))

    def close_help(self):
        # Each command does.
        self.reader.choose("File", "New")

    def close(self):
        self.reader.choose("File", "Exit")


class ScreenReaderTest(whole_program.WholeProgramTest):
    program_type = ReadProgram

    @classmethod
    def tearDownClass(cls):
        reader.BUS.close()

    def start_and_listen(self):
        """The program with a blank card; what the screen reader knows of it."""
        self.home.environment = dict(reader.ENVIRONMENT)
        pyatspi.Registry.getDesktop(0)
        program = self.start_for_the_first_time()
        self.reader = program.reader
        return program

    @staticmethod
    def listen(*kinds):
        """From now on. Returns what waits until an event of the kind was heard from that name."""
        heard = []
        pyatspi.Registry.registerEventListener(
            lambda event: heard.append((str(event.type), event.source.name)), *kinds)

        def hears(kind, name):
            def heard_it():
                GLib.MainContext.default().iteration(False)
                return (kind, name) in heard
            desktop.wait_for(f"{kind} of {name}", heard_it)
        return hears

    def name_card(self, name):
        """In the panel that asks for a name."""
        box = self.reader.part("Name of the card", reader.TEXT)
        desktop.wait_for("the panel", lambda: reader.has_state(box, pyatspi.STATE_SHOWING))
        reader.write(box, name)
        reader.act_without_answer(self.reader.part("OK", reader.BUTTON, box.parent))

    def fill_in(self, fields):
        """All of them; the texts that were written."""
        written = {}
        for number, (name, field) in enumerate(fields.items()):
            if field.getRole() == reader.CHECK_BOX:
                reader.act(field)
            else:
                written[name] = f"t{number}"
                reader.write(field, written[name])
        return written

    def check_fields(self, fields, written, are_set):
        for name, field in fields.items():
            if field.getRole() == reader.CHECK_BOX:
                self.assertEqual(reader.is_checked(field), are_set, name)
            else:
                self.assertEqual(reader.text_of(field), written.get(name, ""), name)

    def print_card(self):
        """To a PDF file; the words on its page."""
        page = self.home.folder / "page.pdf"
        self.reader.choose("File", "Print card")
        dialog = desktop.wait_for("the question for a file",
                                  lambda: self.reader.box("Print to PDF: Read aloud"))
        reader.write(self.reader.part("File name:", reader.TEXT, dialog), str(page))
        reader.act_without_answer(self.reader.part("Save", reader.BUTTON, dialog))
        desktop.wait_for("the page",
                         lambda: page.exists() and page.read_bytes()[-6:] == b"%%EOF\n")
        return desktop.output_of("pdftotext", str(page), "-").decode().split()

    def test_a_whole_card_is_filled_in_saved_undone_redone_and_printed(self):
        program = self.start_and_listen()
        fields, count = self.reader.fields()
        self.assertEqual(len(fields), count)  # each has a name of its own
        marks, texts = desktop.layout_fields(self.home)
        self.assertEqual(count, len(marks) + len(texts))
        written = self.fill_in(fields)
        self.reader.choose("File", "Save")
        self.name_card("Read aloud")
        program.wait_for_title(r"\( Read aloud \)$")
        saved_marks, saved_texts = self.home.records("Read aloud")
        self.assertEqual(saved_marks, set(marks))
        self.assertEqual(sorted(saved_texts.values()), sorted(written.values()))
        self.check_fields(fields, written, True)

        for _ in fields:
            self.reader.choose("Edit", "Undo ")
        program.wait_for_title(r"\( Read aloud \) \*$")
        self.check_fields(fields, {}, False)
        for _ in fields:
            self.reader.choose("Edit", "Redo ")
        program.wait_for_title(r"\( Read aloud \)$")
        self.check_fields(fields, written, True)
        words = self.print_card()
        self.assertEqual([text for text in written.values() if text not in words], [])
        self.leave(program)

    def test_what_changes_is_told(self):
        program = self.start_and_listen()
        fields, _ = self.reader.fields()
        hears = self.listen("object:state-changed:checked", "object:state-changed:focused",
                            "object:state-changed:showing", "object:text-changed:insert")
        stayman = "Notrump opening bids, 2 clubs Stayman"
        reader.act(fields[stayman])
        hears("object:state-changed:checked", stayman)
        program.press("Tab")
        hears("object:state-changed:focused", "Notrump opening bids, 2 clubs Puppet Stayman")
        description = "General approach, description"
        reader.write(fields[description], "4\u2665 up")
        hears("object:text-changed:insert", description)
        self.assertEqual(reader.text_of(fields[description]), "4 hearts up")
        one_notrump = "Notrump opening bids, 1 notrump, lowest points"
        reader.act(fields[one_notrump])
        hears("object:state-changed:focused", one_notrump)
        program.press("1", "5", "Escape")
        hears("object:text-changed:insert", one_notrump)
        program.press("ctrl+z", "ctrl+z", "ctrl+z")
        desktop.wait_for("undo", lambda: not reader.is_checked(fields[stayman]))
        self.assertEqual(reader.text_of(fields[description]), "")
        program.press("F1", "Down")
        hears("object:state-changed:focused", "MOVING THE CARD WITH THE MOUSE")
        self.reader.choose("File", "Printer Setup")
        hears("object:state-changed:showing", "Finding Printers...")
        dialog = desktop.wait_for("the dialog", lambda: self.reader.box("Printer Setup"))
        reader.act_without_answer(self.reader.part("Cancel", reader.BUTTON, dialog))

    def test_panels_boxes_and_menus_are_known_by_name(self):
        program = self.start_and_listen()
        self.assertRegex(program.first_text, "^Your ZEV files have been moved to ")
        self.reader.choose("File", "Open")
        panel = self.reader.part("Choose a card", reader.DIALOG)
        desktop.wait_for("the panel", lambda: reader.has_state(panel, pyatspi.STATE_SHOWING))
        self.assertEqual(panel.description, "Select from list or enter a name for a new card")
        self.assertTrue(reader.has_state(self.reader.part("OK", reader.BUTTON, panel),
                                         pyatspi.STATE_IS_DEFAULT))
        reader.act(self.reader.part("Two Over One", reader.LIST_ITEM, panel))
        name = self.reader.part("Name of the card", reader.TEXT, panel)
        self.assertEqual(reader.text_of(name), "Two Over One")
        reader.act_without_answer(self.reader.part("OK", reader.BUTTON, panel))
        program.wait_for_title(r"\( Two Over One \)$")

        self.reader.choose("Options", "My Name")
        box = desktop.wait_for("the box", lambda: self.reader.box("My ID"))
        line = next(part for part in reader.parts_below(box) if part.getRole() == reader.TEXT)
        self.assertRegex(line.name, "^Enter your name ")
        reader.act_without_answer(self.reader.part("Cancel", reader.BUTTON, box))

        self.choose_color("Dark red")
        self.assertIn("ColorScheme=160", self.options())
        self.leave(program)

    def choose_color(self, name):
        self.reader.choose("Options", "Color Management")
        self.reader.choose_shown("Custom...")
        panel = self.reader.part("Color of marks and texts", reader.DIALOG)
        desktop.wait_for("the panel", lambda: reader.has_state(panel, pyatspi.STATE_SHOWING))
        sample = self.reader.part(name, pyatspi.ROLE_RADIO_BUTTON, panel)
        self.assertFalse(reader.is_checked(sample))
        reader.act(sample)
        desktop.wait_for("the colour", lambda: reader.is_checked(sample))
        reader.act_without_answer(self.reader.part("OK", reader.BUTTON, panel))
        desktop.wait_for("the colour's line", lambda: "ColorScheme=160" in self.options())

    def options(self):
        return re.sub(rb"\s", b"", (self.home.data / "ZEV.Ini").read_bytes()).decode("cp1252")

    def test_a_note_says_which_files_were_written(self):
        program = self.start_and_listen()
        hears = self.listen("object:state-changed:showing")
        self.reader.choose("File", "Print two cards")
        names = "Card.pdf", "Card.pdf, Card - partner.pdf"
        for name in names:
            program.answer(program.wait_for_box("Print to PDF"), "Return")
            hears("object:state-changed:showing", f"Written: {name}")
        note = self.reader.part(f"Written: {names[1]}", pyatspi.ROLE_NOTIFICATION)
        link = self.reader.part("Show in folder", reader.BUTTON, note)
        reader.act_without_answer(link)
        desktop.wait_for("the note to go",
                         lambda: not reader.has_state(note, pyatspi.STATE_SHOWING))

    def test_a_field_lies_where_it_is_seen(self):
        program = self.start_and_listen()
        fields, _ = self.reader.fields()
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
            self.assertEqual(reader.is_checked(mark), False)
            program.click(left + width / 2, top + height / 2)
            desktop.wait_for("the check", lambda: reader.is_checked(mark))
            reader.act(mark)

    @staticmethod
    def place(part):
        extents = part.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height


if __name__ == "__main__":
    whole_program.main()
