# SPDX-License-Identifier: MIT
"""Where the card stands, on real screens."""
import unittest

from desktop import VirtualDesktop, wait_for

WIDTH, HEIGHT, GAP = 360, 420, 6

# The window manager knows no monitor without an output, and an X server in memory has one output only: it would
# push the card back to the main monitor. So there is none where the card belongs on the other.


class Placement(unittest.TestCase):
    def card_after_a_click(self, **options):
        """The item's and the card's rectangle once a click has shown the card."""
        self.desktop = self.enterContext(VirtualDesktop(**options))
        velto = self.desktop.start_velto({})
        self.desktop.click_item()
        wait_for(lambda: not velto.card_is_visible)
        self.desktop.click_item()
        return wait_for(lambda: self.desktop.item_rectangle), wait_for(lambda: velto.card).rectangle

    def test_it_hangs_centred_under_the_item(self):
        item, card = self.card_after_a_click(host="press")

        self.assertEqual(card[2:], (WIDTH, HEIGHT))
        self.assertAlmostEqual(card[0] + WIDTH / 2, item[0] + item[2] / 2, delta=1)
        self.assertEqual(card[1], item[1] + item[3] + GAP)

    def test_it_stays_within_the_right_edge_of_the_screen(self):
        item, card = self.card_after_a_click(host="xfce")

        self.assertGreater(item[0] + item[2] / 2 + WIDTH / 2, 1280)
        self.assertEqual(card[0], 1280 - WIDTH)
        self.assertAlmostEqual(card[1], item[1] + item[3] + GAP, delta=2)

    def test_it_stays_on_a_monitor_left_of_and_below_the_main_one(self):
        item, card = self.card_after_a_click(host="press", wm="none", size=(1280 + 400, 1000), bar_monitor=1,
                                             monitors=[(1280, 800, 400, 0), (400, 768, 0, 232)])

        self.assertAlmostEqual(card[0] + WIDTH / 2, item[0] + item[2] / 2, delta=1)
        self.assertEqual(card[1], 232 + item[3] + GAP)

    def test_it_stays_on_its_monitor_beside_another(self):
        item, card = self.card_after_a_click(host="press", wm="none", size=(1280 + 380, 1000), bar_monitor=1,
                                             monitors=[(1280, 800, 300, 0), (300, 768, 0, 232)])

        self.assertEqual(card[:2], (0, 232 + item[3] + GAP))  # the left edge wins where there is no room

    def test_it_stays_on_the_main_monitor_with_the_bar(self):
        item, card = self.card_after_a_click(host="xfce", size=(2304, 1000),
                                             monitors=[(1280, 800, 0, 0), (1024, 768, 1280, 232)])

        self.assertEqual(card[0], 1280 - WIDTH)
        self.assertAlmostEqual(card[1], item[1] + item[3] + GAP, delta=2)

    def test_at_twice_the_pixels_it_is_twice_as_large(self):
        item, card = self.card_after_a_click(host="xfce", scale=2, size=(1920, 1200))

        self.assertEqual(card[2:], (2 * WIDTH, 2 * HEIGHT))
        self.assertEqual(card[0], 1920 - 2 * WIDTH)
        self.assertAlmostEqual(card[1], item[1] + item[3] + 2 * GAP, delta=4)


if __name__ == "__main__":
    unittest.main()
