#!/usr/bin/env python3
"""What a zoom step looks like from outside: how often it changes the screen, when first and when
for the last time, and how many pixels each change paints. The program against a bare window that
scales and shows the same picture: both in turn, up and down the whole ladder; medians and ratios.

    ZEVLIN_SCREEN=1920x1080 scripts/virtual_display python3 bench/zoom_meter.py [normal] [ROUNDS]

With "normal" the windows aren't maximised. ZEVLIN_BUILD names another build than build/release,
ZEVLIN_STAGE another program than that build's.
"""

import collections
import ctypes
import os
import pathlib
import select
import statistics
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "scripts"))
import desktop  # noqa: E402
import x11  # noqa: E402

BUILD = pathlib.Path(os.environ.get("ZEVLIN_BUILD", desktop.ROOT / "build" / "release"))
STEPS = 11
STEP_AT_START = 5
QUIET = 0.25  # seconds without a change: the step is over
APART = 0.003  # seconds between two changes that aren't one: painting goes on without such a rest
CONTROL, PLUS, MINUS = 0xFFE3, 0xFFAB, 0xFFAD  # keysyms
RAW_RECTANGLES = 0

Change = collections.namedtuple("Change", "first last pixels")  # seconds behind the key


class Rectangle(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort),
                ("height", ctypes.c_ushort)]


class DamageEvent(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("drawable", ctypes.c_ulong),
                ("damage", ctypes.c_ulong), ("level", ctypes.c_int), ("more", ctypes.c_int),
                ("timestamp", ctypes.c_ulong), ("area", Rectangle), ("geometry", Rectangle),
                ("rest", ctypes.c_long * 24)]


class Meter:
    """Sends keys and watches the whole screen."""

    def __init__(self, xlib, display):
        self.x11, self.display = xlib, display
        self.test = ctypes.CDLL("libXtst.so.6")
        damage = ctypes.CDLL("libXdamage.so.1")
        kind, error = ctypes.c_int(), ctypes.c_int()
        if not damage.XDamageQueryExtension(display, ctypes.byref(kind), ctypes.byref(error)):
            raise RuntimeError("this X server doesn't tell what is painted")
        self.kind = kind.value
        root = ctypes.c_ulong(xlib.XDefaultRootWindow(display))
        damage.XDamageCreate(display, root, RAW_RECTANGLES)
        xlib.XFlush(display)
        self.connection = xlib.XConnectionNumber(display)

    def key(self, symbol, pressed):
        code = self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(symbol))
        self.test.XTestFakeKeyEvent(self.display, code, pressed, ctypes.c_ulong(0))

    def stroke(self, symbol):
        """With Ctrl."""
        self.key(CONTROL, True)
        self.key(symbol, True)
        self.key(symbol, False)
        self.key(CONTROL, False)
        self.x11.XFlush(self.display)

    def rectangles(self):
        """Those painted until now, with their time."""
        found = []
        event = DamageEvent()
        while self.x11.XPending(self.display):
            self.x11.XNextEvent(self.display, ctypes.byref(event))
            if event.kind == self.kind:
                found.append((time.monotonic(), event.area.width * event.area.height))
        return found

    def await_quiet(self):
        found = self.rectangles()
        while select.select([self.connection], [], [], QUIET)[0]:
            found += self.rectangles()
        return found

    def changes_at(self, symbol):
        self.await_quiet()
        start = time.monotonic()
        self.stroke(symbol)
        changes = []
        for at, pixels in self.await_quiet():
            if changes and at - start - changes[-1].last < APART:
                last = changes.pop()
                changes.append(Change(last.first, at - start, last.pixels + pixels))
            else:
                changes.append(Change(at - start, at - start, pixels))
        return changes

    def walk(self, window, steps):
        """Up the ladder and down again: the changes at each step."""
        x11.bring_to_front(window)
        desktop.wait_for("the focus", lambda: desktop.window_in_focus() == window)
        return ([(f"to step {step}", self.changes_at(PLUS)) for step in steps[1:]] +
                [(f"back to {step}", self.changes_at(MINUS)) for step in steps[-2::-1]])


def start_bare():
    process = subprocess.Popen([BUILD / "bench" / "bare_window", BUILD / "card" / "card.gif",
                                str(STEP_AT_START), "ladder"])
    search = ["xdotool", "search", "--onlyvisible", "--name", "^Bare window$"]
    window = desktop.wait_for("the bare window", lambda: subprocess.run(
        search, capture_output=True).stdout.decode().split())[0]
    return process, window


def start_program(home):
    home.data.mkdir(parents=True)
    layout = home.installed / "Definitions.Ini.15"
    (home.data / "Definitions.Ini").write_bytes(layout.read_bytes())
    (home.data / "ZEV.Ini").write_bytes(b"Zoom=%d\r\n" % STEP_AT_START)
    card = next(home.installed.glob("Two*.zev"))
    (home.data / card.name).write_bytes(card.read_bytes())
    return desktop.Program(home, card.name)


def median_of(runs, figure):
    return statistics.median(figure(changes) for changes in runs)


def report(name, ours, theirs):
    whole = [median_of(runs, lambda changes: changes[-1].last * 1000) for runs in (ours, theirs)]
    first = [median_of(runs, lambda changes: changes[0].first * 1000) for runs in (ours, theirs)]
    count = [median_of(runs, len) for runs in (ours, theirs)]
    most = max(len(changes) for changes in ours)
    painted = " + ".join(f"{change.pixels:,}" for change in ours[-1])
    print(f"{name:12} program: {count[0]:.0f} changes (at most {most}), first {first[0]:5.1f} ms, "
          f"whole {whole[0]:5.1f}; bare: {count[1]:.0f}, {first[1]:5.1f}, {whole[1]:5.1f}; "
          f"ratio {whole[0] / whole[1]:.2f}; last painted {painted}")


def measure(meter, windows, rounds):
    found = {name: collections.defaultdict(list) for name in windows}
    for index in range(rounds + 1):
        for name, window in windows.items():
            steps = list(range(STEP_AT_START, STEPS + 1))
            for step, changes in meter.walk(window, steps):
                if index > 0 and changes:  # the first round warms up
                    found[name][step].append(changes)
    return found["program"], found["bare"]


def main(arguments):
    maximised = "normal" not in arguments
    rounds = int(next((word for word in arguments if word.isdigit()), 5))
    if "ZEVLIN_STAGE" in os.environ:
        desktop.STAGE = pathlib.Path(os.environ["ZEVLIN_STAGE"])
    with tempfile.TemporaryDirectory() as folder, x11.display() as (xlib, display):
        program = start_program(desktop.Home(pathlib.Path(folder) / "home"))
        bare, bare_window = start_bare()
        try:
            windows = {"program": program.window, "bare": bare_window}
            if maximised:
                for window in windows.values():
                    x11.change_state(window, x11.ADD, x11.MAXIMISED)
            meter = Meter(xlib, display)
            ours, theirs = measure(meter, windows, rounds)
        finally:
            bare.kill()
            bare.wait()
            program.kill()
    for step in ours:
        report(step, ours[step], theirs[step])
    report("all steps", [run for runs in ours.values() for run in runs],
           [run for runs in theirs.values() for run in runs])


if __name__ == "__main__":
    main(sys.argv[1:])
