# SPDX-License-Identifier: MIT
"""What the stories ask of a desktop. One file for each beside this one; `scripts/check-desktops` names them."""
import os
from dataclasses import dataclass

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf  # noqa: E402

from framebuffer import Picture  # noqa: E402
from root import COMMON, PROJECT, Root, Session  # noqa: E402
from waiting import wait_for  # noqa: E402

_HERE = os.path.join(PROJECT, "tests", "desktops")

# The end of a START: when the bar takes items, the desktop is up.
UP_WITH_ITEMS = """
until dbus-send --session --print-reply --dest=org.kde.StatusNotifierWatcher /StatusNotifierWatcher \\
    org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierWatcher \\
    string:IsStatusNotifierHostRegistered | grep true
do sleep 0.2; done >/dev/null 2>&1
env | grep -E '^(HOME|XDG_|DBUS|PATH|LANG|USER|LOGNAME|WAYLAND_|DISPLAY|XAUTHORITY|KDE_)' > $XDG_RUNTIME_DIR/session
wait
"""


@dataclass
class Window:
    title: str
    rectangle: tuple  # x, y, width, height
    focused: bool


class Desktop:
    ROOT = None  # the name of the root, if not its own: desktops may share one
    PACKAGES = []
    START = ""  # see Session
    USER = 0
    TOGGLING_BUTTON = 1  # what shows and hides the card, pressed on the time
    HAS_STRIP = False  # and no place for items
    LEAST_CONTRAST = 4.5  # of the time in its bar
    THEMES = {"": None}  # by name: whether the bar is dark then, where that is known

    def __init__(self, folder, name, suite, build):
        self.suite = suite
        self._folder, self._name, self._build = folder, name, build
        self._root = Root(os.path.join(folder, self.ROOT or name), suite, [*COMMON, *self.PACKAGES])

    def build(self):
        self._root.build()

    def __enter__(self):
        self.session = Session(self._root, self._build, self.START, self.USER,
                               os.path.join(self._folder, self._name + ".log"))
        try:
            self.prepare()
            self.session.start("python3", os.path.join(_HERE, "editor.py"))
            wait_for(lambda: self.window("editor"), what="the editor")
        except BaseException:
            self.session.close()
            raise
        return self

    def __exit__(self, *_):
        self.session.close()

    def prepare(self):
        """Once, when it is up."""

    def use_theme(self, name):
        """One of THEMES."""

    # Each desktop has its own:
    # click(x, y, button=1), type(text), key(name), picture(path); windows(): the visible ones, lowest first;
    # item_place(): the middle of the time in its bar.

    def velto(self, *command):
        return self.session.run("python3", os.path.join(_HERE, "inside.py"), *command).strip()

    def end_velto(self):
        self.session.run("sh", "-c", "pkill -x velto; while pgrep -x velto; do sleep 0.1; done > /dev/null")

    def window(self, title):
        """The topmost of that title; None without one."""
        return next((window for window in reversed(self.windows()) if window.title == title), None)

    @staticmethod
    def is_card(window):
        return window.title == "velto" and window.rectangle[2:] == (360, 420)

    @staticmethod
    def is_form(window):
        return window.title.startswith("Settings")

    @property
    def card(self):
        return next(filter(self.is_card, self.windows()), None)

    @property
    def form(self):
        return next(filter(self.is_form, self.windows()), None)

    @property
    def typed(self):
        return self.session.run("cat", "/tmp/typed")

    def save_picture(self, what):
        """Returns its path."""
        path = os.path.join(self._folder, f"{self._name}-{what}.png")
        self.picture(path)
        return path

    def text_in_bar(self):
        """What the bar has been told, where it does not say what it shows."""
        return self.velto("label")

    def look_at_item(self, what):
        """The middle of the time in its bar, as it is on the screen; `what` is for the name of that picture."""
        seen = GdkPixbuf.Pixbuf.new_from_file(self.save_picture(what))
        pixels, channels = seen.get_pixels(), seen.get_n_channels()
        width, height = seen.get_width(), seen.get_height()
        rgb = bytearray(3 * width * height)
        for row in range(height):
            line = pixels[row * seen.get_rowstride():][:width * channels]
            for channel in range(3):
                rgb[3 * width * row + channel:3 * width * (row + 1):3] = line[channel::channels]
        x, y = self.item_place()
        return Picture(width, height, bytes(rgb)).crop(x - 13, y - 12, 26, 24)
