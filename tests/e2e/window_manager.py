"""Asks a window, as window managers do, whether its program still listens."""

import ctypes
import select
import time

CLIENT_MESSAGE = 33
SUBSTRUCTURE_NOTIFY = 1 << 19


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("message", ClientMessage), ("room", ctypes.c_long * 24)]


def library():
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
    x11.XDefaultRootWindow.restype = ctypes.c_ulong
    x11.XInternAtom.restype = ctypes.c_ulong
    x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
    x11.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
    x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.POINTER(Event)]
    x11.XNextEvent.argtypes = [ctypes.c_void_p, ctypes.POINTER(Event)]
    for name in ("XDefaultRootWindow", "XFlush", "XPending", "XConnectionNumber", "XCloseDisplay"):
        getattr(x11, name).argtypes = [ctypes.c_void_p]
    return x11


class Asker:
    """A connection of its own to the display, over which windows are asked."""

    def __enter__(self):
        self.x11 = library()
        self.display = self.x11.XOpenDisplay(None)
        assert self.display, "no display"
        self.root = self.x11.XDefaultRootWindow(self.display)
        self.protocols, self.ping = (self.x11.XInternAtom(self.display, name, 0) for name in (b"WM_PROTOCOLS", b"_NET_WM_PING"))
        # Answers are sent to the root window.
        self.x11.XSelectInput(self.display, self.root, SUBSTRUCTURE_NOTIFY)
        self.time = 1
        return self

    def __exit__(self, *_):
        self.x11.XCloseDisplay(self.display)

    def answers(self, window, seconds=5.0):
        """True if the window's program answers a question of its own in this time."""
        self.time += 1
        question = Event()
        question.message = ClientMessage(CLIENT_MESSAGE, 0, 1, self.display, window, self.protocols, 32,
                                         (ctypes.c_long * 5)(self.ping, self.time, window, 0, 0))
        self.x11.XSendEvent(self.display, window, 0, 0, ctypes.byref(question))
        self.x11.XFlush(self.display)
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            while self.x11.XPending(self.display):
                answer = Event()
                self.x11.XNextEvent(self.display, ctypes.byref(answer))
                if (answer.type == CLIENT_MESSAGE and answer.message.message_type == self.protocols and
                        list(answer.message.data[:3]) == [self.ping, self.time, window]):
                    return True
            select.select([self.x11.XConnectionNumber(self.display)], [], [], 0.1)
        return False
