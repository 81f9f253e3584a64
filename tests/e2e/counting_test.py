# SPDX-License-Identifier: MIT
"""A person counts down on the card."""
import unittest

from desktop import VirtualDesktop, holds, wait_for


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())


class Counting(unittest.TestCase):
    def setUp(self):
        self.velto = desktop.start_velto({})
        self.addCleanup(self.velto.kill)

    def test_the_card_is_at_rest_at_launch(self):
        self.assertEqual(self.velto.time, "25:00")
        self.assertEqual(self.velto.phase, "Focus")
        self.assertEqual(self.velto.controls, ["Start"])
        self.assertTrue(self.velto.card.find_all(name="Focus: 25m  •  Break: 5m"))
        self.assertTrue(self.velto.card.find_all(name="velto"))
        holds(lambda: self.velto.time == "25:00", 1.5, "a timer at rest")

    def test_pause_keeps_the_remaining_time(self):
        self.velto.press("Start")
        wait_for(lambda: self.velto.time <= "24:58")

        self.velto.press("Pause")
        wait_for(lambda: self.velto.controls == ["Start", "Reset"])
        held = self.velto.time
        holds(lambda: self.velto.time == held, 2.5, "the time while paused")

    def test_reset_returns_to_the_full_length(self):
        self.velto.press("Start")
        wait_for(lambda: self.velto.time <= "24:58")

        self.velto.press("Reset")

        wait_for(lambda: self.velto.time == "25:00")
        self.assertEqual(self.velto.controls, ["Start"])
        holds(lambda: self.velto.time == "25:00", 1.5, "a timer that was reset")

    def test_reset_of_a_paused_timer_returns_to_the_full_length(self):
        self.velto.press("Start")
        wait_for(lambda: self.velto.time <= "24:59")
        self.velto.press("Pause")

        self.velto.press("Reset")

        wait_for(lambda: self.velto.time == "25:00" and self.velto.controls == ["Start"])

    def test_the_controls_have_three_forms(self):
        self.assertEqual(self.velto.controls, ["Start"])

        self.velto.press("Start")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"])

        self.velto.press("Pause")
        wait_for(lambda: self.velto.controls == ["Start", "Reset"])

        self.velto.press("Start")
        wait_for(lambda: self.velto.controls == ["Pause", "Reset"])

        self.velto.press("Reset")
        wait_for(lambda: self.velto.controls == ["Start"])

    def test_it_goes_on_counting_while_the_card_is_hidden(self):
        self.velto.press("Start")
        desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible)
        holds(lambda: not self.velto.card_is_visible, 2)

        desktop.click_item()

        wait_for(lambda: self.velto.card_is_visible)
        self.assertLess(self.velto.time, "24:59")


class EverySecond(unittest.TestCase):
    """Beside a bar that is told each label, so that no second can be overlooked."""

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.velto.card_is_visible and self.desktop.announced_labels == [])

    def announced(self, count):
        return wait_for(lambda: len(self.desktop.announced_labels) >= count and self.desktop.announced_labels)

    def test_start_counts_each_one(self):
        self.desktop.click(*self.velto.card.find("push button", "Start").middle)

        self.assertEqual(self.announced(5)[:5], ["24:59", "24:58", "24:57", "24:56", "24:55"])

    def test_start_resumes_after_pause(self):
        self.velto.press("Start")
        self.announced(2)
        self.velto.press("Pause")
        wait_for(lambda: self.velto.controls == ["Start", "Reset"])
        before = self.desktop.announced_labels
        holds(lambda: self.desktop.announced_labels == before, 2.5, "no count while paused")

        self.velto.press("Start")

        expected = [f"24:{second}" for second in range(59, 59 - len(before) - 2, -1)]
        self.assertEqual(self.announced(len(expected))[:len(expected)], expected)


if __name__ == "__main__":
    unittest.main()
