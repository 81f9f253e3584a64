# SPDX-License-Identifier: MIT
"""Background music, from the first connection to the last sound."""
import unittest

from desktop import holds, wait_for

from music import MusicStory
from sound import ENVIRONMENT, settings_for


class Music(MusicStory):
    def sound_after(self, button, heard):
        """When the first and the last sound came after a press on `button`, as soon as it was `heard`."""
        button = self.velto.card.find("push button", button)
        start = len(self.recording.samples())
        button.press()
        heard()
        return self.recording.sound_since(start)

    def clients(self):
        return self.sound.list("clients").count('application.name = "velto"')

    def test_opens_nothing_before_it_is_needed(self):
        self.start_velto("tone.mp3")

        self.assertNotIn("libcanberra-pulse", self.libraries())  # a connection to the sound server
        self.assertEqual(self.programs(), [])
        self.assertEqual((self.streams.connections, self.clients()), (0, 0))

    def test_it_follows_the_timer(self):
        self.start_velto("tone.mp3")

        first, _ = self.sound_after("Start", self.wait_for_tone)
        self.assertLess(first, 2)
        self.assertEqual((self.streams.connections, self.streams.open_connections), (1, 1))

        _, last = self.sound_after("Pause", self.wait_for_silence)
        self.assertLess(last, 0.3)

        self.velto.press("Start")
        self.wait_for_tone()
        self.assertEqual((self.streams.connections, self.streams.open_connections), (2, 1))

        self.velto.press("Reset")
        self.wait_for_silence()

        self.velto.press("Start")
        self.wait_for_tone()
        self.velto.item.choose("Current Phase", "Break")
        self.wait_for_silence()
        self.assertEqual(self.streams.connections, 3)
        holds(lambda: self.streams.connections == 3, 2, "no connection without a phase that runs")

    def test_each_start_is_reported_at_once_in_one_line(self):
        self.start_velto("tone.mp3")
        line = f"Started playing music from: {self.url}\n".encode()

        for lines in (line, line + line):
            self.velto.press("Start")
            wait_for(lambda: self.velto.printed == lines, timeout=2, what="the line")
            self.velto.press("Pause")
        self.assertEqual(self.velto.printed, line + line)

    def test_it_starts_at_the_stored_volume(self):
        for volume in (0.25, 0.5, 1.0):
            with self.subTest(volume):
                self.start_velto("tone.mp3", musicVolume=volume)
                self.velto.press("Start")
                wait_for(lambda: self.recording.has_tone_at(volume), what=f"the tone at {volume}")
                holds(lambda: self.recording.has_tone_at(volume), 1, f"the tone at {volume}")
                self.velto.kill()
                wait_for(lambda: self.recording.has_nothing, what="silence")

    def test_the_end_of_a_phase_closes_the_stream(self):
        self.start_velto("tone.mp3", focusMinutes=0, focusEndSound=b'"None"')

        self.velto.press("Start")
        wait_for(lambda: self.velto.phase == "Break", what="the end of the phase, which comes after a second")

        self.wait_for_silence()
        self.assertEqual(self.velto.controls, ["Start"])
        self.assertEqual(self.streams.connections, 1)
        holds(lambda: self.streams.open_connections == 0 and self.recording.has_nothing, 2, "silence")

    def test_a_focus_after_a_break_without_music_is_heard(self):
        self.start_velto("tone.mp3", breakMinutes=0, autoTransition=True, breakEndSound=b'"None"')
        self.velto.item.choose("Current Phase", "Break")

        self.velto.press("Start")
        wait_for(lambda: self.velto.phase == "Focus", what="the end of the phase, which comes after a second")

        self.wait_for_tone()
        self.assertEqual(self.streams.connections, 1)

    def test_an_unusable_address_is_only_reported(self):
        self.velto = self.desktop.start_velto(settings_for("http://no address"), ENVIRONMENT)

        self.velto.press("Start")
        wait_for(lambda: self.velto.output, what="a line")

        self.assertEqual(self.velto.output, ["Invalid music URL: http://no address"])
        wait_for(lambda: self.velto.time == "24:58", what="a timer that runs")
        self.assertEqual(self.desktop.log("velto"), "")

    def test_a_hanging_stream_server_does_not_delay_quitting(self):
        self.start_velto("silent")
        self.velto.press("Start")
        wait_for(lambda: self.streams.open_connections == 1, what="a connection")

        self.assert_quits_at_once()

    def test_a_hanging_sound_server_does_not_delay_quitting(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        self.sound.freeze()

        self.assert_quits_at_once()


if __name__ == "__main__":
    unittest.main()
