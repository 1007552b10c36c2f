"""What xdotool can't do on an X display."""

import contextlib
import ctypes

CORE_KEYBOARD = 0x100
CLIENT_MESSAGE = 33
SUBSTRUCTURE = 1 << 19 | 1 << 20  # where window managers listen
REMOVE, ADD = 0, 1  # of a window's states
PAGER = 2  # who asks, as the window manager is told: not the program itself

MAXIMISED = ("_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ")
FULL_SCREEN = ("_NET_WM_STATE_FULLSCREEN",)


class ClientMessage(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message", ctypes.c_ulong), ("format", ctypes.c_int), ("data", ctypes.c_long * 5),
                ("rest", ctypes.c_long * 24)]


def library():
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XDefaultRootWindow.restype = ctypes.c_ulong
    x11.XInternAtom.restype = ctypes.c_ulong
    return x11


@contextlib.contextmanager
def display():
    """The functions of the library and the display at hand."""
    x11 = library()
    opened = ctypes.c_void_p(x11.XOpenDisplay(None))
    try:
        yield x11, opened
    finally:
        x11.XCloseDisplay(opened)


def repeat_keys(delay, interval):
    """Held keys repeat after so many milliseconds, and then in such steps."""
    with display() as (x11, opened):
        x11.XkbSetAutoRepeatRate(opened, CORE_KEYBOARD, delay, interval)
        x11.XAutoRepeatOn(opened)


def tell_window_manager(window, message, *data):
    """`data` are numbers, or the names of atoms."""
    with display() as (x11, opened):
        def atom(name):
            return x11.XInternAtom(opened, name.encode(), False)
        numbers = [atom(item) if isinstance(item, str) else item for item in data]
        root = x11.XDefaultRootWindow(opened)
        event = ClientMessage(kind=CLIENT_MESSAGE, display=opened, window=int(window),
                              message=atom(message), format=32, data=tuple(numbers))
        x11.XSendEvent(opened, ctypes.c_ulong(root), False, ctypes.c_long(SUBSTRUCTURE),
                       ctypes.byref(event))


def change_state(window, action, state):
    """Adds or removes MAXIMISED or FULL_SCREEN, as a player's click on the frame would."""
    tell_window_manager(window, "_NET_WM_STATE", action, *state, *[0] * (2 - len(state)), PAGER)


def bring_to_front(window):
    tell_window_manager(window, "_NET_ACTIVE_WINDOW", PAGER, 0, 0)
