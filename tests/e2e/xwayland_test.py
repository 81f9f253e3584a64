# SPDX-License-Identifier: MIT
"""In a session of Wayland presses beside the card cannot be seen. So the card takes the keyboard when it is asked for,
and goes when it loses it."""
import re
import time
import unittest

from desktop import VirtualDesktop, holds, wait_for


WAYLAND = {"WAYLAND_DISPLAY": "wayland-9"}


class Story(unittest.TestCase):
    host = "xfce"

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host=self.host))
        self.other = self.desktop.open_window("other")
        self.velto = self.desktop.start_velto({}, environment=WAYLAND)
        self.velto.item.activate()
        wait_for(self.hidden, what="the hidden card")
        self.velto.item.activate()
        wait_for(lambda: not self.other.has_state("focused"), what="the card with the keyboard")

    def hidden(self):
        return not self.velto.card_is_visible

    def click_other(self):
        x, y, _, height = self.other.rectangle
        self.desktop.click(x + 5, y + height - 5)

    def open_form(self):
        self.velto.item.choose("Settings…")
        field = wait_for(lambda: self.velto.app.find("text", "Focus"), what="the form")
        wait_for(lambda: field.has_state("focused"), what="the keyboard in the first field")
        return field

    def menu_is_open(self):
        return bool(self.velto.app.find_all("menu item", "Quit"))


class ByItself(unittest.TestCase):
    def test_the_card_takes_no_keyboard(self):
        desktop = self.enterContext(VirtualDesktop())
        other = desktop.open_window("other")
        velto = desktop.start_velto({"focusMinutes": 0}, environment=WAYLAND)
        holds(lambda: other.has_state("focused"), 1, "the keyboard of the other window")
        velto.item.choose("Start Focus")
        desktop.click(5, desktop.size[1] - 5)
        wait_for(lambda: not velto.card_is_visible, what="the hidden card")

        wait_for(lambda: velto.card_is_visible, what="the card at the end of the phase")

        holds(lambda: other.has_state("focused"), 1, "the keyboard of the other window")


class XWayland(Story):
    def test_escape_hides_the_card_and_returns_the_keyboard(self):
        self.desktop.key("Escape")

        wait_for(self.hidden, what="the hidden card")
        wait_for(lambda: self.other.has_state("focused"), what="the keyboard back")

    def test_the_card_hides_when_it_loses_the_keyboard(self):
        self.click_other()

        wait_for(self.hidden, what="the hidden card")

    def test_clicks_on_the_time_toggle_the_card(self):
        for _ in range(3):
            self.desktop.click_item()
            wait_for(self.hidden, what="the hidden card")
            holds(self.hidden, 0.5, "a hidden card")
            self.desktop.click_item()
            wait_for(lambda: self.velto.card_is_visible, what="the card")

    def test_cancelling_the_form_keeps_the_card(self):
        self.open_form()

        self.desktop.key("Escape")

        wait_for(lambda: not self.velto.other_windows, what="no form")
        holds(lambda: self.velto.card_is_visible, 1, "the card")
        self.desktop.key("Escape")
        wait_for(self.hidden, what="the hidden card")

    def test_cancelling_the_form_keeps_the_card_beside_a_slow_window_manager(self):
        self.open_form()

        with self.desktop.paused(self.desktop.window_manager):
            self.desktop.key("Escape")
            time.sleep(0.5)

        wait_for(lambda: not self.velto.other_windows, what="no form")
        holds(lambda: self.velto.card_is_visible, 1.5, "the card")
        self.desktop.key("Escape")
        wait_for(self.hidden, what="the hidden card")

    def test_form_and_card_hide_and_return_together(self):
        self.open_form()
        self.click_other()
        wait_for(lambda: self.hidden() and not self.velto.other_windows, what="hidden card and form")

        self.desktop.click_item()

        wait_for(lambda: self.velto.card_is_visible and self.velto.other_windows, what="card and form")

    def test_starting_it_again_shows_the_card_with_the_keyboard(self):
        self.desktop.key("Escape")
        wait_for(lambda: self.hidden() and self.other.has_state("focused"), what="the keyboard in the other window")

        self.desktop.run(self.desktop.program, environment=WAYLAND).wait(30)

        wait_for(lambda: self.velto.card.find("push button", "Start").has_state("focused"), what="the card's keyboard")
        wait_for(lambda: not self.other.has_state("focused"), what="the keyboard gone from the other window")
        self.desktop.key("Return")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"], what="the started timer")

    def test_the_list_of_a_picker_keeps_form_and_card(self):
        self.open_form()
        picker = self.velto.app.find_all("combo box")[0]
        self.desktop.click(*picker.middle)
        wait_for(lambda: picker.find_all("list item", "Pop"), what="the list")

        holds(lambda: self.velto.card_is_visible and self.velto.app.find_all("push button", "Apply"), 1,
              "card and form under the list")
        self.desktop.key("Escape")
        holds(lambda: self.velto.card_is_visible and self.velto.app.find_all("push button", "Apply"), 1,
              "card and form without the list")

    def test_the_menu_of_the_card_keeps_it(self):
        self.desktop.key("shift+F10")
        wait_for(self.menu_is_open, what="the menu")

        holds(lambda: self.velto.card_is_visible, 1, "the card under the menu")
        self.desktop.key("Escape")
        wait_for(lambda: not self.menu_is_open(), what="no menu")
        holds(lambda: self.velto.card_is_visible, 1, "the card without the menu")
        self.desktop.key("Escape")
        wait_for(self.hidden, what="the hidden card")

    def test_its_own_windows_keep_the_card_and_others_hide_it(self):
        self.velto.item.choose("How to Use")
        wait_for(lambda: self.velto.other_windows, what="the help window")
        holds(lambda: self.velto.card_is_visible, 1, "the card beside the help window")

        self.click_other()

        wait_for(self.hidden, what="the hidden card")


