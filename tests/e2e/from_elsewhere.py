"""Cards from elsewhere: named on the command line as a file manager names them, or dropped."""

import shutil

import dragging
import whole_program
from whole_program import desktop

MIDDLE = (960, 540)


class FromElsewhere(whole_program.WholeProgramTest):
    def setUp(self):
        self.leave(self.start_for_the_first_time())
        self.folder = self.home.folder / "Down loads"
        self.folder.mkdir()

    def received(self, name):
        path = self.folder / f"{name}.zev"
        shutil.copyfile(self.home.card("Two Over One"), path)
        return path

    def start_with(self, argument, keys, title):
        program = self.start(argument, answers=[("^Zevlin$", keys)])
        program.wait_for_title(title)
        self.leave(program)

    def test_a_file_is_copied_and_opened_however_it_is_named(self):
        for number, name in enumerate(("Jones & Smith", "Müller 100%", "a#b"), start=1):
            path = self.received(name)
            quoted = str(path).replace("%", "%25").replace(" ", "%20").replace("#", "%23")
            for argument in str(path), f"file://{quoted}", f"Down loads/{name}.zev":
                self.start_with(argument, "Return", r"\( " + name + r"( \d)? \)$")
            for copy in name, f"{name} 2", f"{name} 3":
                self.assertEqual(self.home.card(copy).read_bytes(), path.read_bytes())
            self.assertEqual(len(list(self.home.data.glob("*.zev"))), 2 + 3 * number)

    def test_a_refused_file_leaves_a_blank_card(self):
        path = self.received("Jones")
        self.start_with(str(path), "Escape", r"\(unnamed\)$")
        path.write_bytes(b"Dear Joe,\r\n")
        self.start_with(str(path), "Return", r"\(unnamed\)$")
        self.assertFalse(self.home.card("Jones").exists())

    def test_a_card_of_the_data_folder_opens_at_once(self):
        link = self.folder / "link.zev"
        link.symlink_to(self.home.card("Two Over One"))
        for argument in str(link), str(self.home.card("Two Over One")):
            program = self.start(argument)
            program.wait_for_title(r"\( Two Over One \)$")
            self.leave(program)
        self.assertEqual(len(list(self.home.data.glob("*.zev"))), 2)

    def uri(self, path):
        return (path.as_uri() + "\r\n").encode()

    def test_a_dropped_file_is_copied_and_opened(self):
        program = self.start("Two Over One")
        program.wait_for_title(r"\( Two Over One \)$")
        path = self.received("Jones & Smith")
        self.assertTrue(dragging.drop(program.window, "text/uri-list", self.uri(path), *MIDDLE))
        box = program.wait_for_box("^Zevlin$")
        # Over an open box nothing can be dropped.
        self.assertFalse(dragging.drop(program.window, "text/uri-list", self.uri(path), *MIDDLE))
        program.answer(box, "Return")
        program.wait_for_title(r"\( Jones & Smith \)$")
        self.assertTrue(path.exists())
        self.assertFalse(dragging.drop(program.window, "text/plain", b"two clubs", *MIDDLE))
        self.assertFalse(dragging.drop(program.window, "text/uri-list", self.uri(self.folder),
                                       *MIDDLE))
        self.leave(program)

    def test_a_file_dropped_on_the_chooser_is_the_choice(self):
        program = self.start()
        program.wait_for_chooser()
        path = self.received("Jones")
        self.assertTrue(dragging.drop(program.window, "text/uri-list", self.uri(path), *MIDDLE))
        program.answer(program.wait_for_box("^Zevlin$"), "Return")
        program.wait_for_title(r"\( Jones \)$")
        desktop.wait_for("the copy", self.home.card("Jones").exists)
        self.leave(program)


if __name__ == "__main__":
    whole_program.main()
