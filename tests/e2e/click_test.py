# SPDX-License-Identifier: MIT
"""Clicks on the item, in the card and elsewhere."""
import unittest

from desktop import VirtualDesktop, holds, wait_for


class ClickStories:
    """One class for each kind of panel bar below."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(VirtualDesktop(host=cls.host))

    def setUp(self):
        self.velto = self.desktop.start_velto({})
        self.addCleanup(self.velto.kill)

    def hide(self):
        self.desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible, what="the card hidden by the item")

    def test_a_click_shows_it_and_the_next_hides_it_fifty_times(self):
        self.hide()
        for turn in range(50):
            self.desktop.click_item()
            wait_for(lambda: self.velto.card_is_visible, what=f"the card, turn {turn}")

            self.desktop.click_item()
            wait_for(lambda: not self.velto.card_is_visible, what=f"no card, turn {turn}")
            holds(lambda: not self.velto.card_is_visible, 0.3, f"no card after it was hidden, turn {turn}")

    def test_a_slow_click_hides_the_card_for_good(self):
        x, y, width, height = wait_for(lambda: self.desktop.item_rectangle)

        self.desktop.press(x + width // 2, y + height // 2)
        wait_for(lambda: not self.velto.card_is_visible)
        holds(lambda: not self.velto.card_is_visible, 1.2, "no card while the button is down")
        self.desktop.release()

        holds(lambda: not self.velto.card_is_visible, 1, "no card after the release")
        self.desktop.click_item()
        wait_for(lambda: self.velto.card_is_visible, what="the next click shows it")

    def test_a_click_on_the_desktop_hides_it(self):
        for button in (1, 3):
            self.desktop.click(40, 700, button)
            wait_for(lambda: not self.velto.card_is_visible, what=f"no card after button {button}")
            holds(lambda: not self.velto.card_is_visible, 0.5)

            self.desktop.click_item()
            wait_for(lambda: self.velto.card_is_visible)

    def test_a_click_in_another_window_hides_it(self):
        field = self.desktop.open_window("other")
        self.desktop.click(*field.middle)

        wait_for(lambda: not self.velto.card_is_visible)
        holds(lambda: not self.velto.card_is_visible, 0.5)

    def test_a_click_in_the_card_keeps_it(self):
        x, y, width, height = self.velto.card.rectangle

        for place in ((x + 20, y + height // 2), (x + width // 2, y + 40),
                      self.velto.card.find("push button", "Start").middle):
            self.desktop.click(*place)
            holds(lambda: self.velto.card_is_visible, 0.4, f"the card after a click at {place}")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"], what="the click on Start")

    def test_showing_it_takes_no_focus(self):
        self.hide()
        field = self.desktop.open_window("other")
        focused = self.desktop.focused_window

        self.desktop.click_item()
        wait_for(lambda: self.velto.card_is_visible)
        self.desktop.type("shown ")
        wait_for(lambda: field.text == "shown ")

        self.desktop.click(*self.velto.card.find("push button", "Start").middle)
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"])
        self.desktop.type("started")
        wait_for(lambda: field.text == "shown started")

        self.desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible)
        self.desktop.type(" hidden")
        wait_for(lambda: field.text == "shown started hidden")
        self.assertEqual(self.desktop.focused_window, focused)


class OnABarThatActivatesOnRelease(ClickStories, unittest.TestCase):
    host = "xfce"


class OnABarThatActivatesOnPress(ClickStories, unittest.TestCase):
    host = "press"


if __name__ == "__main__":
    unittest.main()
