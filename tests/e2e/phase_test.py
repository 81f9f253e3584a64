# SPDX-License-Identifier: MIT
"""The end of a phase."""
import time
import unittest

from desktop import VirtualDesktop, holds, wait_for


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())


class PhaseEnds(unittest.TestCase):
    def start(self, settings):
        self.velto = desktop.start_velto(settings)
        self.addCleanup(self.velto.kill)

    def test_a_focus_of_no_minutes_ends_on_the_first_tick(self):
        self.start({"focusMinutes": 0, "breakMinutes": 3})
        self.assertEqual((self.velto.time, self.velto.phase), ("00:00", "Focus"))

        started = time.monotonic()
        self.velto.press("Start")

        wait_for(lambda: self.velto.phase == "Break")
        self.assertGreater(time.monotonic() - started, 0.9)
        wait_for(lambda: (self.velto.time, self.velto.controls) == ("03:00", ["Start"]))
        holds(lambda: self.velto.time == "03:00", 1.5, "the break at rest")
        self.assertEqual(self.velto.settings["focusMinutes"], 0)

    def test_a_phase_ends_on_the_tick_after_zero_and_shows_the_card(self):
        with VirtualDesktop(host="press") as labelled:
            velto = labelled.start_velto({"focusMinutes": 1})
            velto.press("Start")
            started = time.monotonic()
            field = labelled.open_window("other")
            labelled.click(*field.middle)
            wait_for(lambda: not velto.card_is_visible)

            wait_for(lambda: velto.card_is_visible, timeout=120, what="the card at the end")

            self.assertGreater(time.monotonic() - started, 60.5)
            self.assertEqual(labelled.announced_labels,
                             [f"00:{second:02}" for second in range(59, -1, -1)] + ["05:00"])
            self.assertEqual((velto.phase, velto.time, velto.controls), ("Break", "05:00", ["Start"]))
            labelled.type("still here")
            wait_for(lambda: field.text == "still here", what="the focus where it was")

    def test_auto_transition_runs_on(self):
        self.start({"focusMinutes": 0, "breakMinutes": 1, "autoTransition": True})

        self.velto.press("Start")

        wait_for(lambda: self.velto.phase == "Break" and self.velto.time <= "00:58")
        self.assertEqual(self.velto.controls, ["Pause", "Reset"])

    def test_auto_transition_goes_from_break_to_focus_too(self):
        self.start({"focusMinutes": 2, "breakMinutes": 0, "autoTransition": True})
        self.velto.item.choose("Current Phase", "Break")
        wait_for(lambda: (self.velto.phase, self.velto.time) == ("Break", "00:00"))

        self.velto.press("Start")

        wait_for(lambda: self.velto.phase == "Focus" and "00:00" < self.velto.time <= "01:58")


if __name__ == "__main__":
    unittest.main()
