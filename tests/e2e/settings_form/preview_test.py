# SPDX-License-Identifier: MIT
"""The play buttons beside the sound pickers of the settings form, heard."""
import unittest

from desktop import VirtualDesktop, holds, wait_for
from sheet import Sheet
from sound import ENVIRONMENT, RATE, Recording, SoundServer, alert_sound, find_all

# Without their first moment: a recording may begin that much late, whoever plays.
SOUNDS = {name: alert_sound(name)[RATE // 50:] for name in (
    "Basso", "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping", "Pop", "Purr", "Sosumi", "Submarine",
    "Tink")}


class Preview(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        SoundServer(self.desktop)
        self.recording = Recording(self.desktop)
        velto = self.desktop.start_velto({}, ENVIRONMENT)
        velto.item.choose("Settings…")
        self.sheet = Sheet(velto)

    def play(self, title):
        """The names of the sounds heard after a press on the button beside the picker."""
        wait_for(lambda: self.recording.has_nothing, what="silence")
        start = len(self.recording.samples())
        self.sheet.button(f"Play {title}").press()

        def heard():
            samples = self.recording.samples()[start:]
            return [name for name, sound in SOUNDS.items() if find_all(sound, samples)]
        return wait_for(heard, timeout=5, what="a sound")

    def test_plays_the_sound_of_each_picker(self):
        for title, sound in (("Countdown Tick", "Tink"), ("Focus End", "Glass"), ("Break End", "Submarine")):
            self.assertEqual(self.play(title), [sound], title)

    def choose(self, picker, sound):
        self.desktop.click(*picker.middle)
        x, y, _, height = wait_for(lambda: picker.find("list item", sound), what="the list").rectangle
        self.desktop.click(x + 10, y + height // 2)  # not where the list was opened: a double click chooses nothing
        wait_for(lambda: picker.name == sound, what=f"{sound} chosen")

    def test_plays_each_sound_and_nothing_for_none(self):
        picker = self.sheet.picker("Countdown Tick")
        for sound in SOUNDS:
            self.choose(picker, sound)
            self.assertEqual(self.play("Countdown Tick"), [sound])

        self.choose(picker, "None")
        wait_for(lambda: self.recording.has_nothing, what="silence")
        button = self.sheet.button("Play Countdown Tick")
        self.assertFalse(button.has_state("enabled"))
        self.desktop.click(*button.middle)
        holds(lambda: self.recording.has_nothing, 1, "silence")


if __name__ == "__main__":
    unittest.main()
