# SPDX-License-Identifier: MIT
"""The item in the panel bar of Lxqt."""
import unittest

from panel_stories import PanelStories


class TheLxqtPanel(PanelStories, unittest.TestCase):
    host = "lxqt"
    questions = 3  # the path of its theme, the name, then the picture


if __name__ == "__main__":
    unittest.main()
