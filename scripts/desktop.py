"""Drives the staged program from outside, with mouse and keys, as a player does.

For the demonstration and for the whole-program tests; both run below scripts/virtual_display. It
waits by looking again and again for what must happen, never for a fixed time.
"""

import os
import pathlib
import re
import shutil
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
STAGE = pathlib.Path(os.environ.get("ZEVLIN_BUILD", ROOT / "build" / "release")) / "stage"
DESIGN_WIDTH = 1198  # pixels of the card for which a layout gives the places
TWIPS_PER_INCH = 1440
ATTEMPTS = 10  # to give a window the focus
CHOOSER_TITLE = r" - (Open an existing card file|Save this card)$"


def value_within(seconds, condition):
    """The condition's value as soon as it is true; None if it doesn't come true in time."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.03)
    return None


def wait_for(what, condition, seconds=60):
    """The condition's value as soon as it is true; an error that says what was missed."""
    value = value_within(seconds, condition)
    if not value:
        raise TimeoutError(f"waited {seconds} seconds in vain for {what}")
    return value


def output_of(*command):
    return subprocess.run(command, capture_output=True, check=True, timeout=20).stdout


def xdotool(*arguments):
    return output_of("xdotool", *map(str, arguments)).decode()


def window_in_focus():
    """The window that gets the keys; empty while none does."""
    found = subprocess.run(["xdotool", "getwindowfocus"], capture_output=True, timeout=20)
    return found.stdout.decode().strip()


class Picture:
    """A screenshot: the colours of its pixels as three bytes each."""

    def __init__(self, data):
        header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+255\s", data)
        self.width, self.height = int(header[1]), int(header[2])
        self.bytes = data[header.end():]

    def pixel(self, x, y):
        start = 3 * (y * self.width + x)
        return self.bytes[start:start + 3]

    def part(self, left, top, width, height):
        """The bytes of a rectangle, to be compared with those of another picture."""
        rows = (3 * (y * self.width + left) for y in range(top, top + height))
        return b"".join(self.bytes[start:start + 3 * width] for start in rows)


def screenshot():
    return Picture(output_of("import", "-silent", "-window", "root", "-depth", "8", "ppm:-"))


def picture_in(path):
    """The picture in a file, as another program reads it."""
    return Picture(output_of("convert", str(path), "-depth", "8", "ppm:-"))


def picture_on_clipboard(kind):
    """The bytes of the picture, as another program gets them that asks for that kind; else None."""
    try:
        return output_of("xclip", "-selection", "clipboard", "-t", f"image/{kind}", "-o")
    except (subprocess.CalledProcessError, subprocess.TimeoutExpired):
        return None


def save_screenshot(path):
    output_of("import", "-silent", "-window", "root", str(path))


