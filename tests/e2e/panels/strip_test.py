# SPDX-License-Identifier: MIT
"""The strip, on a desktop with a window manager and nothing else."""
import unittest

from desktop import VirtualDesktop, holds, wait_for
from messages import messages_in

ROOM_FOR_BUTTONS = 168
MENU_ROLES = ("menu item", "check menu item")


class TwoScreens(unittest.TestCase):
    def setUp(self):
        monitors = [(1280, 800, 0, 0), (1024, 768, 1280, 0)]
        self.desktop = self.enterContext(VirtualDesktop(host="none", wm="openbox", size=(2304, 800), monitors=monitors))
        self.velto = self.desktop.start_velto({})
        self.wait_for_the_strip()

    def wait_for_the_strip(self):
        wait_for(self.velto.has_strip, what="the strip")

    def wait_until_it_is_gone(self):
        wait_for(lambda: not self.velto.has_strip(), what="the strip gone from a filled screen")

    def place(self, window, x):
        self.desktop.ask("wmctrl", "-r", window, "-e", f"0,{x},100,300,200")

    def fill_screen(self, window, action="add"):
        self.desktop.ask("wmctrl", "-r", window, "-b", f"{action},fullscreen")

    def test_a_window_that_fills_the_other_screen_leaves_the_strip_alone(self):
        self.desktop.open_window("other")
        for x, name in ((1400, "other"), (100, "main")):
            with self.subTest(screen=name):
                self.place("other", x)
                self.fill_screen("other")
                if name == "main":
                    self.wait_until_it_is_gone()
                else:
                    holds(self.velto.has_strip, 2)
                self.fill_screen("other", "remove")
                self.wait_for_the_strip()

    def test_a_film_keeps_it_away_while_the_keyboard_is_on_the_other_screen(self):
        notes = self.desktop.open_window("notes")
        self.place("notes", 1400)
        self.desktop.ask("wmctrl", "-r", "notes", "-b", "add,sticky")
        self.desktop.open_window("film")
        self.place("film", 100)
        film = self.desktop.ask("xdotool", "search", "--name", "^film$").split()[0]

        for end in (["wmctrl", "-r", "film", "-b", "remove,fullscreen"], ["xdotool", "windowminimize", film],
                    ["wmctrl", "-s", "1"], ["wmctrl", "-c", "film"]):
            with self.subTest(end=end):
                self.desktop.ask("wmctrl", "-a", "film")
                self.fill_screen("film")
                self.wait_until_it_is_gone()

                self.desktop.ask("wmctrl", "-a", "notes")
                wait_for(lambda: notes.has_state("focused"), what="the keyboard on the other screen")
                holds(lambda: not self.velto.has_strip(), 2)

                self.desktop.ask(*end)
                self.wait_for_the_strip()


