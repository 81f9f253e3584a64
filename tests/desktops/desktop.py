# SPDX-License-Identifier: MIT
"""What the stories ask of a desktop. One file for each beside this one; `scripts/check-desktops` names them."""
import os
from dataclasses import dataclass

from root import PROJECT, Root, Session
from waiting import wait_for

_HERE = os.path.join(PROJECT, "tests", "desktops")


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
    PLACES_CARDS = True  # where velto wants them
    HAS_STRIP = False  # and no place for items

    def __init__(self, folder, name):
        self._folder, self._name = folder, name
        self._root = Root(os.path.join(folder, self.ROOT or name), self.PACKAGES)

    def build(self):
        self._root.build()

    def __enter__(self):
        self.session = Session(self._root, self.START, self.USER, os.path.join(self._folder, self._name + ".log"))
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
        self.picture(os.path.join(self._folder, f"{self._name}-{what}.png"))
