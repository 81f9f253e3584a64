# SPDX-License-Identifier: MIT
"""The program used by somebody without a mouse: nothing but keys, from another window and back to it."""
import unittest

from desktop import VirtualDesktop, holds, wait_for
from sheet import Sheet


class KeysAlone(unittest.TestCase):
    """Beside a window manager of no desktop, whose key for velto is Control+Alt+V."""

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(wm="openbox"))
        self.velto = self.desktop.start_velto({})
        self.other = self.desktop.open_window("other")

    def key_for_velto(self):
        self.desktop.key("ctrl+alt+v")
        wait_for(lambda: self.velto.card.find("push button", "Start").has_state("focused"), what="the card's keyboard")

    def the_other_window_has_the_keyboard(self):
        wait_for(lambda: self.other.has_state("focused"), what="the keyboard in the other window")
        self.desktop.type("here")
        wait_for(lambda: self.other.text == "here")

    def test_the_timer_is_started_paused_and_reset(self):
        self.key_for_velto()
        self.desktop.key("Return")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"], what="the started timer")
        self.desktop.key("space")
        wait_for(lambda: self.velto.controls == ["Start", "Reset"], what="the paused timer")
        self.desktop.key("Tab", "Return")
        wait_for(lambda: self.velto.controls == ["Start"], what="the reset timer")

        self.desktop.key("Escape")

        wait_for(lambda: not self.velto.card_is_visible, what="the hidden card")
        self.the_other_window_has_the_keyboard()

    def test_the_form_is_opened_filled_in_and_applied(self):
        self.key_for_velto()
        self.desktop.key("shift+F10", "Up", "Up", "Up", "Up", "Return")  # past "Quit", "About velto" and "How to Use"
        sheet = Sheet(self.velto)
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the first field")

        self.desktop.type("12")                                # in place of what it held
        self.desktop.key("Tab", "Tab", "Tab", "Right", "Tab")  # past the slider and the field of the break, on its slider
        self.desktop.key("space", "Tab")                       # auto-transition
        self.desktop.key("Home", "Tab")                        # no countdown tick; its button is now disabled
        self.desktop.key("Down", "Tab", "Tab", "Tab", "Tab")   # the next sound at the end of a focus
        self.desktop.key("space")                              # music during focus
        wait_for(lambda: sheet.window.find_all("combo box", "Lo-Fi"), what="the presets")
        self.desktop.key("Tab", "End", "Tab")                  # the address of one's own
        self.desktop.type("http://radio.example/stream")
        self.desktop.key("Return", "Return")

        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")
        expected = {
            "focusMinutes": 12, "breakMinutes": 6, "autoTransition": True, "countdownSound": b'"None"',
            "focusEndSound": b'"Hero"', "enableFocusMusic": True, "focusMusicPreset": b'"Custom URL"',
            "focusCustomURL": "http://radio.example/stream"}
        wait_for(lambda: expected.items() <= self.velto.settings.items(), what="the settings file")
        wait_for(lambda: self.velto.card.find("push button", "Start").has_state("focused"), what="the card's keyboard")
        self.desktop.key("Escape")
        wait_for(lambda: not self.velto.card_is_visible, what="the hidden card")
        self.the_other_window_has_the_keyboard()

    def test_escape_closes_one_thing_at_a_time(self):
        self.key_for_velto()
        self.desktop.key("Menu", "Up", "Up", "Up", "Up", "Return")
        sheet = Sheet(self.velto)
        self.desktop.key("Tab", "Tab", "Tab", "Tab", "Tab")
        picker = sheet.picker("Countdown Tick")
        wait_for(lambda: picker.has_state("focused"), what="the keyboard in the picker")
        self.desktop.key("space")
        wait_for(lambda: picker.find_all("list item", "Pop"), what="the list")

        self.desktop.key("Up", "Escape")
        holds(lambda: Sheet.is_open(self.velto) and picker.name == "Tink", 1, "the form, unchanged")
        self.desktop.key("Up")
        wait_for(lambda: picker.name == "Submarine", what="a choice without the list")
        self.desktop.key("Escape")
        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")
        holds(lambda: self.velto.card_is_visible, 1, "the card")
        self.desktop.key("Escape")
        wait_for(lambda: not self.velto.card_is_visible, what="the hidden card")
        self.the_other_window_has_the_keyboard()

    def test_the_shortcut_brings_an_open_form_back_with_the_keyboard(self):
        self.velto.item.choose("Settings…")
        sheet = Sheet(self.velto)
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the first field")
        self.desktop.type("42")
        self.velto.item.activate()
        wait_for(lambda: not self.velto.card_is_visible, what="the hidden card")
        self.the_other_window_has_the_keyboard()

        self.desktop.key("ctrl+alt+v")

        sheet = Sheet(self.velto)
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the form")
        self.assertEqual(sheet.number("Focus").text, "42")


class KeysFromRightToLeft(unittest.TestCase):
    """In Arabic the arrow keys go where they point."""

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(wm="openbox"))
        self.velto = self.desktop.start_velto({}, {"LANGUAGE": "ar"})
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")
        self.desktop.key("ctrl+alt+v")
        wait_for(lambda: self.velto.card.find("push button", "ابدأ").has_state("focused"), what="the card's keyboard")

    def test_tab_goes_left_on_the_card(self):
        self.desktop.key("Return")
        wait_for(lambda: self.velto.controls == ["أعِد الضبط", "أوقف مؤقتًا"], what="both buttons, from the left")

        self.desktop.key("Tab")

        wait_for(lambda: self.velto.card.find("push button", "أعِد الضبط").has_state("focused"), what="the left button")
        self.desktop.key("Return")
        wait_for(lambda: self.velto.controls == ["ابدأ"], what="the reset timer")

    def test_left_opens_a_submenu(self):
        self.desktop.key("shift+F10", *["Up"] * 6)  # past automatic transition, the last of the switches
        self.desktop.key("Left", "Down", "Return")

        wait_for(lambda: self.velto.card.find_all(name="الاستراحة"), what="the break")

    def test_the_form_is_filled_in_and_applied(self):
        self.desktop.key("shift+F10", "Up", "Up", "Up", "Up", "Return")
        sheet = Sheet(self.velto, apply="طبّق")
        field, slider = sheet.number("التركيز"), sheet.slider("التركيز")
        wait_for(lambda: field.has_state("focused"), what="the keyboard in the first field")
        self.desktop.type("40")
        self.desktop.key("Tab")
        wait_for(lambda: slider.has_state("focused"), what="the keyboard on the slider")

        self.desktop.key("Left", "Left", "Right", "Left")
        wait_for(lambda: slider.value == 42, what="more on the left")
        self.desktop.key("Tab", "Tab", "Left", "Tab")
        wait_for(lambda: sheet.slider("الاستراحة").value == 6, what="more on the left, too")
        self.desktop.key("space", "Tab", "Tab")
        play = sheet.button("شغّل دقّات العد التنازلي")
        wait_for(lambda: play.has_state("focused"), what="the keyboard on the first sound's button")
        self.assertLess(play.middle, sheet.picker("دقّات العد التنازلي").middle)
        self.desktop.key("shift+Tab", "Return")

        wait_for(lambda: not Sheet.is_open(self.velto, "طبّق"), what="the form's end")
        expected = {"focusMinutes": 42, "breakMinutes": 6, "autoTransition": True}
        wait_for(lambda: expected.items() <= self.velto.settings.items(), what="the settings file")


if __name__ == "__main__":
    unittest.main()
