"""A file manager's side of a drag on an X display: what is offered, where, and what comes of it."""

import ctypes
import time

import whole_program  # noqa: F401  (finds the scripts)
import x11

SELECTION_REQUEST, SELECTION_NOTIFY, CLIENT_MESSAGE = 30, 31, 33
PROTOCOL = 5
ATOM, REPLACE = 4, 0
SECONDS = 20


class SelectionRequest(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("owner", ctypes.c_ulong),
                ("requestor", ctypes.c_ulong), ("selection", ctypes.c_ulong),
                ("target", ctypes.c_ulong), ("property", ctypes.c_ulong), ("time", ctypes.c_ulong)]


class SelectionNotify(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("requestor", ctypes.c_ulong),
                ("selection", ctypes.c_ulong), ("target", ctypes.c_ulong),
                ("property", ctypes.c_ulong), ("time", ctypes.c_ulong),
                ("rest", ctypes.c_long * 24)]


class Event(ctypes.Union):
    _fields_ = [("kind", ctypes.c_int), ("request", SelectionRequest),
                ("message", x11.ClientMessage), ("rest", ctypes.c_long * 32)]


class Drag:
    """Something dragged over a window: `kind` is what it is, as text/uri-list, `content` its bytes."""

    def __init__(self, library, display, window, kind, content):
        self.library, self.display, self.window = library, display, int(window)
        self.kind, self.content = self.atom(kind), content
        root = ctypes.c_ulong(library.XDefaultRootWindow(display))
        library.XCreateSimpleWindow.restype = ctypes.c_ulong
        self.source = library.XCreateSimpleWindow(display, root, 0, 0, 1, 1, 0,
                                                  ctypes.c_ulong(0), ctypes.c_ulong(0))
        library.XSetSelectionOwner(display, ctypes.c_ulong(self.atom("XdndSelection")),
                                   ctypes.c_ulong(self.source), ctypes.c_ulong(0))

    def atom(self, name):
        return self.library.XInternAtom(self.display, name.encode(), False)

    def send(self, message, *data):
        event = x11.ClientMessage(kind=CLIENT_MESSAGE, display=self.display, window=self.window,
                                  message=self.atom(message), format=32,
                                  data=(self.source, *data, *[0] * (4 - len(data))))
        self.library.XSendEvent(self.display, ctypes.c_ulong(self.window), False, ctypes.c_long(0),
                                ctypes.byref(event))
        self.library.XFlush(self.display)

    def hand_over(self, request):
        """Whoever is dragged over may ask what it is, at any time."""
        self.library.XChangeProperty(
            self.display, ctypes.c_ulong(request.requestor), ctypes.c_ulong(request.property),
            ctypes.c_ulong(request.target), 8, REPLACE, self.content, len(self.content))
        event = SelectionNotify(kind=SELECTION_NOTIFY, display=self.display,
                                requestor=request.requestor, selection=request.selection,
                                target=request.target, property=request.property,
                                time=request.time)
        self.library.XSendEvent(self.display, ctypes.c_ulong(request.requestor), False,
                                ctypes.c_long(0), ctypes.byref(event))
        self.library.XFlush(self.display)

    def wait_for(self, message):
        """The numbers of the message that the window sends."""
        end = time.monotonic() + SECONDS
        wanted = self.atom(message)
        event = Event()
        while time.monotonic() < end:
            if not self.library.XPending(self.display):
                time.sleep(0.01)
                continue
            self.library.XNextEvent(self.display, ctypes.byref(event))
            if event.kind == SELECTION_REQUEST:
                self.hand_over(event.request)
            elif event.kind == CLIENT_MESSAGE and event.message.message == wanted:
                return list(event.message.data)
        raise TimeoutError(f"waited {SECONDS} seconds in vain for {message}")

    def is_welcome(self, x, y):
        """Drags it to a place of the screen. Whether the window would take a copy there."""
        self.send("XdndEnter", PROTOCOL << 24, self.kind)
        self.send("XdndPosition", 0, x << 16 | y, 0, self.atom("XdndActionCopy"))
        status = self.wait_for("XdndStatus")
        return bool(status[1] & 1) and status[4] == self.atom("XdndActionCopy")

    def let_go(self):
        self.send("XdndDrop", 0, 0)
        self.wait_for("XdndFinished")

    def take_away(self):
        self.send("XdndLeave")


def drop(window, kind, content, x, y):
    """Drops it at a place of the screen, if the window takes it; whether it did."""
    with x11.display() as (library, display):
        drag = Drag(library, display, window, kind, content)
        if not drag.is_welcome(x, y):
            drag.take_away()
            return False
        drag.let_go()
        return True
