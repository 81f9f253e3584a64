# SPDX-License-Identifier: MIT
"""The usage notes: as a welcome at the first launch, and from the menu."""
import contextlib
import os
import shutil
import unittest

from desktop import VirtualDesktop, holds, wait_for
from windows import HELP, frame, move, place, properties, shown, title, wait_for_focus, work_area

TEXTS = [
    "Welcome to velto",
    "A simple focus timer for productivity sessions",
    "Getting Started",
    "Find velto in your menu bar at the top of your screen:\n• Left click the icon to see your timer\n"
    "• Right click the icon to open the settings",
    "Timer Controls",
    "• Click Start to begin a focus session\n• Pause anytime to take a break\n• Reset to start over\n"
    "• Switch between Focus and Break phases",
    "Customize Your Experience",
    "• Adjust focus and break durations\n• Choose one of our music presets or add your own\n"
    "• Enable auto-transition between phases\n• Customize notification sounds",
    "Music",
    "Enable background music to enhance concentration. Choose from Lo-Fi, Ambient, or other presets in Settings.",
    "Pro Tips",
    "• Default: 25 min focus, 5 min break (Pomodoro Technique)\n• Music volume can be adjusted in settings\n"
    "• Settings changes won't interrupt active sessions\n• Access this help anytime from the menu",
    "You can access this guide anytime from the menu bar → How to Use",
]


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop(size=(1600, 1000)))


class Help(unittest.TestCase):
    def start(self, defaults=None):
        velto = desktop.start_velto(defaults)
        self.addCleanup(velto.kill)
        return velto

    def forget_settings(self):
        folder = os.path.dirname(desktop.settings_file)
        if os.path.isdir(folder):
            shutil.rmtree(folder)

    def wait_for_windows(self, velto, count):
        wait_for(lambda: len(shown(velto, HELP)) == count, what=f"{count} windows with the usage notes")


class TheWelcome(Help):
    def setUp(self):
        self.forget_settings()

    def test_is_centred_in_front_at_the_first_launch(self):
        desktop.open_window("busy")
        desktop.type("a user who types")

        velto = self.start()

        self.wait_for_windows(velto, 1)
        window = wait_for_focus(desktop, velto)
        self.assertEqual(title(desktop, window), HELP)
        self.assertEqual(place(desktop, window)[2:], (600, 800))
        x, y, width, height = frame(desktop, window)
        left, top, room, depth = work_area(desktop)
        self.assertAlmostEqual(x + width / 2, left + room / 2, delta=8)
        self.assertAlmostEqual(y + height / 2, top + depth / 2, delta=8)
        wait_for(lambda: velto.settings["hasLaunchedBefore"] is True)

    def test_is_not_repeated_even_after_a_kill(self):
        velto = self.start()
        self.wait_for_windows(velto, 1)

        wait_for(lambda: velto.settings["hasLaunchedBefore"] is True)
        velto.kill()
        second = self.start()

        wait_for(lambda: second.card_is_visible, what="the card, shown at launch")
        holds(lambda: not shown(second, HELP), 2, "no welcome")

    def test_is_shown_when_the_settings_cannot_be_written(self):
        folder = os.path.dirname(desktop.settings_file)
        with open(folder, "w", encoding="utf-8"):
            self.addCleanup(os.remove, folder)

        velto = self.start()

        self.wait_for_windows(velto, 1)

    def test_is_a_window_of_its_own(self):
        velto = self.start()
        self.wait_for_windows(velto, 1)
        welcome = wait_for_focus(desktop, velto)

        velto.item.choose("How to Use")
        self.wait_for_windows(velto, 2)
        wait_for(lambda: desktop.focused_window != welcome, what="the focus in the second window")
        second = wait_for_focus(desktop, velto)
        self.assertEqual(title(desktop, second), HELP)
        self.assertEqual(place(desktop, second), place(desktop, welcome))

        desktop.key("Escape")
        self.wait_for_windows(velto, 1)
        desktop.ask("wmctrl", "-i", "-c", welcome)
        self.wait_for_windows(velto, 0)
        self.assertIsNone(velto.process.poll())


class HowToUse(Help):
    def setUp(self):
        self.velto = self.start({})

    def open(self):
        self.velto.item.choose("How to Use")
        self.wait_for_windows(self.velto, 1)
        return wait_for_focus(desktop, self.velto)

    def test_has_the_exact_text(self):
        self.open()

        labels = shown(self.velto, HELP)[0].find_all("label", showing=False)
        self.assertEqual([label.name for label in labels], TEXTS)

    def test_chosen_twice_brings_the_same_window_forward(self):
        window = self.open()
        desktop.open_window("other")

        self.assertEqual(self.open(), window)
        self.assertEqual(len(shown(self.velto, HELP)), 1)

    def test_reopens_where_it_was(self):
        window = self.open()
        left = move(desktop, window)
        desktop.key("Escape")
        self.wait_for_windows(self.velto, 0)

        window = self.open()

        wait_for(lambda: place(desktop, window) == left)

    def test_floats_and_can_only_be_closed(self):
        window = self.open()

        text = properties(desktop, window, "_NET_WM_ALLOWED_ACTIONS", "_NET_WM_STATE")
        self.assertIn("_NET_WM_ACTION_CLOSE", text)
        self.assertIn("_NET_WM_STATE_ABOVE", text)
        for action in ("RESIZE", "MINIMIZE", "MAXIMIZE"):
            self.assertNotIn(f"_NET_WM_ACTION_{action}", text)


class OnALowScreen(Help):
    @contextlib.contextmanager
    def opened(self, size):
        with VirtualDesktop(size=size) as low:
            velto = low.start_velto({})
            velto.item.choose("How to Use")
            self.wait_for_windows(velto, 1)
            window = wait_for_focus(low, velto)

            x, y, width, height = frame(low, window)
            left, top, room, depth = work_area(low)
            self.assertGreaterEqual((x, y), (left, top))
            self.assertLessEqual(y + height, top + depth)
            self.assertEqual(place(low, window)[2], 600)
            yield low, velto

    def test_they_fit_a_small_laptop_without_scrolling(self):
        with self.opened((1366, 768)) as (_, velto):
            with self.assertRaises(LookupError):
                shown(velto, HELP)[0].find("scroll bar")

    def test_they_scroll_and_keep_their_place_when_reopened(self):
        with self.opened((1366, 600)) as (low, velto):
            def bar():
                return shown(velto, HELP)[0].find("scroll bar")
            low.key("Down")
            position = wait_for(lambda: bar().value)
            low.key("Escape")
            self.wait_for_windows(velto, 0)
            velto.item.choose("How to Use")
            self.wait_for_windows(velto, 1)
            self.assertEqual(bar().value, position)


if __name__ == "__main__":
    unittest.main()