class Home:
    """A home folder of its own with the program in it, as that of a player who has just installed
    the program and never started it."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.data = self.folder / "Documents" / "ZEV"
        self.program = self.folder / "program"
        self.installed = self.program / "zevlin-files"
        self.focuses_itself = False  # whether the windows decide when they take the focus
        self.clipboard_kind = "png"  # of the pictures that the program's system hands on
        self.environment = {}  # variables for the program beside the usual ones
        self.install()

    def install(self):
        # The first start moves files out of the program's folder, so each home needs its own copy.
        shutil.copytree(STAGE, self.program)
        self.runtime = self.folder / "run"
        self.runtime.mkdir(mode=0o700)

    def command(self):
        """What starts the program, without its arguments."""
        return [self.program / "zevlin"]

    def named(self, path):
        """A file as the program would name it."""
        return str(path)

    def opening(self, name):
        """The argument that opens a card."""
        return name

    def usual_environment(self):
        return {"HOME": str(self.folder), "PATH": "/usr/bin:/bin", "LANG": "C.UTF-8",
                "DISPLAY": os.environ["DISPLAY"], "QT_QPA_PLATFORM": "xcb",
                "XDG_RUNTIME_DIR": str(self.runtime)}

    def card(self, name):
        return self.data / f"{name}.zev"

    def records(self, name):
        """What a card file holds: the set marks, and the texts by field number."""
        lines = self.card(name).read_bytes().decode("cp1252").split("\r\n")
        records = [line for line in lines if line and not line.startswith("'")]
        marks = int(records[1])
        fields = [line.split(",") for line in records[2:2 + marks]]
        texts = (re.fullmatch(r'(\d+),"(.*)",(\d+)', line) for line in records[3 + marks:])
        return ({int(number) for number, state, _ in fields if state == "1"},
                {int(text[1]): text[2] for text in texts})

    def tab_pairs(self):
        """The TAB sequence: for each field the next one, marks as their number plus 1000."""
        lines = (self.data / "Definitions.Ini").read_bytes().decode("cp1252").split("\r\n")
        records = [line.split(",") for line in lines if line and not line.startswith("'")]
        last = max(index for index, record in enumerate(records) if len(record) == 1)
        return {int(field): int(following) for field, following in records[last + 1:]}

    def trace(self):
        path = self.data / "Trace.txt"
        return path.read_bytes().decode("cp1252") if path.exists() else ""


def layout_fields(home):
    """The places of marks and texts by number: left, top, width, height at design size."""
    lines = (home.data / "Definitions.Ini").read_bytes().decode("cp1252").split("\r\n")
    records = [line.split(",") for line in lines if line and not line.startswith("'")]
    marks = int(records[4][0])
    texts = int(records[5 + marks][0])

    def places(part):
        return {int(record[0]): tuple(float(value) for value in record[1:5]) for record in part}
    return places(records[5:5 + marks]), places(records[6 + marks:6 + marks + texts])


class Program:
    """The program in a home, from its start to its end. A start without a card's name must be the
    first one in its home, or get a card back; others ask for a card. `answers` are the titles of the
    boxes that come before the window, each with what answers it."""

    def __init__(self, home, *arguments, dots_per_inch=96, magnified=1, answers=()):
        self.home = home
        self.twips = round(TWIPS_PER_INCH / dots_per_inch) / magnified  # of a pixel of the screen
        self.window = None
        is_first = not home.data.exists()
        environment = home.usual_environment() | {"QT_SCALE_FACTOR": str(magnified)}
        if dots_per_inch != 96:
            # Without these a finer screen would be magnified, and still count as one of 96.
            environment |= {"QT_FONT_DPI": str(dots_per_inch), "QT_ENABLE_HIGHDPI_SCALING": "0"}
        # No print service but one that a test starts.
        environment |= {"CUPS_SERVER": "127.0.0.1:1"} | home.environment
        self.process = subprocess.Popen([*home.command(), *arguments], env=environment,
                                        cwd=home.folder)
        try:
            self.come_up(is_first, answers)
        except Exception:
            self.kill()
            raise

    def come_up(self, is_first, answers):
        if is_first:
            self.answer_first_box()
        for title, keys in answers:
            self.answer(self.wait_for_box(title), keys)
        self.window = wait_for("the program's window", lambda: self.windows(r"^Zevlin  ?[-(]"))[0]

    def answer_first_box(self):
        """It says that the player's files were moved to the data folder."""
        self.answer(self.wait_for_box("^Zevlin$"), "Return")

    def close_help(self):
        self.press("Escape")

    def place(self):
        """Left, top and width of what is inside the window's frame, in pixels of the screen."""
        shell = xdotool("getwindowgeometry", "--shell", self.window)
        return tuple(int(re.search(rf"^{name}=(-?\d+)", shell, re.MULTILINE)[1])
                     for name in ("X", "Y", "WIDTH"))

    def windows(self, title="."):
        if not self.is_running():
            raise RuntimeError(f"the program ended with code {self.process.returncode}")
        found = subprocess.run(["xdotool", "search", "--all", "--onlyvisible", "--pid",
                                str(self.process.pid), "--name", title],
                               capture_output=True, timeout=20)
        return found.stdout.decode().split()

    def title(self):
        return xdotool("getwindowname", self.window).strip()

    def wait_for_title(self, pattern):
        return wait_for(f"a title like {pattern}", lambda: re.search(pattern, self.title()))

    def focus(self, window):
        """Sees to it that a window gets the keys."""
        if self.home.focuses_itself:
            self.await_focus(lambda: window_in_focus() == window, window)
        else:
            xdotool("windowfocus", "--sync", window)

    @staticmethod
    def await_focus(has_focus, window):
        """The window behind a box that closes is still disabled and refuses the focus when it is
        offered: then it is offered again."""
        for _ in range(ATTEMPTS):
            if value_within(2, has_focus):
                return
            # The window may be gone by then.
            subprocess.run(["xdotool", "windowactivate", window], capture_output=True, timeout=20)
        raise TimeoutError("no window takes the keys")

    def press(self, *keys):
        self.await_window()
        xdotool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self.await_window()
        xdotool("type", "--delay", 15, text)

    def await_window(self):
        """Keys that come between a box and the window behind it get lost."""
        if self.home.focuses_itself:
            self.focus(self.window)

    def click(self, x, y, button=1):
        xdotool("mousemove", round(x), round(y), "click", button)

    def boxes(self, title="."):
        """The windows that the program shows beside its main one."""
        return [window for window in self.windows(title) if window != self.window]

    def wait_for_box(self, title="."):
        if self.home.focuses_itself:
            return self.wait_for_focused_box(title)
        return wait_for(f"a box {title}", lambda: self.boxes(title))[0]

    def wait_for_focused_box(self, title):
        """A menu is a window there, too, but the keys don't go to it."""
        def focused():
            now = window_in_focus()
            return [box for box in self.boxes(title) if box == now]
        for _ in range(3 * ATTEMPTS):
            found = value_within(2, focused)
            if found:
                return found[0]
            for box in self.boxes(title):
                # The window manager may have forgotten to give it the focus. The box may be gone by
                # then.
                subprocess.run(["xdotool", "windowactivate", box], capture_output=True, timeout=20)
        raise TimeoutError(f"waited in vain for a box {title} with the focus")

    def answer(self, box, keys):
        """Presses a key, or one after the other of several, in a box and waits until it is gone."""
        keys = [keys] if isinstance(keys, str) else list(keys)
        self.focus(box)
        if self.home.focuses_itself:
            for key in keys[:-1]:
                xdotool("key", key)
            return self.answer_holding(box, keys[-1])
        xdotool("key", "--clearmodifiers", *keys)
        self.wait_until_gone(box)

    def answer_holding(self, box, key):
        """Holds the key until another window has the focus. A box goes at the press, and where no
        window is left to hear of the release, the next press counts as a repetition."""
        xdotool("keydown", key)
        try:
            self.wait_until_gone(box)
            if self.is_running():
                self.await_focus(lambda: window_in_focus() in self.windows_if_any() or
                                 not self.is_running(),
                                 self.window or wait_for("the next window", self.windows)[0])
        finally:
            xdotool("keyup", key)

    def windows_if_any(self):
        """No windows if the program ends while it is asked."""
        try:
            return self.windows()
        except RuntimeError:
            return []

    def wait_until_gone(self, box):
        wait_for("the box to close", lambda: box not in self.windows_if_any())

    def wait_for_chooser(self):
        """Waits for the panel on which a card's name is chosen; its box has the keys."""
        self.wait_for_title(CHOOSER_TITLE)

    def answer_name(self, name):
        """Types a name into the chooser that a command has opened, and takes it."""
        self.wait_for_chooser()
        self.press("ctrl+a")
        self.type(name)
        self.take_name()

    def take_name(self):
        # A press that counted as a repetition had no effect: press again.
        attempts, seconds = (ATTEMPTS, 10) if self.home.focuses_itself else (1, 30)
        for _ in range(attempts):
            self.press("Return")
            if value_within(seconds, lambda: not self.shows_chooser()):
                return
        raise TimeoutError("the chooser doesn't close")

    def answer_prompt(self, text, title="."):
        """Types a text into the box that a command has opened to ask for one."""
        box = self.wait_for_box(title)
        self.focus(box)
        xdotool("key", "ctrl+a", "type", "--delay", 15, text)
        self.answer(box, "Return")

    def shows_chooser(self):
        """False if the program has ended, or ends while it is asked."""
        try:
            return self.is_running() and re.search(CHOOSER_TITLE, self.title()) is not None
        except subprocess.CalledProcessError:
            return self.is_running()

    def choose_in_file_menu(self, row, *keys):
        """The row is counted from 0 and without separators; the keys go on from there."""
        self.press("alt+f", *["Down"] * row, *keys, "Return")

    def is_running(self):
        return self.process.poll() is None

    def close(self):
        """Asks the window to close, as its frame's button does."""
        self.focus(self.window)
        xdotool("key", "--clearmodifiers", "alt+F4")

    def wait_for_end(self):
        wait_for("the program's end", lambda: not self.is_running())
        return self.process.returncode

    def kill(self):
        if self.is_running():
            self.process.kill()
            self.process.wait(timeout=10)


