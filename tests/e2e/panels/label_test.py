# SPDX-License-Identifier: MIT
"""What a bar that shows labels hears of the item."""
import unittest

from desktop import VirtualDesktop, wait_for
from messages import messages_in


class ABarThatShowsLabels(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.velto = self.desktop.start_velto({})
        self.velto.press("Start")
        self.desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible)
        wait_for(lambda: self.velto.item.label < "24:59")

    def test_counting_costs_one_label_a_second_and_nothing_else(self):
        heard = messages_in(self.desktop, self.velto.item.bus_name, 5)

        self.assertIn(heard.count("XAyatanaNewLabel"), (4, 5, 6))
        self.assertLessEqual(len(heard), 12)
        self.assertEqual(set(heard), {"XAyatanaNewLabel", "answer"})  # this bar reads the label again


if __name__ == "__main__":
    unittest.main()
