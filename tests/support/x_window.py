# SPDX-License-Identifier: MIT
"""A window as the X server sees it, asked often and cheaply."""
import ctypes

_X11 = ctypes.CDLL("libX11.so.6")
_X11.XOpenDisplay.restype = ctypes.c_void_p
_X11.XCloseDisplay.argtypes = [ctypes.c_void_p]
_X11.XGetWindowAttributes.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_void_p]


class _Attributes(ctypes.Structure):
    _fields_ = [
        ("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
        ("border_width", ctypes.c_int), ("depth", ctypes.c_int), ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong),
        ("class", ctypes.c_int), ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
        ("backing_store", ctypes.c_int), ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong),
        ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
        ("map_state", ctypes.c_int), ("all_event_masks", ctypes.c_long), ("your_event_mask", ctypes.c_long),
        ("do_not_propagate_mask", ctypes.c_long), ("override_redirect", ctypes.c_int), ("screen", ctypes.c_void_p)]


_IS_VIEWABLE = 2


class XWindow:
    """The window of process `pid` that is on the screen of `desktop`; LookupError without one. It must not be
    asked when it is gone."""

    def __init__(self, desktop, pid):
        found = desktop.ask("sh", "-c", f"xdotool search --onlyvisible --pid {pid} || true").split()
        if not found:
            raise LookupError(f"process {pid} has no window")
        self._window = int(found[0])
        self._display = _X11.XOpenDisplay(desktop.display.encode())

    def close(self):
        """Closes the connection, not the window."""
        _X11.XCloseDisplay(self._display)

    @property
    def is_mapped(self):
        attributes = _Attributes()
        _X11.XGetWindowAttributes(self._display, self._window, ctypes.byref(attributes))
        return attributes.map_state == _IS_VIEWABLE
