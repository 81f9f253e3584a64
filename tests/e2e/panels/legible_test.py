# SPDX-License-Identifier: MIT
"""The time can be read on every bar: 4.5 to 1 at least against what is really behind it."""
import os
import unittest

from desktop import VirtualDesktop, wait_for
from legible import background, contrast, contrast_of_digits


class TheTimeInTheBar(unittest.TestCase):
    def start(self, host, **desktop):
        self.desktop = self.enterContext(VirtualDesktop(host=host, **desktop))
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.desktop.item_rectangle, what="the item in the bar")

    def ink(self):
        """The colour of the digits in the exported picture."""
        _, _, argb = self.velto.item.pictures[0]
        solid = [tuple(argb[at + 1:at + 4]) for at in range(0, len(argb), 4) if argb[at] > 250]
        return max(set(solid), key=solid.count)

    def look(self):
        return self.desktop.picture().crop(*self.desktop.item_rectangle)

    def contrasts(self):
        """Of the digits as exported, and as they are seen on the screen, both against the bar on the screen."""
        seen = self.look()
        return contrast(self.ink(), background(seen)), contrast_of_digits(seen)

    def wait_until_legible(self, what):
        self.desktop.move(600, 400)
        try:
            wait_for(lambda: min(self.contrasts()) >= 4.5, 15, what=f"digits that can be read on {what}")
        finally:
            print(f"{what}: " + ", ".join(f"{value:.1f}:1" for value in self.contrasts()))
            if folder := os.environ.get("VELTO_PICTURES"):
                x, y, width, height = self.desktop.item_rectangle
                self.desktop.picture().crop(x - 200, y, 400, height).save(f"{folder}/{what.replace(' ', '-')}.png")

    def test_on_light_xfce(self):
        self.start("xfce-light")
        self.wait_until_legible("a light XFCE bar")

    def test_on_dark_xfce(self):
        self.start("xfce")
        self.wait_until_legible("a dark XFCE bar")

    def test_on_xfce_that_changes(self):
        self.start("xfce")
        self.wait_until_legible("an XFCE bar while it is dark")

        for dark, what in (("false", "light"), ("true", "dark")):
            earlier = background(self.look())
            self.desktop.ask("xfconf-query", "-c", "xfce4-panel", "-p", "/panels/dark-mode", "-s", dark)
            wait_for(lambda: contrast(background(self.look()), earlier) > 4.5, what=f"an XFCE bar that becomes {what}")
            self.wait_until_legible(f"an XFCE bar that became {what}")

    def test_on_light_and_dark_mate(self):
        for dark in (False, True):
            self.start("mate", dark=dark)
            self.wait_until_legible(f"a {'dark' if dark else 'light'} MATE bar")

    def test_on_light_and_dark_lxqt(self):
        for host in ("lxqt", "lxqt-dark"):
            self.start(host)
            self.wait_until_legible(f"a bar of {host}")


if __name__ == "__main__":
    unittest.main()
