"""Prints, exports and copies a filled-in card with the whole program, and looks at what others get:
a real print service, the page drawn by a PDF viewer, image files, another program's paste."""

import ctypes
import re
import socket
import threading
import time
import zlib

import clipboard_manager
import print_service
import whole_program
from whole_program import desktop

CARD = "Two Over One"
PRINT_BOTH, SETUP, EXPORT, COPY = 6, 7, 8, 10  # rows of the File menu
DOTS = 300  # per inch, at which pages are looked at
INCHES = 8.1
MARGIN = 0.125  # inches that the printers of the service can't reach


def page_picture(pdf):
    return desktop.Picture(desktop.output_of("pdftoppm", "-r", str(DOTS), "-singlefile", str(pdf)))


def is_dark(pixel):
    return max(pixel) < 110


def is_colored(pixel):
    return max(pixel) - min(pixel) > 60


class Page:
    """A printed page, its places told in design pixels of the card."""

    def __init__(self, pdf, margin):
        self.picture = page_picture(pdf)
        self.margin = margin * DOTS
        self.scale = INCHES * DOTS / desktop.DESIGN_WIDTH

    def pixels(self, place):
        left, top, width, height = (value * self.scale for value in place)
        rows = range(round(self.margin + top), round(self.margin + top + height))
        columns = range(round(self.margin + left), round(self.margin + left + width))
        return [self.picture.pixel(x, y) for y in rows for x in columns]

    def ink_columns(self):
        """The first and the last column of the page that holds ink."""
        middle = range(self.picture.height // 4, self.picture.height // 2, 3)
        inked = [x for x in range(self.picture.width)
                 if any(is_dark(self.picture.pixel(x, y)) for y in middle)]
        return inked[0], inked[-1]


class PrintingTest(whole_program.WholeProgramTest):
    def start_with_card(self):
        """The sample card with a mark that isn't set in it, on the screen."""
        self.leave(self.start_for_the_first_time())
        return self.start_again()

    def start_again(self):
        program = self.start(CARD)
        program.wait_for_title(rf"\( {CARD} \)$")
        desktop.wait_for("the card on the screen", lambda: desktop.Card(program).scale > 0)
        return program

    def check_page(self, pdf, margin):
        """Width, place, marks and texts of a page."""
        page = Page(pdf, margin)
        marks, texts = self.home.records(CARD)
        mark_places, text_places = desktop.layout_fields(self.home)
        image = desktop.picture_in(self.home.data / "card.bmp")
        middle = range(image.height // 4, image.height // 2, 3)
        inked = [x for x in range(image.width)
                 if any(is_dark(image.pixel(x, y)) for y in middle)]
        left, right = page.ink_columns()
        self.assertAlmostEqual(left, margin * DOTS + inked[0] * page.scale, delta=page.scale + 1)
        self.assertAlmostEqual(right - left, (inked[-1] - inked[0]) * page.scale,
                               delta=page.scale + 1)
        for number, place in mark_places.items():
            dark = sum(max(pixel) < 200 for pixel in page.pixels(place))
            if number in marks:
                self.assertGreater(dark, 25, f"mark {number} isn't printed")
        for number, text in texts.items():
            if text:
                self.assertTrue(any(min(pixel) < 150 for pixel in page.pixels(text_places[number])),
                                f"text {number} isn't printed")
        return page

    def export_bmp(self, program):
        """To compare pages with."""
        program.choose_in_file_menu(EXPORT, "Right", "Down", "Down")
        program.answer_prompt("card.bmp")
        desktop.wait_for("the image", (self.home.data / "card.bmp").exists)
        program.wait_for_title(rf"\( {CARD} \)$")


class Lookout:
    """Looks at a part of the screen at short intervals, which takes a library rather than a program.
    Looks are told apart by their sums."""

    ALL_PLANES = ctypes.c_ulong(-1)
    ROWS_OF_PIXELS = 2  # the format

    class Image(ctypes.Structure):
        _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("offset", ctypes.c_int),
                    ("format", ctypes.c_int), ("data", ctypes.POINTER(ctypes.c_char)),
                    ("order", ctypes.c_int * 4), ("depth", ctypes.c_int),
                    ("row_bytes", ctypes.c_int)]

    def __init__(self, left, top, width, height):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetImage.restype = ctypes.POINTER(self.Image)
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))
        self.place = (left, top, width, height)
        self.image = self.x11.XGetImage(self.display, self.root, *self.place, self.ALL_PLANES,
                                        self.ROWS_OF_PIXELS)

    def look(self):
        self.x11.XGetSubImage(self.display, self.root, *self.place, self.ALL_PLANES,
                              self.ROWS_OF_PIXELS, self.image, 0, 0)
        image = self.image.contents
        return zlib.crc32(ctypes.string_at(image.data, image.row_bytes * image.height))

    def looks_while(self, goes_on, interval=0.02):
        """What was seen as long as the condition held."""
        looks = []
        while goes_on():
            due = time.monotonic() + interval
            looks.append(self.look())
            time.sleep(max(0, due - time.monotonic()))
        return looks

    def close(self):
        self.x11.XCloseDisplay(self.display)


