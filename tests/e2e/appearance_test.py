# SPDX-License-Identifier: MIT
"""Light and dark, more contrast, less motion."""
import time
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

    def test_it_follows_a_wish_for_contrast_at_once(self):
        self.start(dark=True)
        wait_for(lambda: not self.is_light())

        def pure(color):
            x, y, _, height = self.velto.card.rectangle
            picture = self.desktop.picture()
            return picture[x + 24, y + height - 60] == color and picture[x, y + height // 2] != color
        self.assertFalse(pure((0, 0, 0)))

        self.desktop.change_setting("org.freedesktop.appearance", "contrast", GLib.Variant("u", 1))
        wait_for(lambda: pure((0, 0, 0)), what="black with a line round it")

        self.desktop.change_setting("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 2))
        wait_for(lambda: pure((255, 255, 255)), what="white with a line round it")


class Motion(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.velto.card_is_visible)
        self.title = self.velto.card.find(name="Focus").rectangle

    def looks(self):
        """How many different pictures of the title a change of phase shows, the last included."""
        def look():
            return self.desktop.picture().crop(*self.title).rgb
        before = look()
        self.velto.item.choose("Current Phase", "Break" if self.velto.phase == "Focus" else "Focus")
        end = time.monotonic() + 0.6
        seen = set()
        while time.monotonic() < end:
            seen.add(look())
        return len(seen - {before})

    def test_a_new_phase_fades_in(self):
        wait_for(lambda: self.looks() > 3, what="something between two titles")

    def test_it_is_there_at_once_where_less_motion_is_wished_for(self):
        self.desktop.change_setting("org.gnome.desktop.interface", "enable-animations", GLib.Variant("b", False))
        wait_for(lambda: self.looks() == 1, what="the first change without motion")

        for _ in range(4):
            self.assertLessEqual(self.looks(), 2)  # a picture may be taken while it is drawn


if __name__ == "__main__":
    unittest.main()
