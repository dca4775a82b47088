# SPDX-FileCopyrightText: 2026 The Quillets developers
# SPDX-License-Identifier: MIT
"""Keys pressed on an X display, with the time at which the server had them."""
import ctypes
import time

KEYSYMS = {" ": 0x20, "\n": 0xFF0D, "ctrl": 0xFFE3, "alt": 0xFFE9, "F2": 0xFFBF, "F4": 0xFFC1}


class Keyboard:
    def __init__(self, display):
        self._x, self._test = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self._x.XOpenDisplay.restype = ctypes.c_void_p
        self._x.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
        self._x.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
        self._test.XTestFakeKeyEvent.argtypes = [ctypes.c_void_p, ctypes.c_uint, ctypes.c_int, ctypes.c_ulong]
        self._display = self._x.XOpenDisplay(display.encode())
        assert self._display

    def press(self, key, held=None):
        """(before, after) the press of a small letter, a digit or one of those above."""
        keys = [KEYSYMS[held]] if held else []
        codes = [self._x.XKeysymToKeycode(self._display, code) & 0xFF for code in keys + [KEYSYMS.get(key) or ord(key)]]
        before = time.monotonic()
        for code in codes:
            self._test.XTestFakeKeyEvent(self._display, code, 1, 0)
        for code in reversed(codes):
            self._test.XTestFakeKeyEvent(self._display, code, 0, 0)
        self._x.XSync(self._display, 0)
        return before, time.monotonic()
