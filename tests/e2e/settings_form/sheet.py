# SPDX-License-Identifier: MIT
"""The settings form on the screen."""
from gi.repository import GLib

from waiting import wait_for


class Sheet:
    """The form that `velto` shows; waits for it."""

    def __init__(self, velto, apply="Apply"):
        self.velto, self.desktop, self.apply = velto, velto.desktop, apply
        self.window = wait_for(self._find, what="the settings form")

    def _find(self):
        for window in self.velto.app.children:
            if window.showing and window.find_all("push button", self.apply):
                return window
        raise LookupError("no settings form")

    @staticmethod
    def is_open(velto, apply="Apply"):
        try:
            return bool(velto.app.find_all("push button", apply))
        except (LookupError, GLib.Error):
            return False

    def number(self, name):
        return self.window.find("text", name)

    def slider(self, name):
        return self.window.find("slider", name)

    def switch(self, name):
        return self.window.find("check box", name)

    def picker(self, title, index=0):
        return [box for box in self.window.find_all("combo box") if box.description == title][index]

    def button(self, name):
        return self.window.find("push button", name)

    def type_number(self, name, number):
        """With the mouse and the keyboard."""
        field = self.number(name)
        self.desktop.click(*field.middle)
        wait_for(lambda: field.has_state("focused"), what=f"the keyboard in {name!r}")
        self.desktop.key("ctrl+a")
        self.desktop.type(str(number))
        wait_for(lambda: field.text == str(number), what=f"{number} in {name!r}")

    def click(self, button):
        self.desktop.click(*self.button(button).middle)
        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")


def labels(velto):
    """The texts on the card."""
    return [label.name for label in velto.card.find_all("label")]
