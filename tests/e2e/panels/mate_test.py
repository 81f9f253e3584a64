# SPDX-License-Identifier: MIT
"""The item in the panel bar of Mate."""
import unittest

from panel_stories import PanelStories


class TheMatePanel(PanelStories, unittest.TestCase):
    host = "mate"
    chatter = 3  # it asks for each property of a new picture on its own


if __name__ == "__main__":
    unittest.main()
