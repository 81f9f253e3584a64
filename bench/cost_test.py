# SPDX-License-Identifier: MIT
"""What velto costs, beside the least program of its kind on the same desktop at the same time."""
import os
import time
import unittest

from desktop import VirtualDesktop, wait_for
from processes import LOOKS_AT_BAR, cost_a_second, memory

FLOOR = os.environ["FLOOR_BIN"]
SECONDS = 20
CLEARS_PICTURES = 31  # seconds after a start, Qt has cleared the cache of its pictures


class Cost(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())

    def start_velto(self, desktop, is_shown, counts):
        velto = desktop.start_velto({})
        if counts:
            velto.press("Start")
        if not is_shown:
            desktop.click(20, desktop.size[1] - 20)
            wait_for(lambda: not velto.card_is_visible, what="the hidden card")
        return velto.pid

    def test_it_costs_nothing_at_rest_and_little_more_than_the_least_program_counting(self):
        desktops = [self.enterContext(VirtualDesktop()) for _ in range(3)]
        resting_card = self.start_velto(desktops[0], is_shown=True, counts=False)
        resting = self.start_velto(desktops[1], is_shown=False, counts=False)
        all_rest = time.monotonic() + CLEARS_PICTURES
        card = self.start_velto(desktops[2], is_shown=True, counts=True)
        velto = self.start_velto(self.desktop, is_shown=False, counts=True)
        floor = self.desktop.run(FLOOR).pid
        time.sleep(max(LOOKS_AT_BAR, all_rest - time.monotonic()))

        of_resting_card, of_resting, of_card, of_velto, of_floor = cost_a_second(
            [[pid] for pid in (resting_card, resting, card, velto, floor)], SECONDS)

        print(f"\ncounting: {of_velto[0]:.2%} of a core and {of_velto[1]:.1f} wake-ups a second, "
              f"on show {of_card[0]:.2%} and {of_card[1]:.1f}, "
              f"the floor {of_floor[0]:.2%} and {of_floor[1]:.1f}; "
              f"memory {memory([velto])[0]:.1f} MiB, the floor {memory([floor])[0]:.1f} MiB")
        self.assertEqual(of_resting_card[1], 0, "at rest with the card on show")
        self.assertEqual(of_resting[1], 0, "at rest with the card hidden")
        # Four outlined digits are drawn against two plain ones: twice the instructions, and up to four times the
        # time where the processor has slept in between.
        self.assertLess(of_velto[0], 6 * of_floor[0])
        self.assertLess(of_velto[1], 1.5 * of_floor[1])
        # The same, and fourteen frames of the digits: 6 to 12 times the floor.
        self.assertLess(of_card[0], 20 * of_floor[0])
        self.assertLess(of_card[1], 6 * of_floor[1])
        self.assertLess(memory([velto])[0], 2 * memory([floor])[0])

    def test_a_window_gives_its_memory_back(self):
        velto = self.desktop.start_velto({})

        def after_the_form():
            velto.item.choose("Settings…")
            forms = wait_for(lambda: [form for form in velto.app.children if form.find_all("push button", "Cancel")],
                             what="the form")
            time.sleep(1)  # it is drawn; its caret goes on
            forms[0].find("push button", "Cancel").press()
            wait_for(lambda: not velto.app.find_all("push button", "Cancel"), what="the form's end")
            time.sleep(1)
            return memory([velto.pid])[1]

        first, *_, last = [after_the_form() for _ in range(3)]

        print(f"\nprivate memory after the form: {first:.1f} MiB, at the third time {last:.1f} MiB")
        self.assertLess(last, first + 0.5)


if __name__ == "__main__":
    unittest.main()
