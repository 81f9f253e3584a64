# SPDX-License-Identifier: MIT
"""The time in the bar of GNOME, which takes no status items: what GNOME says on the X server is said here in its
place, without a window manager."""
import unittest

from gi.repository import GLib

from desktop import VirtualDesktop, holds, wait_for

BAR = 32
MIDDLE = 640
INTERFACE = "org.gnome.desktop.interface"


class TheBarOfGnome(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="none", wm="none"))
        root = self.desktop.ask("xwininfo", "-root").split("Window id: ")[1].split()[0]
        self.set_root("_NET_SUPPORTING_WM_CHECK", "32x", root)
        self.set_root("_NET_WM_NAME", "8u", "GNOME Shell")
        self.set_root("_GTK_WORKAREAS_D0", "32c", f"0,{BAR},1280,{800 - BAR}")
        for key, shown in {"date": True, "weekday": False, "seconds": False}.items():
            self.desktop.change_setting(INTERFACE, f"clock-show-{key}", GLib.Variant("b", shown))
        self.desktop.change_setting(INTERFACE, "clock-format", GLib.Variant("s", "24h"))
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.velto.strip, what="the time")

    def set_root(self, name, kind, value):
        self.desktop.ask("xprop", "-root", "-f", name, kind, "-set", name, value)

    def unseen_windows(self, kind):
        """Our windows of a type and of one pixel, by id."""
        found = []
        for line in self.desktop.ask("xwininfo", "-root", "-children").splitlines():
            word = line.split()[0] if line.split() else ""
            if word.startswith("0x") and "  1x1+" in line and f"_NET_WM_WINDOW_TYPE_{kind}" in self.desktop.ask(
                    "xprop", "-id", word, "_NET_WM_WINDOW_TYPE"):
                found.append(word)
        return found

    def test_has_the_item_right_of_the_clock_clear_of_the_menus(self):
        x, y, width, height = self.velto.strip.rectangle
        self.assertEqual((y, height), (0, BAR))
        self.assertGreater(x, MIDDLE + 100)
        self.assertLess(x + width, 1280 - 260)

    def test_the_item_follows_the_width_of_the_clock(self):
        near = self.velto.strip.rectangle[0]

        self.desktop.change_setting(INTERFACE, "clock-show-seconds", GLib.Variant("b", True))
        wait_for(lambda: self.velto.strip.rectangle[0] > near + 8, what="room for the seconds")
        self.desktop.change_setting(INTERFACE, "clock-show-weekday", GLib.Variant("b", True))
        self.desktop.change_setting(INTERFACE, "clock-format", GLib.Variant("s", "12h"))
        wait_for(lambda: self.velto.strip.rectangle[0] > near + 40, what="room for more")

    def test_a_click_toggles_the_card_under_it(self):
        x, _, width, _ = self.velto.strip.rectangle
        left, top, card_width, _ = self.velto.card.rectangle
        self.assertEqual(top, BAR + 6)
        self.assertAlmostEqual(left + card_width / 2, x + width / 2, delta=1)

        self.desktop.click(*self.velto.strip.middle)
        wait_for(lambda: not self.velto.card_is_visible)
        self.desktop.click(*self.velto.strip.middle)
        wait_for(lambda: self.velto.card_is_visible)

    def test_the_item_is_hidden_with_the_bar_under_a_full_screen_window(self):
        dock, ordinary = wait_for(lambda: self.unseen_windows("DOCK") + self.unseen_windows("UTILITY"))
        self.set_root("_NET_CLIENT_LIST_STACKING", "32x", f"{ordinary},{dock}")
        holds(self.velto.has_strip, 1)

        self.set_root("_NET_CLIENT_LIST_STACKING", "32x", f"{dock},{ordinary}")
        wait_for(lambda: not self.velto.has_strip(), what="the time gone")
        self.set_root("_NET_CLIENT_LIST_STACKING", "32x", f"{ordinary},{dock}")
        wait_for(self.velto.has_strip, what="the time again")


if __name__ == "__main__":
    unittest.main()
