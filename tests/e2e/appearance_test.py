# SPDX-License-Identifier: MIT
"""Light and dark."""
import unittest

from gi.repository import GLib

from desktop import VirtualDesktop, wait_for


class Appearance(unittest.TestCase):
    def start(self, dark):
        self.desktop = self.enterContext(VirtualDesktop(dark=dark))
        self.velto = self.desktop.start_velto({})

    def is_light(self):
        x, y, _, height = self.velto.card.rectangle
        red, green, blue = self.desktop.picture()[x + 24, y + height - 60]
        return red + green + blue > 3 * 128

    def test_it_follows_a_desktop_that_is_light(self):
        self.start(dark=False)

        wait_for(self.is_light)

    def test_it_follows_a_desktop_that_is_dark(self):
        self.start(dark=True)

        wait_for(lambda: not self.is_light())

    def test_it_follows_a_change_at_once(self):
        self.start(dark=False)
        wait_for(self.is_light)

        self.desktop.change_setting("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 1))
        wait_for(lambda: not self.is_light(), what="dark")

        self.desktop.change_setting("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 2))
        wait_for(self.is_light, what="light again")


if __name__ == "__main__":
    unittest.main()
