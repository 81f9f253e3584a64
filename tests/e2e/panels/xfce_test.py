# SPDX-License-Identifier: MIT
"""The item in the panel bar of Xfce."""
import unittest

from panel_stories import PanelStories
from waiting import wait_for


class TheXfcePanel(PanelStories, unittest.TestCase):
    host = "xfce"
    questions = 1  # all properties at once

    def windows(self):
        return len(self.desktop.ask("xdotool", "search", "--onlyvisible", "--class", "org.velto.Velto").split())

    def test_control_with_a_left_click_opens_our_own_menu(self):
        windows = self.windows()

        self.click_item(modifiers=("ctrl",))

        wait_for(lambda: self.windows() == windows + 1, what="our menu")
        self.assertTrue(self.velto.card_is_visible)
        self.desktop.key("Escape")
        wait_for(lambda: self.windows() == windows, what="the menu gone")
        self.hide_the_card()


if __name__ == "__main__":
    unittest.main()