class XWaylandWithoutAPanelBar(Story):
    host = "none"

    def test_the_strip_keeps_the_card_and_toggles_it(self):
        x, y = wait_for(lambda: self.velto.strip, what="the strip").middle
        holds(lambda: self.velto.card_is_visible, 1, "the card beside the strip")
        for _ in range(3):
            self.desktop.click(x, y)
            wait_for(self.hidden, what="the hidden card")
            holds(self.hidden, 0.5, "a hidden card")
            self.desktop.click(x, y)
            wait_for(lambda: self.velto.card_is_visible, what="the card")

    def test_the_menu_of_the_strip_keeps_the_card(self):
        x, y = wait_for(lambda: self.velto.strip, what="the strip").middle
        self.desktop.click(x, y, 3)
        wait_for(self.menu_is_open, what="the menu")

        holds(lambda: self.velto.card_is_visible, 1, "the card beside the menu")
        self.desktop.key("Escape")
        wait_for(lambda: not self.menu_is_open(), what="no menu")
        holds(lambda: self.velto.card_is_visible, 1, "the card")

    def test_the_menu_of_the_strip_stands_on_a_window_that_the_window_manager_knows(self):
        x, y = wait_for(lambda: self.velto.strip, what="the strip").middle
        for _ in "on the card", "on the window with the keyboard":
            self.desktop.click(x, y, 3)
            owner = wait_for(self.owner_of_menu, what="the menu")
            wait_for(lambda: owner in self.desktop.ask("xprop", "-root", "_NET_CLIENT_LIST"), 5, f"{owner} as known")
            self.desktop.key("Escape")
            wait_for(lambda: not self.menu_is_open(), what="no menu")
            self.desktop.key("Escape")
            wait_for(lambda: self.hidden() and self.other.has_state("focused"), what="the keyboard back")

    def owner_of_menu(self):
        for window in re.findall(r"^ +(0x\w+)", self.desktop.ask("xwininfo", "-root", "-children"), re.MULTILINE):
            # The window manager has put the other windows of the program into frames.
            if owner := re.search(r"window id # (\w+)", self.desktop.ask("xprop", "-id", window, "WM_TRANSIENT_FOR")):
                return owner[1]
        raise LookupError("no menu on the screen")


if __name__ == "__main__":
    unittest.main()
