# SPDX-License-Identifier: MIT
"""A session of somebody who sees nothing: Orca speaks, keys answer."""
import os
import shutil
import subprocess
import time
import unittest

from desktop import VirtualDesktop, wait_for
from screen_reader import ScreenReader


def has_orca_43():
    if not shutil.which("orca"):
        return False
    said = subprocess.run(["orca", "--version"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    return said.startswith("43")


@unittest.skipUnless(has_orca_43(), "the words and the log are those of Orca 43, which is not installed")
class Spoken(unittest.TestCase):
    def start(self, settings, environment=None):
        self.desktop = self.enterContext(VirtualDesktop(wm="openbox"))
        self.reader = ScreenReader(self.desktop)
        self.velto = self.desktop.start_velto(settings, environment)
        for timeout in (10, 10, 30):  # Orca misses a window now and then that comes while it is busy
            self.desktop.open_window("other")
            try:
                return self.reader.hear("text", timeout=timeout)  # its field; the title before it is not always said
            except AssertionError as error:
                missed = error
        raise missed

    # "text" is the field of the other window; its title is not always said.

    def press(self, *keys, hear=()):
        self.desktop.key(*keys)
        self.reader.hear(*hear)
        time.sleep(0.3)  # as somebody who listens

    def open_menu_and_go_up(self, *entries):
        self.press("shift+F10")
        for entry in entries:
            self.press("Up", hear=[entry])

    def test_the_timer_the_form_and_the_windows_are_spoken(self):
        self.start({})
        self.press("ctrl+alt+v", hear=["velto", "Start"])
        self.press("Return", hear=["Pause"])
        self.press("space", hear=["Start"])
        self.press("Tab", hear=["Reset"])
        self.press("Return", hear=["Start"])

        self.press("shift+F10")
        self.press("Down", hear=["Start Focus"])
        self.press("Up", hear=["Quit"])
        self.press("Up", hear=["About velto"])
        self.press("Up", hear=["How to Use"])
        self.press("Up", hear=["Settings…"])
        self.press("Return", hear=["Focus text"])
        self.press("Tab", hear=["Focus slider 25", "minutes"])
        self.press("Right", hear=["26"])
        self.press("Tab", hear=["Break text"])
        self.press("Tab", hear=["Break slider 5", "minutes"])
        self.press("Tab", hear=["Auto-Transition check box not checked"])
        self.press("space", hear=["checked"])
        self.press("Tab", hear=["Tink combo box", "Countdown Tick"])
        self.press("Tab", hear=["Play Countdown Tick"])
        self.press("shift+Tab", hear=["Tink combo box"])
        self.press("space", hear=["List with 15 items", "Tink"])
        self.press("Up", hear=["Submarine"])
        self.press("Up", hear=["Sosumi"])
        self.press("Return", hear=["Sosumi combo box"])
        self.press("Up", hear=["Purr"])
        self.press("Return", hear=["velto", "Start"])
        wait_for(lambda: self.velto.settings.get("focusMinutes") == 26, what="the applied form")
        self.assertEqual(self.velto.settings["countdownSound"], b'"Purr"')

        self.open_menu_and_go_up("Quit", "About velto", "How to Use")
        self.press("Return", hear=["How to Use velto dialog Welcome to velto"])
        self.press("Escape", hear=["text"])
        self.press("ctrl+alt+v", hear=["Start"])
        self.open_menu_and_go_up("Quit", "About velto")
        self.press("Return", hear=["About velto dialog", "Support"])
        self.press("Escape", hear=["text"])
        self.press("ctrl+alt+v", hear=["Start"])
        self.open_menu_and_go_up("Quit")
        self.press("Return")
        self.assertEqual(self.velto.wait(), 0)

    def test_the_end_of_a_phase_is_spoken_but_no_seconds(self):
        self.start({"focusMinutes": 1})
        self.press("ctrl+alt+v", hear=["Start"])
        self.press("Return", hear=["Pause"])
        before = len(self.reader.said())
        wait_for(lambda: self.velto.time == "00:05", timeout=90)
        self.assertEqual(self.reader.said()[before:], [])

        wait_for(lambda: self.velto.phase == "Break", timeout=30)

        self.reader.hear("Break")

    def test_it_leaves_other_screen_readers_alone(self):
        desktop = self.enterContext(VirtualDesktop(wm="openbox"))
        os.symlink(shutil.which("sleep"), desktop.path("orca"))
        other = desktop.run(desktop.path("orca"), "300")

        ScreenReader(desktop)

        self.assertIsNone(other.poll())

    def test_german_is_spoken(self):
        self.start({}, {"LANGUAGE": "de"})
        self.press("ctrl+alt+v", hear=["Starten"])
        self.press("Return", hear=["Anhalten"])
        self.press("space", hear=["Starten"])
        self.press("Tab", hear=["Zurücksetzen"])
        self.press("Return", hear=["Starten"])
        self.open_menu_and_go_up("Beenden", "Über velto", "Anleitung", "Einstellungen …")
        self.press("Return", hear=["Fokus text"])
        self.press("Tab", hear=["Fokus slider 25", "Minuten"])
        self.press("Tab", "Tab", hear=["Pause slider 5", "Minuten"])
        self.press("Tab", hear=["Automatischer Wechsel check box not checked"])
        self.press("Tab", hear=["Tink combo box", "Countdown-Ticken"])
        self.press("Escape", hear=["Starten"])
        self.open_menu_and_go_up("Beenden")
        self.press("Return")
        self.assertEqual(self.velto.wait(), 0)


if __name__ == "__main__":
    unittest.main()
