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
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")

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

    def test_a_phase_of_one_minute_ends_on_the_tick_after_zero_and_shows_the_card(self):
        self.start({"focusMinutes": 1})
        self.velto.press("Start")
        started = time.monotonic()
        seen = ["01:00"]

        def ended():
            if self.velto.time != seen[-1]:
                seen.append(self.velto.time)
            return self.velto.phase == "Break"

        wait_for(ended, timeout=120)

        self.assertEqual(seen[:61], ["01:00"] + [f"00:{second:02}" for second in range(59, -1, -1)])
        self.assertGreater(time.monotonic() - started, 60.5)
        wait_for(lambda: (self.velto.time, self.velto.controls) == ("05:00", ["Start"]))

    def test_the_end_shows_a_hidden_card_and_leaves_the_focus(self):
        self.start({"focusMinutes": 0})
        field = desktop.open_window("other")
        self.velto.press("Start")
        desktop.click(*field.middle)
        wait_for(lambda: not self.velto.card_is_visible, what="the card hidden before the end")

        wait_for(lambda: self.velto.card_is_visible, what="the card at the end")

        self.assertEqual(self.velto.phase, "Break")
        desktop.type("still here")
        wait_for(lambda: field.text == "still here")

    def test_auto_transition_runs_on(self):
        self.start({"focusMinutes": 0, "breakMinutes": 1, "autoTransition": True})

        self.velto.press("Start")

        wait_for(lambda: (self.velto.phase, self.velto.time) == ("Break", "00:58"))
        self.assertEqual(self.velto.controls, ["Pause", "Reset"])

    def test_auto_transition_goes_from_break_to_focus_too(self):
        self.start({"focusMinutes": 2, "breakMinutes": 0, "autoTransition": True})
        self.velto.item.choose("Current Phase", "Break")
        wait_for(lambda: (self.velto.phase, self.velto.time) == ("Break", "00:00"))

        self.velto.press("Start")

        wait_for(lambda: (self.velto.phase, self.velto.time) == ("Focus", "01:58"))


if __name__ == "__main__":
    unittest.main()
