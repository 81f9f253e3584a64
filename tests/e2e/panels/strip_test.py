# SPDX-License-Identifier: MIT
"""The strip, on a desktop with a window manager and nothing else."""
import unittest

from desktop import wait_for
from panel_stories import PanelStories


class TheStrip(PanelStories, unittest.TestCase):
    host = "none"

    def strip(self):
        for window in self.velto.other_windows:
            for button in window.find_all("push button"):
                if button.name == self.velto.item.label:
                    return button
        raise LookupError("no strip")


if __name__ == "__main__":
    unittest.main()