class PrintServiceTest(PrintingTest):
    def setUp(self):
        self.service = print_service.PrintService(self.home.folder.parent / "service")
        self.addCleanup(self.service.stop)
        self.home.environment["CUPS_SERVER"] = self.service.address

    def wait_for_pages(self, count):
        return desktop.wait_for(f"{count} printed pages",
                                lambda: len(self.service.pages()) >= count and self.service.pages())

    def test_prints_the_card_and_both_cards_in_colour(self):
        self.service.add("Office", default=True)
        program = self.start_with_card()
        self.export_bmp(program)
        program.press("ctrl+p")
        page = self.check_page(self.wait_for_pages(1)[0], MARGIN)
        self.assertTrue(any(is_colored(page.picture.pixel(x, y))
                            for y in range(0, page.picture.height, 4)
                            for x in range(0, page.picture.width, 4)))
        self.assertEqual((page.picture.width, page.picture.height), (2550, 3300))
        program.choose_in_file_menu(PRINT_BOTH)
        pages = self.wait_for_pages(3)
        self.assertEqual(len(pages), 3)
        # Above the time stamp.
        own, first, second = (page_picture(page).part(0, 0, 2550, 2400) for page in pages)
        self.assertEqual(own, first)
        self.assertNotEqual(first, second)
        self.leave(program)

    def test_the_picture_freezes_and_never_flickers(self):
        self.service.add("Office", default=True)
        program = self.start_with_card()
        card = desktop.Card(program)
        shell = desktop.xdotool("getwindowgeometry", "--shell", program.window)
        width, height = (int(re.search(rf"{name}=(\d+)", shell)[1])
                         for name in ("WIDTH", "HEIGHT"))
        # Begins at the menu bar.
        lookout = Lookout(round(card.left), round(card.top) - 20, width - 40, height - 60)
        self.addCleanup(lookout.close)
        frozen = lookout.look()
        key = threading.Thread(target=program.press, args=("ctrl+p",))
        key.start()
        during = lookout.looks_while(lambda: not self.service.pages())
        end = time.monotonic() + 1
        after = lookout.looks_while(lambda: time.monotonic() < end)
        key.join()
        looks = during + after
        # The restored card may have a new time stamp.
        restored = looks[-1]
        switch = looks.index(restored)
        self.assertGreater(len(during), 0)
        self.assertEqual(set(looks[:switch]), {frozen} if switch else set())
        self.assertEqual(set(looks[switch:]), {restored})
        print(f"{len(during)} and {len(after)} looks in and after the job")
        self.leave(program)

    def test_prints_grey_and_black_on_a_printer_without_colour(self):
        self.service.add("Laser", color=False, default=True)
        program = self.start_with_card()
        self.export_bmp(program)
        program.press("ctrl+p")
        page = self.check_page(self.wait_for_pages(1)[0], MARGIN)
        self.assertFalse(any(is_colored(page.picture.pixel(x, y))
                             for y in range(0, page.picture.height, 2)
                             for x in range(0, page.picture.width, 2)))
        self.leave(program)

    def answer_refusal(self, program):
        """The trace has the service's reason, for which the box has no room."""
        self.announced_error = "Error in PrintPictureBox at step 1200: 482, Printer error ("
        program.answer(program.wait_for_box("^Zevlin$"), "Return")
        self.assertIn(self.announced_error, self.home.trace())

    def test_tells_that_a_queue_rejects_jobs_and_prints_afterwards(self):
        self.service.add("Office", default=True)
        program = self.start_with_card()
        self.service.reject("Office")
        before = desktop.screenshot()
        program.press("ctrl+p")
        self.answer_refusal(program)
        self.assertIn("not accepting jobs", self.home.trace())
        self.assertEqual(self.service.pages(), [])
        self.service.accept("Office")
        desktop.wait_for("the card as it was", lambda: desktop.screenshot().bytes == before.bytes)
        program.press("ctrl+p")
        self.wait_for_pages(1)
        self.leave(program)

    def test_tells_that_the_printer_is_gone_and_prints_when_it_is_back(self):
        self.service.add("Office", default=True)
        program = self.start_with_card()
        program.press("ctrl+p")
        self.wait_for_pages(1)
        self.service.remove("Office")
        program.press("ctrl+p")
        self.answer_refusal(program)
        self.service.add("Office", default=True)
        program.press("ctrl+p")
        self.wait_for_pages(2)
        self.leave(program)

    def test_the_set_up_shows_the_printers_of_the_service(self):
        self.service.add("Office", default=True)
        self.service.add("Laser", color=False)
        program = self.start_with_card()
        program.choose_in_file_menu(SETUP)
        box = program.wait_for_box("^Printer Setup$")
        program.answer(box, "Escape")
        self.assertNotIn("User selected", (self.home.data / "ZEV.Ini").read_text("cp1252"))
        program.choose_in_file_menu(SETUP)
        program.answer(program.wait_for_box("^Printer Setup$"), "Return")
        desktop.wait_for("the facts", lambda: "User selected" in
                         (self.home.data / "ZEV.Ini").read_text("cp1252"))
        self.assertIn("Printer=Office", (self.home.data / "ZEV.Ini").read_text("cp1252"))
        program.press("ctrl+p")
        self.wait_for_pages(1)
        self.leave(program)


