# SPDX-License-Identifier: MIT
"""The settings form, opened, filled in and left."""
import unittest

from desktop import VirtualDesktop, holds, wait_for
from sheet import Sheet, labels

DEFAULTS = {
    "focusMinutes": 25, "breakMinutes": 5, "autoTransition": False, "countdownSound": b'"Tink"',
    "focusEndSound": b'"Glass"', "breakEndSound": b'"Submarine"', "focusMusicPreset": b'"Lo-Fi"',
    "breakMusicPreset": b'"Lo-Fi"', "focusCustomURL": "", "breakCustomURL": "", "enableFocusMusic": False,
    "enableBreakMusic": False, "musicVolume": 0.25, "hasLaunchedBefore": True,
}


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())


class SettingsForm(unittest.TestCase):
    def start(self, settings=None):
        self.velto = desktop.start_velto(settings or {})
        self.addCleanup(self.velto.kill)

    def open(self):
        self.velto.item.choose("Settings…")
        return Sheet(self.velto)

    def settings_become(self, expected):
        wait_for(lambda: self.velto.settings == expected, what="the settings file")

    def test_the_menu_shows_the_panel_with_the_form_over_it(self):
        self.start()
        self.velto.item.activate()
        wait_for(lambda: not self.velto.card_is_visible, what="the hidden card")

        sheet = self.open()

        self.assertTrue(self.velto.card_is_visible)
        x, y, width, height = sheet.window.rectangle
        card_x, card_y, card_width, _ = self.velto.card.rectangle
        self.assertEqual((width, height), (500, 650))
        self.assertEqual(y, card_y)
        self.assertLessEqual(x + width, desktop.picture().width)
        self.assertTrue(x <= card_x and card_x + card_width <= x + width, "The form covers the card")

    def test_asking_again_changes_nothing(self):
        self.start()
        sheet = self.open()
        sheet.type_number("Focus", 42)

        self.velto.item.choose("Settings…")
        self.velto.item.choose("Focus Duration", "Custom…")

        holds(lambda: Sheet(self.velto).number("Focus").text == "42", 1, "the edited form")
        self.assertEqual(len([window for window in self.velto.app.children if window.showing]), 2)

    def test_ten_minutes_typed_and_applied_are_shown_and_stored(self):
        self.start()
        sheet = self.open()
        sheet.type_number("Focus", 10)

        sheet.click("Apply")

        wait_for(lambda: "Focus: 10m  •  Break: 5m" in labels(self.velto))
        self.assertEqual(self.velto.time, "10:00")
        self.settings_become(DEFAULTS | {"focusMinutes": 10})

    def test_minutes_that_overflow_in_seconds_are_refused(self):
        self.start()
        sheet = self.open()
        sheet.type_number("Focus", 153722867280912931)

        sheet.click("Apply")

        self.settings_become(DEFAULTS)
        wait_for(lambda: self.velto.time == "25:00")

    def test_a_click_that_is_seen_late_keeps_the_card(self):
        self.start()
        apply = self.open().button("Apply").middle

        with desktop.paused(self.velto.process):
            desktop.click(*apply)

        self.settings_become(DEFAULTS)
        holds(lambda: self.velto.card_is_visible, 1, "the card")

    def test_an_untouched_form_stores_all_thirteen_settings_with_their_types(self):
        self.start()
        self.assertEqual(self.velto.settings, {"hasLaunchedBefore": True})

        self.open().click("Apply")

        self.settings_become(DEFAULTS)
        for key, value in DEFAULTS.items():
            self.assertIs(type(self.velto.settings[key]), type(value), key)

    def test_new_break_minutes_leave_the_running_focus_alone(self):
        self.start()
        self.velto.press("Start")
        wait_for(lambda: self.velto.time <= "24:58")
        sheet = self.open()
        sheet.type_number("Break", 7)
        sheet.click("Apply")

        wait_for(lambda: "Focus: 25m  •  Break: 7m" in labels(self.velto))
        self.assertEqual(self.velto.controls, ["Pause", "Reset"])
        self.assertLess(self.velto.time, "24:59")
        before = self.velto.time
        wait_for(lambda: self.velto.time < before, what="the countdown going on")

    def test_new_focus_minutes_restart_the_running_focus(self):
        self.start()
        self.velto.press("Start")
        wait_for(lambda: self.velto.time <= "24:58")
        sheet = self.open()
        sheet.type_number("Focus", 30)
        sheet.click("Apply")

        wait_for(lambda: (self.velto.time, self.velto.controls) == ("30:00", ["Start"]))

    def test_cancel_and_escape_store_nothing(self):
        self.start()
        sheet = self.open()
        sheet.type_number("Focus", 10)
        sheet.click("Cancel")

        sheet = self.open()
        self.assertEqual(sheet.number("Focus").text, "25", "A new form starts from the settings")
        sheet.type_number("Focus", 11)
        desktop.key("Escape")
        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")

        self.assertTrue(self.velto.card_is_visible)
        self.assertEqual(self.velto.settings, {"hasLaunchedBefore": True})

    def test_closing_its_window_cancels(self):
        self.start()
        sheet = self.open()
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the first field")
        sheet.type_number("Focus", 10)

        desktop.key("alt+F4")

        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")
        self.assertTrue(self.velto.card_is_visible)
        self.assertEqual(self.open().number("Focus").text, "25", "A new form starts from the settings")
        self.assertEqual(self.velto.settings, {"hasLaunchedBefore": True})

    def test_an_edited_form_hides_and_returns_with_the_panel(self):
        self.start()
        sheet = self.open()
        sheet.switch("Auto-Transition").press()
        sheet.type_number("Break", 9)

        self.velto.item.activate()
        wait_for(lambda: not self.velto.card_is_visible and not Sheet.is_open(self.velto), what="both hidden")
        self.velto.item.activate()

        sheet = Sheet(self.velto)
        self.assertEqual(sheet.number("Break").text, "9")
        self.assertTrue(sheet.switch("Auto-Transition").has_state("checked"))
        sheet.click("Apply")
        self.settings_become(DEFAULTS | {"breakMinutes": 9, "autoTransition": True})
        self.assertEqual(self.open().number("Break").text, "9")

    def test_a_press_in_it_keeps_it_and_one_elsewhere_hides_it(self):
        self.start()
        sheet = self.open()
        x, y, width, height = sheet.window.rectangle
        for place in [(x + 20, y + height - 20), (x + 30, y + 30), sheet.switch("Auto-Transition").middle]:
            desktop.click(*place)
        holds(lambda: Sheet.is_open(self.velto) and self.velto.card_is_visible, 1, "panel and form")

        desktop.click(x - 50, y + height + 10)

        wait_for(lambda: not self.velto.card_is_visible and not Sheet.is_open(self.velto), what="both hidden")

    def test_it_takes_the_keyboard_and_gives_it_back(self):
        self.start()
        other = desktop.open_window("other")

        sheet = self.open()
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the first field")
        desktop.type("3")
        wait_for(lambda: sheet.number("Focus").text == "3", what="3 in the place of what was there")
        desktop.click(*sheet.window.find("label", "Behavior").middle)
        wait_for(lambda: other.has_state("focused"), what="the keyboard back, after a press beside the fields")
        sheet.type_number("Focus", 33)
        sheet.click("Cancel")

        wait_for(lambda: other.has_state("focused"), what="the keyboard back, after the form")
        desktop.type("here")
        wait_for(lambda: other.text == "here")

    def test_a_click_shows_it_again_with_the_keyboard(self):
        self.start()
        other = desktop.open_window("other")
        sheet = self.open()
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the first field")
        self.velto.item.activate()
        wait_for(lambda: other.has_state("focused"), what="the keyboard back, without the form")

        self.velto.item.activate()

        sheet = Sheet(self.velto)
        wait_for(lambda: sheet.number("Focus").has_state("focused"), what="the keyboard in the field that had it")

    def test_choosing_from_a_picker_keeps_the_form(self):
        self.start()
        sheet = self.open()
        picker = sheet.picker("Countdown Tick")
        desktop.click(*picker.middle)
        entry = wait_for(lambda: picker.find("list item", "Pop"), what="the list")

        desktop.click(*entry.middle)

        wait_for(lambda: picker.name == "Pop", what="the choice")
        sheet.click("Apply")
        self.settings_become(DEFAULTS | {"countdownSound": b'"Pop"'})

    def test_it_works_through_the_accessibility_tree_alone(self):
        self.start()
        sheet = self.open()

        sheet.number("Focus").text = "14"
        sheet.slider("Break").value = 8
        sheet.switch("Auto-Transition").press()
        sheet.switch("Enable music during break").press()
        wait_for(lambda: sheet.window.find_all("combo box", "Lo-Fi"), what="the presets")
        sheet.slider("Volume").value = 60
        wait_for(lambda: sheet.window.find_all("label", "60%"), what="60%")
        sheet.button("Apply").press()

        wait_for(lambda: not Sheet.is_open(self.velto), what="the form's end")
        wait_for(lambda: len(self.velto.settings) == len(DEFAULTS))
        stored = self.velto.settings
        self.assertAlmostEqual(stored.pop("musicVolume"), 0.6, places=6)
        expected = DEFAULTS | {"focusMinutes": 14, "breakMinutes": 8, "autoTransition": True, "enableBreakMusic": True}
        del expected["musicVolume"]
        self.assertEqual(stored, expected)

    def test_card_and_form_stay_on_a_screen_that_gets_smaller(self):
        with VirtualDesktop() as shrinking:
            velto = shrinking.start_velto({})
            shrinking.click_item()
            wait_for(lambda: not velto.card_is_visible)
            shrinking.click_item()
            wait_for(lambda: velto.card_is_visible)
            velto.item.choose("Settings…")
            sheet = Sheet(velto)

            shrinking.ask("xrandr", "--setmonitor", "*smaller", "800/200x600/150+0+0", "screen")

            def are_on_the_screen():
                return all(x >= 0 and y >= 0 and x + width <= 800 and y + height <= 600
                           for x, y, width, height in (sheet.window.rectangle, velto.card.rectangle))

            wait_for(are_on_the_screen, what="card and form on the smaller screen")
            shrinking.click(*sheet.button("Cancel").middle)
            wait_for(lambda: not Sheet.is_open(velto), what="the form's end")

    def test_it_fits_a_low_screen_and_is_whole(self):
        with VirtualDesktop(size=(1024, 600)) as low:
            velto = low.start_velto({})
            velto.item.choose("Settings…")
            sheet = Sheet(velto)
            x, y, width, height = sheet.window.rectangle

            self.assertEqual(width, 500)
            self.assertLessEqual(y + height, 600)
            _, button_y, _, button_height = sheet.button("Apply").rectangle
            self.assertLess(button_y + button_height, y + height)


if __name__ == "__main__":
    unittest.main()
