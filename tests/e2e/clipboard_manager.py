"""A clipboard manager of a test's own: it keeps a picture when the program that copied it ends."""

import ctypes
import threading

SELECTION_REQUEST, SELECTION_NOTIFY = 30, 31
ANY_TYPE, CURRENT_TIME = 0, 0
FORMAT = b"image/png"


class Event(ctypes.Structure):
    """Of the two kinds above; the second one lacks the owner."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("windows", ctypes.c_ulong * 6),
                ("padding", ctypes.c_long * 24)]


class ClipboardManager:
    """Serves from the constructor on, as long as the tests run; what it has kept last stands in
    `picture`."""

    def __init__(self):
        self.picture = None
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        for function in ("XDefaultRootWindow", "XCreateSimpleWindow", "XInternAtom",
                         "XGetSelectionOwner"):
            getattr(self.x11, function).restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(None))
        root = self.number(self.x11.XDefaultRootWindow(self.display))
        self.window = self.number(self.x11.XCreateSimpleWindow(self.display, root, 0, 0, 1, 1, 0,
                                                               self.number(0), self.number(0)))
        self.own = self.atom(b"CLIPBOARD_MANAGER")
        self.x11.XSetSelectionOwner(self.display, self.own, self.window,
                                    self.number(CURRENT_TIME))
        self.x11.XSync(self.display, 0)
        threading.Thread(target=self.serve, daemon=True).start()

    @staticmethod
    def number(value):
        return ctypes.c_ulong(value)

    def atom(self, name):
        return self.number(self.x11.XInternAtom(self.display, name, 0))

    def next_event(self, kind):
        event = Event()
        while event.type != kind:
            self.x11.XNextEvent(self.display, ctypes.byref(event))
        return event

    def serve(self):
        while True:
            self.answer(self.next_event(SELECTION_REQUEST))

    def answer(self, request):
        """A program that ends asks, and waits until it has the answer."""
        self.picture = self.fetch()
        _, requestor, selection, target, place, time = request.windows
        answer = Event(type=SELECTION_NOTIFY, sent=1, display=self.display)
        answer.windows[:5] = [requestor, selection, target, place, time]
        self.x11.XSendEvent(self.display, self.number(requestor), 0, ctypes.c_long(0),
                            ctypes.byref(answer))
        self.x11.XSync(self.display, 0)

    def fetch(self):
        """The picture on the clipboard."""
        place = self.atom(b"KEPT")
        self.x11.XConvertSelection(self.display, self.atom(b"CLIPBOARD"), self.atom(FORMAT), place,
                                   self.window, self.number(CURRENT_TIME))
        self.next_event(SELECTION_NOTIFY)
        kind, rest, count = (ctypes.c_ulong() for _ in range(3))
        bits, data = ctypes.c_int(), ctypes.POINTER(ctypes.c_char)()
        self.x11.XGetWindowProperty(self.display, self.window, place, ctypes.c_long(0),
                                    ctypes.c_long(1 << 24), 0, self.number(ANY_TYPE),
                                    ctypes.byref(kind), ctypes.byref(bits), ctypes.byref(count),
                                    ctypes.byref(rest), ctypes.byref(data))
        return ctypes.string_at(data, count.value)