class TheStrip(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="none"))
        self.velto = self.desktop.start_velto({"breakMinutes": 10})
        wait_for(lambda: self.velto.strip, what="the strip")

    def click(self, button=1, modifiers=()):
        self.desktop.click(*self.velto.strip.middle, button, modifiers)

    def entry(self, name):
        for role in MENU_ROLES:
            for entry in self.velto.app.find_all(role, name):
                return entry
        raise LookupError(f"no menu entry {name!r}")

    def menu_is_open(self):
        return bool(self.velto.app.find_all("menu item", "Quit"))

    def wait_until_closed(self):
        wait_for(lambda: not self.menu_is_open(), what="the menu closed")

    def test_it_is_at_the_top_clear_of_window_buttons_and_takes_no_focus(self):
        field = self.desktop.open_window("other")
        focused = self.desktop.focused_window

        x, y, width, _ = self.velto.strip.rectangle
        self.assertEqual((x + width, y), (1280 - ROOM_FOR_BUTTONS, 6))
        self.click()
        wait_for(lambda: not self.velto.card_is_visible)
        self.desktop.type("still here")

        wait_for(lambda: field.text == "still here")
        self.assertEqual(self.desktop.focused_window, focused)

    def test_it_is_on_top_on_every_workspace_and_in_no_task_bar(self):
        x, y, _, _ = self.velto.strip.rectangle
        for window in self.desktop.ask("xdotool", "search", "--onlyvisible", "--class", "org.velto.Velto").split():
            if f"Absolute upper-left X:  {x}\n  Absolute upper-left Y:  {y}\n" in self.desktop.ask(
                    "xwininfo", "-id", window):
                break
        states = self.desktop.ask("xprop", "-id", window, "_NET_WM_STATE", "_NET_WM_DESKTOP")

        for state in ("ABOVE", "STICKY", "SKIP_TASKBAR", "SKIP_PAGER"):
            self.assertIn(f"_NET_WM_STATE_{state}", states)
        self.assertIn(f"= {0xffffffff}", states)

    def test_its_corners_are_transparent_with_and_without_a_compositor(self):
        def corner_is_the_desktop():
            picture = self.desktop.picture()
            x, y, _, _ = self.velto.strip.rectangle
            return (picture[x, y] == picture[x - 1, y] and picture[x, y + 8] != picture[x - 1, y + 8])

        wait_for(corner_is_the_desktop)
        with VirtualDesktop(host="none", compositing=True) as self.desktop:
            self.velto = self.desktop.start_velto({})
            wait_for(corner_is_the_desktop)

    def test_a_left_or_middle_click_toggles_the_card(self):
        self.click()
        wait_for(lambda: not self.velto.card_is_visible)
        holds(lambda: not self.velto.card_is_visible, 0.7)

        self.click(button=2)
        wait_for(lambda: self.velto.card_is_visible)

    def test_the_card_is_under_it_from_launch(self):
        x, y, strip_width, height = self.velto.strip.rectangle
        left, top, width, _ = self.velto.card.rectangle
        self.assertEqual(top, y + height + 6)
        self.assertAlmostEqual(left + width / 2, min(x + strip_width / 2, 1280 - width / 2), delta=1)

        self.click()
        wait_for(lambda: not self.velto.card_is_visible)
        self.click()
        wait_for(lambda: self.velto.card_is_visible)

        self.assertEqual(self.velto.card.rectangle[:2], (left, top))

    def test_dragging_it_along_its_edge_is_no_click(self):
        x, y, width, height = self.velto.strip.rectangle
        self.desktop.press(x + width // 2, y + height // 2)
        for step in range(1, 11):
            self.desktop.move(x + width // 2 - 30 * step, y + height // 2 + 10 * step)
        self.desktop.release()

        wait_for(lambda: self.velto.strip.rectangle == (x - 300, y, width, height))
        holds(lambda: self.velto.card_is_visible, 0.7)
        self.click()
        wait_for(lambda: not self.velto.card_is_visible)
        self.click()
        wait_for(lambda: self.velto.card_is_visible)
        left, _, card_width, _ = self.velto.card.rectangle
        self.assertAlmostEqual(left + card_width / 2, x - 300 + width / 2, delta=1)

    def test_a_full_screen_window_hides_it(self):
        self.desktop.open_window("other")
        holds(lambda: self.velto.strip, 1)
        self.desktop.ask("wmctrl", "-r", "other", "-b", "add,fullscreen")
        wait_for(lambda: not self.velto.has_strip(), what="the strip gone from a filled screen")

        self.desktop.ask("wmctrl", "-r", "other", "-b", "remove,fullscreen")
        wait_for(self.velto.has_strip, what="the strip again")

    def test_a_preset_is_chosen_with_the_mouse_and_the_card_stays(self):
        self.click(button=3)
        self.desktop.move(*wait_for(lambda: self.entry("Presets")).middle)
        wait_for(lambda: self.entry("25m focus / 5m break"))
        self.assertTrue(self.velto.card_is_visible)

        self.desktop.click(*self.entry("25m focus / 5m break").middle)

        wait_for(lambda: self.velto.settings.get("breakMinutes") == 5)
        self.wait_until_closed()
        self.assertTrue(self.velto.card_is_visible)
        self.click()
        wait_for(lambda: not self.velto.card_is_visible)

    def test_control_click_opens_the_menu(self):
        self.desktop.ask("xdotool", "keydown", "ctrl")
        self.click()
        wait_for(self.menu_is_open)
        self.desktop.ask("xdotool", "keyup", "ctrl")

        self.assertTrue(self.velto.card_is_visible)
        self.desktop.key("Escape")
        self.wait_until_closed()

    def test_the_menu_works_with_the_keyboard(self):
        self.click(button=3)
        wait_for(self.menu_is_open)

        self.desktop.key("Down", "Down", "Down", "Down", "Right")  # Start, two durations, Presets
        wait_for(lambda: self.entry("90m focus / 15m break"))
        self.desktop.key("Escape")
        wait_for(lambda: not self.velto.app.find_all("check menu item", "90m focus / 15m break"))
        self.desktop.key("Escape")
        self.wait_until_closed()

        self.click(button=3)
        wait_for(self.menu_is_open)
        self.desktop.key("Down", "Return")
        wait_for(lambda: self.velto.item.menu().find("Pause Focus"), what="Start chosen with the keyboard")

    def test_the_open_menu_follows_the_timer_and_shows_its_marks(self):
        self.click(button=3)
        wait_for(lambda: self.entry("Start Focus"))
        self.assertFalse(self.entry("Auto-Transition").has_state("checked"))

        self.velto.item.choose("Start Focus")
        self.velto.item.choose("Auto-Transition")

        wait_for(lambda: self.entry("Pause Focus"))
        wait_for(lambda: self.entry("Reset Focus"))
        wait_for(lambda: self.entry("Auto-Transition").has_state("checked"))
        self.desktop.key("Escape")

    def test_it_follows_the_time(self):
        self.velto.press("Start")

        for second in ("24:59", "24:58", "24:57"):
            wait_for(lambda: self.velto.strip.name == second)

    def test_sends_nothing_on_the_bus_without_a_host(self):
        self.velto.press("Start")
        wait_for(lambda: self.velto.strip.name < "24:59")

        self.assertEqual(messages_in(self.desktop, self.velto.item.bus_name, 3), [])
        self.assertLess(self.velto.strip.name, "24:58")


if __name__ == "__main__":
    unittest.main()
