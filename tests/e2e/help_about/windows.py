# SPDX-License-Identifier: MIT
"""What the window manager knows of the program's windows."""
import re
import subprocess

from desktop import wait_for

HELP = "How to Use velto"
ABOUT = "About velto"


def shown(velto, name):
    """The windows on the screen that assistive technology calls `name`."""
    return velto.app.find_all("dialog", name)


def title(desktop, window):
    return re.search(r'= "(.*)"', desktop.ask("xprop", "-id", window, "_NET_WM_NAME"))[1]


def properties(desktop, window, *names):
    return desktop.ask("xprop", "-id", window, *names)


def wait_for_focus(desktop, velto):
    """The X window of `velto` that the user types into, once there is one."""
    def focused():
        window = desktop.focused_window.split(",")[0]
        try:
            owner = properties(desktop, window, "_NET_WM_PID")
        except subprocess.CalledProcessError:
            return None  # no window, or one that has just gone
        return window if owner.endswith(f"= {velto.pid}\n") else None
    return wait_for(focused, what="a window of velto with the focus")


def place(desktop, window):
    """(x, y, width, height) of what is inside the frame."""
    text = desktop.ask("xwininfo", "-id", window)
    return tuple(int(re.search(rf"{label}:\s+(-?\d+)", text)[1])
                 for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def move(desktop, window):
    """Moves it as a user does; returns its place then."""
    before = place(desktop, window)
    desktop.ask("xdotool", "windowmove", window, "50", "60")
    wait_for(lambda: place(desktop, window) != before, what="the window in another place")
    return place(desktop, window)


def frame(desktop, window):
    """(x, y, width, height) with the frame."""
    x, y, width, height = place(desktop, window)
    extents = properties(desktop, window, "_NET_FRAME_EXTENTS")
    left, right, top, bottom = map(int, extents.split("=")[1].split(","))
    return x - left, y - top, width + left + right, height + top + bottom


def work_area(desktop):
    """(x, y, width, height) that panel bars leave free."""
    numbers = desktop.ask("xprop", "-root", "-notype", "_NET_WORKAREA").split("=")[1].split(",")
    return tuple(map(int, numbers[:4]))
