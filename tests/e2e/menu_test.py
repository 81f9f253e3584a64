# SPDX-License-Identifier: MIT
"""The menu, as a panel bar reads it and as a person uses it."""
import unittest

from desktop import VirtualDesktop, holds, wait_for


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())


class TheMenu(unittest.TestCase):
    def setUp(self):
        self.velto = desktop.start_velto({})
        self.addCleanup(self.velto.kill)

    def checked(self, *path):
        return [entry.label for entry in self.velto.item.menu().find(*path).children if entry.checked]

    def menu_is_open(self):
        try:
            return bool(desktop.menu_rectangle)
        except LookupError:
            return False

    def test_its_first_entries_follow_the_timer(self):
        menu = self.velto.item.menu()
        self.assertTrue(menu.find("Start Focus").enabled)
        self.assertFalse(menu.find("Reset Focus").visible)

        self.velto.item.choose("Start Focus")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"])
        wait_for(lambda: self.velto.item.menu().find("Pause Focus"))
        self.assertTrue(self.velto.item.menu().find("Reset Focus").enabled)

        wait_for(lambda: self.velto.time <= "24:58")
        self.velto.item.choose("Pause Focus")
        wait_for(lambda: self.velto.item.menu().find("Start Focus"))
        self.assertTrue(self.velto.item.menu().find("Reset Focus").enabled)

        self.velto.item.choose("Reset Focus")
        wait_for(lambda: self.velto.time == "25:00")
        wait_for(lambda: not self.velto.item.menu().find("Reset Focus").visible)

    def test_a_preset_changes_both_durations_and_the_card(self):
        self.assertEqual(self.checked("Presets"), ["25m focus / 5m break"])

        self.velto.item.choose("Presets", "50m focus / 10m break")

        wait_for(lambda: self.velto.time == "50:00")
        self.assertTrue(self.velto.card.find_all(name="Focus: 50m  •  Break: 10m"))
        self.assertEqual(self.checked("Presets"), ["50m focus / 10m break"])
        self.assertEqual(self.checked("Focus Duration"), ["50 minutes"])
        self.assertEqual(self.checked("Break Duration"), ["10 minutes"])
        wait_for(lambda: (self.velto.settings["focusMinutes"], self.velto.settings["breakMinutes"]) == (50, 10))

    def test_the_phase_can_be_chosen(self):
        self.velto.item.choose("Current Phase", "Break")

        wait_for(lambda: (self.velto.phase, self.velto.time) == ("Break", "05:00"))
        wait_for(lambda: self.checked("Current Phase") == ["Break"])
        self.assertTrue(self.velto.item.menu().find("Start Break"))

    def test_the_chosen_music_is_marked(self):
        self.assertEqual(self.checked("Focus Music"), ["None"])

        self.velto.item.choose("Focus Music", "Groove Salad")

        wait_for(lambda: self.checked("Focus Music") == ["Groove Salad"])
        self.assertEqual(self.checked("Break Music"), ["None"])
        wait_for(lambda: self.velto.settings["focusMusicPreset"] == b'"Groove Salad"')
        wait_for(lambda: self.velto.settings["enableFocusMusic"] is True)

    def test_a_right_click_opens_it_and_leaves_the_card_hidden(self):
        desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible)

        desktop.click_item(button=3)
        wait_for(self.menu_is_open, what="a menu on the screen")
        self.assertGreater(desktop.menu_rectangle[3], 250)
        holds(lambda: not self.velto.card_is_visible, 0.7, "no card beside the menu")
        desktop.key("Escape")
        wait_for(lambda: not self.menu_is_open(), what="the menu closed")

        desktop.click_item()
        wait_for(lambda: self.velto.card_is_visible, what="a left click after the menu")


if __name__ == "__main__":
    unittest.main()
