# SPDX-License-Identifier: MIT
"""The sounds of a phase that comes to its end."""
import unittest

from desktop import VirtualDesktop, wait_for

from sound import Recording, SoundServer, alert_sound, find_all

SECONDS = 61  # from the start of a phase of one minute to its end
TOLERANCE = 0.03


class TheEndOfAPhase(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.server = SoundServer(self.desktop)

    def test_is_ten_ticks_then_the_end_sound(self):
        velto = self.desktop.start_velto({"focusMinutes": 1})
        recording = Recording(self.desktop)
        earlier = len(self.desktop.announcements)
        glass = alert_sound("Glass")

        with self.desktop.hindrance(velto.process, self.server.process) as held_up:
            velto.item.choose("Start Focus")
            wait_for(lambda: len(self.desktop.announcements) - earlier >= SECONDS, timeout=2 * SECONDS, what="the end")
            wait_for(lambda: find_all(glass, recording.samples(4)), what="the end sound")

        samples = recording.samples()
        ticks, ends = find_all(alert_sound("Tink"), samples), find_all(glass, samples)
        self.assertEqual((len(ticks), len(ends)), (10, 1))
        self.assertEqual(find_all(alert_sound("Submarine"), samples), [])
        # The first one of all has to find the sound server.
        self.assertLess(1 - (ticks[1] - ticks[0]), 0.2 + held_up.seconds)
        heard = lateness(ticks[1:] + ends)
        shown = lateness([when for when, _, _ in self.desktop.announcements[-10:]])
        print(f"heard {heard}, shown {shown}, held up for {held_up.seconds:.3f} s")
        self.assertLessEqual(max(map(abs, heard)), TOLERANCE + held_up.seconds)


def lateness(beats):
    """Of each, as seen from the first, when they are to be a second apart."""
    return [round(beat - beats[0] - index, 3) for index, beat in enumerate(beats)]


if __name__ == "__main__":
    unittest.main()