class Card:
    """Where the card's fields are on the screen. Made anew whenever the card may have moved."""

    def __init__(self, program):
        self.program = program
        self.marks, self.texts = layout_fields(program.home)
        left, top, width, self.height = (value / program.twips for value in self.place_in_form())
        self.scale = width / DESIGN_WIDTH
        area_left, area_top = self.form_area()
        self.left, self.top = area_left + left, area_top + top

    def place_in_form(self):
        """Left, top, width and height of the card in the form, as the trace tells them."""
        before = self.traced_place()
        self.program.press("shift+F3", "shift+F4")
        line = wait_for("the card's place in the trace",
                        lambda: self.traced_place() != before and self.traced_place())
        line = line.partition("**F4** P1=")[2]
        return [float(value) for value in line.partition(", visible")[0].split(", ")]

    def traced_place(self):
        """The last line of the trace that tells the card's place; each has its own time."""
        lines = [line for line in self.program.home.trace().split("\r\n")[:-1] if "**F4**" in line]
        return lines[-1] if lines else ""

    def form_area(self):
        """Where the form's inside begins on the screen: right below the menu bar."""
        x, y, width = self.program.place()
        picture = screenshot()
        columns = range(x + width // 4, x + width // 2)
        top = next(row for row in range(y, y + 100)
                   if all(picture.pixel(column, row) == b"\xff\xff\xff" for column in columns))
        return x, top

    def box(self, place):
        """A field's rectangle on the screen: left, top, width and height in pixels."""
        left, top, width, height = (value * self.scale for value in place)
        return round(self.left + left), round(self.top + top), round(width), round(height)

    def click(self, place, button=1):
        left, top, width, height = self.box(place)
        self.program.click(left + 0.4 * width, top + 0.5 * height, button)

    def click_mark(self, number):
        self.click(self.marks[number])

    def click_text(self, number):
        self.click(self.texts[number])

    def ink(self, place):
        """What the screen shows of a field."""
        return screenshot().part(*self.box(place))
