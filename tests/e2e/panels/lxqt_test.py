# SPDX-License-Identifier: MIT
"""The item in the panel bar of Lxqt."""
import unittest

from panel_stories import PanelStories


class TheLxqtPanel(PanelStories, unittest.TestCase):
    host = "lxqt"
    chatter = 4  # it asks for each property of a new picture on its own


if __name__ == "__main__":
    unittest.main()