class SilentServiceTest(PrintingTest):
    """A print service that takes calls and never answers."""

    def setUp(self):
        service = socket.create_server(("127.0.0.1", 0))
        self.addCleanup(service.close)
        self.home.environment["CUPS_SERVER"] = f"127.0.0.1:{service.getsockname()[1]}"

    def test_a_copy_needs_no_answer(self):
        program = self.start_with_card()
        program.choose_in_file_menu(COPY)
        desktop.wait_for("the picture on the clipboard",
                         lambda: desktop.picture_on_clipboard("png"))
        self.leave(program)

    def test_a_start_with_the_alternate_method_needs_no_answer(self):
        self.leave(self.start_for_the_first_time())
        options = self.home.data / "ZEV.Ini"
        settings = options.read_bytes().replace(b"PrintAlt=0", b"PrintAlt=1")
        options.write_bytes(re.sub(rb"\r\nPrinter=[^\r]*", b"\r\nPrinter=Cellar", settings))
        program = self.start_again()
        program.press("ctrl+KP_Add")
        desktop.wait_for("the zoom", lambda: b"\r\nFit=0 " in options.read_bytes())
        self.assertIn(b"\r\nPrintAlt=1 ", options.read_bytes())
        self.assertIn(b"\r\nPrinter=Cellar ", options.read_bytes())
        self.leave(program)


