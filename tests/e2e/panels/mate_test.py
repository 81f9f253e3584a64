# SPDX-License-Identifier: MIT
"""The item in the panel bar of Mate."""
import unittest

from panel_stories import PanelStories


class TheMatePanel(PanelStories, unittest.TestCase):
    host = "mate"
    news = "XAyatanaNewLabel"
    questions = 0


if __name__ == "__main__":
    unittest.main()
