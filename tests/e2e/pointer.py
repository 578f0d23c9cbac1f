"""The mouse pointer, as it shows now."""

import ctypes

import window_manager


class Image(ctypes.Structure):
    _fields_ = [("x", ctypes.c_short), ("y", ctypes.c_short), ("width", ctypes.c_ushort), ("height", ctypes.c_ushort),
                ("hot_x", ctypes.c_ushort), ("hot_y", ctypes.c_ushort), ("serial", ctypes.c_ulong),
                ("pixels", ctypes.POINTER(ctypes.c_ulong)), ("atom", ctypes.c_ulong), ("name", ctypes.c_char_p)]


def picture():
    """Its width and height, and its pixels."""
    x11 = window_manager.library()
    fixes = ctypes.CDLL("libXfixes.so.3")
    fixes.XFixesGetCursorImage.restype = ctypes.POINTER(Image)
    fixes.XFixesGetCursorImage.argtypes = [ctypes.c_void_p]
    display = x11.XOpenDisplay(None)
    assert display, "no display"
    try:
        image = fixes.XFixesGetCursorImage(display).contents
        return image.width, image.height, image.pixels[:image.width * image.height]
    finally:
        x11.XCloseDisplay(display)
