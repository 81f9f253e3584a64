# SPDX-License-Identifier: MIT
"""What is heard during a phase of one minute, even when the sound server goes and comes back."""
import unittest

from desktop import wait_for

from music import MusicStory
from sound import RATE, Recording, alert_sound, find_all


class WholePhase(MusicStory):
    def test_a_break_without_music_is_silent(self):
        self.start_velto("tone.mp3", focusMinutes=1, autoTransition=True, countdownSound=b'"None"',
                         focusEndSound=b'"None"')

        self.velto.press("Start")
        self.wait_for_tone()
        wait_for(lambda: self.velto.phase == "Break", timeout=120, what="the break")

        self.wait_for_silence()
        wait_for(lambda: self.velto.time == "04:57", what="a break that runs")
        self.assertEqual((self.streams.connections, self.recording.has_nothing), (1, True))

    def test_music_comes_back_with_the_sound_server_and_the_countdown_goes_on(self):
        self.start_velto("tone.mp3", focusMinutes=1)
        self.velto.press("Start")
        self.wait_for_tone()

        self.restart_sound_server()

        self.wait_for_tone()
        self.assertEqual(len(self.velto.output), 1)
        wait_for(lambda: self.velto.time == "00:50", what="ten seconds")
        self.assert_counts_every_second(10)

    def test_the_next_tick_is_heard_once_the_sound_server_is_back(self):
        self.start_velto("tone.mp3", enableFocusMusic=False, focusMinutes=1)
        tick = alert_sound("Tink")
        self.velto.press("Start")
        wait_for(lambda: find_all(tick, self.recording.samples(3)), timeout=90, what="a tick")

        self.restart_sound_server()

        before = len(self.desktop.announcements)
        wait_for(lambda: len(self.desktop.announcements) > before, what="the next second")
        wait_for(lambda: find_all(tick, self.recording.samples()), timeout=len(tick) / RATE + 0.5, what="its tick")
        wait_for(lambda: self.velto.phase == "Break", what="the end of the phase")
        self.assert_counts_every_second(60)

    def restart_sound_server(self):
        self.recording.stop()
        self.sound.kill()
        self.sound.start()
        self.recording = Recording(self.desktop)

    def assert_counts_every_second(self, seconds):
        """From the start of a phase of one minute."""
        wait_for(lambda: len(self.desktop.announcements) >= seconds, timeout=3, what="what the item has announced")
        seen = self.desktop.announcements[:seconds]
        self.assertEqual([label for _, _, label in seen], [f"00:{59 - second:02}" for second in range(seconds)])
        self.assertLess(max(abs(when - seen[0][0] - second) for second, (when, _, _) in enumerate(seen)), 0.25)


if __name__ == "__main__":
    unittest.main()