class FilesTest(PrintingTest):
    def test_prints_to_a_file_without_a_service_and_without_flicker(self):
        program = self.start_with_card()
        self.export_bmp(program)
        pdf = self.home.folder / "page.pdf"
        program.press("ctrl+p")
        program.answer_prompt(pdf, "^Print to PDF: ")
        desktop.wait_for("the page", lambda: pdf.exists() and pdf.read_bytes()[-6:] == b"%%EOF\n")
        self.check_page(pdf, 0)
        self.assertLess(pdf.stat().st_size, 150000)
        self.assertEqual(self.pictures_in(pdf), [])
        words = desktop.output_of("pdftotext", str(pdf), "-").decode()
        for text in ("NAMES", "from 4♥ up", "GENERAL APPROACH", "Two Over One", "Jacoby"):
            self.assertIn(text, words)
        fonts = desktop.output_of("pdffonts", str(pdf)).decode().splitlines()[2:]
        self.assertGreater(len(fonts), 3)
        for font in fonts:  # embedded, in part, with their characters
            self.assertEqual(font.split()[-5:-2], ["yes", "no", "yes"], font)
        self.leave(program)

    def test_the_alternate_method_prints_one_picture(self):
        self.leave(self.start_for_the_first_time())
        options = self.home.data / "ZEV.Ini"
        options.write_bytes(options.read_bytes().replace(b"PrintAlt=0", b"PrintAlt=1"))
        program = self.start_again()
        pdf = self.home.folder / "page.pdf"
        program.press("ctrl+p")
        program.answer_prompt(pdf, "^Print to PDF: ")
        desktop.wait_for("the page", lambda: pdf.exists() and pdf.read_bytes()[-6:] == b"%%EOF\n")
        pictures = self.pictures_in(pdf)
        self.assertEqual(len(pictures), 1)
        self.assertEqual(pictures[0][3:5], ["1198", "1244"])
        self.assertEqual(pictures[0][8], "image")  # neither JPEG nor any other lossy coding
        self.leave(program)

    def pictures_in(self, pdf):
        listing = desktop.output_of("pdfimages", "-list", str(pdf)).decode().splitlines()[2:]
        return [line.split() for line in listing]

    def test_the_screen_never_flickers_in_a_job(self):
        program = self.start_with_card()
        card = desktop.Card(program)
        part = (round(card.left), round(card.top), 700, 500)
        before = desktop.screenshot().part(*part)
        options = self.home.data / "ZEV.Ini"
        written = options.stat().st_mtime_ns
        program.press("alt+f", *["Down"] * COPY)
        desktop.wait_for("the menu", lambda: desktop.screenshot().part(*part) != before)
        program.press("Return")
        looks = [desktop.screenshot().part(*part) for _ in range(25)]
        self.assertNotEqual(options.stat().st_mtime_ns, written)
        # The menu may still be on the first ones.
        shown = looks.index(before)
        self.assertLess(shown, 10)
        self.assertEqual(looks[shown:], [before] * (25 - shown))
        self.leave(program)

    def test_another_program_pastes_the_picture(self):
        program = self.start_with_card()
        self.export_bmp(program)
        program.choose_in_file_menu(COPY)
        pasted = self.home.folder / "pasted.png"
        pasted.write_bytes(desktop.wait_for("the picture on the clipboard",
                                            lambda: desktop.picture_on_clipboard("png")))
        left, right = desktop.picture_in(pasted), desktop.picture_in(self.home.data / "card.bmp")
        self.assertEqual((left.width, left.height), (right.width, right.height))
        above_stamp = left.height - 40
        self.assertEqual(left.part(0, 0, left.width, above_stamp),
                         right.part(0, 0, right.width, above_stamp))
        self.leave(program)

    def test_a_clipboard_manager_keeps_the_picture_when_the_program_ends(self):
        manager = clipboard_manager.ClipboardManager()
        program = self.start_with_card()
        program.choose_in_file_menu(COPY)
        desktop.wait_for("the picture on the clipboard",
                         lambda: desktop.picture_on_clipboard("png"))
        self.leave(program)
        self.assertIsNotNone(manager.picture)
        kept = self.home.folder / "kept.png"
        kept.write_bytes(manager.picture)
        self.assertEqual(desktop.picture_in(kept).width, 1198)

    def test_image_files_are_read_by_others(self):
        """The ending of a name that holds the chosen one decides the format."""
        program = self.start_with_card()
        self.export_bmp(program)
        for downs, name in ((0, "card.gif"), (1, "card.png"), (0, "card.gif.jpg")):
            program.choose_in_file_menu(EXPORT, "Right", *["Down"] * downs)
            program.answer_prompt(name)
            desktop.wait_for(name, (self.home.data / name).exists)
        formats = {"card.gif": "GIF", "card.bmp": "BMP", "card.png": "PNG", "card.gif.jpg": "JPEG"}
        for name, kind in formats.items():
            told = desktop.output_of("identify", "-format", "%m %w", str(self.home.data / name))
            self.assertRegex(told.decode(), f"^{kind}3? 1198$")
        gif = desktop.picture_in(self.home.data / "card.gif")
        bmp = desktop.picture_in(self.home.data / "card.bmp")
        length = 3 * gif.width * (gif.height - 40)
        self.assertLessEqual(max(abs(a - b) for a, b in zip(gif.bytes[:length],
                                                            bmp.bytes[:length])), 8)
        self.leave(program)


if __name__ == "__main__":
    whole_program.main()
