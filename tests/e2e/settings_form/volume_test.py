# SPDX-License-Identifier: MIT
"""The volume slider of the settings form, heard."""
import time
import unittest

from desktop import VirtualDesktop, wait_for
from sheet import Sheet
from sound import ENVIRONMENT, Recording, SoundServer, StreamServer, settings_for


class Volume(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        SoundServer(self.desktop)
        streams = StreamServer()
        self.addCleanup(streams.close)
        self.recording = Recording(self.desktop)
        settings = settings_for(streams.url("tone.mp3"), musicVolume=0.25)
        self.velto = self.desktop.start_velto(settings, ENVIRONMENT)

    def wait_for_volume(self, volume):
        wait_for(lambda: self.recording.has_tone_at(volume), what=f"the tone at {volume}")

    def scroll_down(self, sheet):
        slider = sheet.slider("Volume")
        x, y, width, height = sheet.window.rectangle
        self.desktop.move(x + width // 2, y + height // 2)

        def is_in_sight():
            self.desktop.ask("xdotool", "click", "5")
            return slider.middle[1] < sheet.button("Apply").rectangle[1] - 25
        wait_for(is_in_sight, what="the volume slider in sight")

    def drag_volume(self, sheet, start, end):
        """From one volume to another, by the knob."""
        x, y, width, height = sheet.slider("Volume").rectangle
        place = [x + 9 + round(volume * (width - 18)) for volume in (start, end)]
        self.desktop.press(place[0], y + height // 2)
        for step in range(1, 11):
            self.desktop.move(place[0] + (place[1] - place[0]) * step // 10, y + height // 2)

    def test_dragging_it_is_heard_at_once_and_cancel_restores_it(self):
        self.velto.press("Start")
        self.wait_for_volume(0.25)
        self.velto.item.choose("Settings…")
        sheet = Sheet(self.velto)
        self.scroll_down(sheet)

        self.drag_volume(sheet, 0.25, 1.0)
        moved = time.monotonic()
        self.wait_for_volume(1.0)
        self.assertLess(time.monotonic() - moved, 1.5)
        self.desktop.release()
        self.assertTrue(sheet.window.find_all("label", "100%"))

        self.drag_volume(sheet, 1.0, 0.5)
        self.desktop.release()
        self.wait_for_volume(0.5)
        self.assertEqual(self.velto.settings["musicVolume"], 0.25)

        sheet.click("Cancel")
        self.wait_for_volume(0.25)
        self.assertEqual(self.velto.settings["musicVolume"], 0.25)

    def test_apply_stores_it_and_the_music_goes_on(self):
        self.velto.press("Start")
        self.wait_for_volume(0.25)
        self.velto.item.choose("Settings…")
        sheet = Sheet(self.velto)
        self.scroll_down(sheet)
        self.drag_volume(sheet, 0.25, 0.5)
        self.desktop.release()

        sheet.click("Apply")

        wait_for(lambda: abs(self.velto.settings["musicVolume"] - 0.5) < 1e-6, what="the new volume in the file")
        self.wait_for_volume(0.5)
        self.assertEqual(len(self.velto.output), 1, "The stream was not opened again")


if __name__ == "__main__":
    unittest.main()
