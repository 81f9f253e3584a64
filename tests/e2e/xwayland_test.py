# SPDX-License-Identifier: MIT
"""In a session of Wayland presses beside the card cannot be seen. So the card takes the keyboard, and goes when it
loses it."""
import unittest

from desktop import VirtualDesktop, holds, wait_for


class XWayland(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        self.other = self.desktop.open_window("other")
        self.velto = self.desktop.start_velto({}, environment={"WAYLAND_DISPLAY": "wayland-9"})
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")
        wait_for(lambda: not self.other.has_state("focused"), what="the card with the keyboard")

    def hidden(self):
        return not self.velto.card_is_visible

    def test_escape_hides_the_card_and_the_other_window_has_the_keyboard_again(self):
        self.desktop.key("Escape")

        wait_for(self.hidden, what="the hidden card")
        wait_for(lambda: self.other.has_state("focused"), what="the keyboard back")

    def test_the_card_goes_with_the_keyboard(self):
        x, y, width, height = self.other.rectangle
        self.desktop.click(x + 5, y + height - 5)

        wait_for(self.hidden, what="the hidden card")

    def test_clicks_on_the_time_toggle_the_card(self):
        for _ in range(3):
            self.desktop.click_item()
            wait_for(self.hidden, what="the hidden card")
            holds(self.hidden, 0.5, "a hidden card")
            self.desktop.click_item()
            wait_for(lambda: self.velto.card_is_visible, what="the card")

    def test_a_cancelled_form_leaves_the_card(self):
        self.velto.item.choose("Settings…")
        wait_for(lambda: self.velto.other_windows, what="the form")

        self.desktop.key("Escape")

        wait_for(lambda: not self.velto.other_windows, what="no form")
        holds(lambda: self.velto.card_is_visible, 1, "the card")
        self.desktop.key("Escape")
        wait_for(self.hidden, what="the hidden card")

    def test_form_and_card_go_together_and_come_back_together(self):
        self.velto.item.choose("Settings…")
        wait_for(lambda: self.velto.other_windows, what="the form")
        x, y, width, height = self.other.rectangle
        self.desktop.click(x + 5, y + height - 5)
        wait_for(lambda: self.hidden() and not self.velto.other_windows, what="hidden card and form")

        self.desktop.click_item()

        wait_for(lambda: self.velto.card_is_visible and self.velto.other_windows, what="card and form")


if __name__ == "__main__":
    unittest.main()
