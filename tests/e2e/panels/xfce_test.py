# SPDX-License-Identifier: MIT
"""The item in the panel bar of Xfce."""
import unittest

from panel_stories import PanelStories


class TheXfcePanel(PanelStories, unittest.TestCase):
    host = "xfce"
    questions = 1  # all properties at once


if __name__ == "__main__":
    unittest.main()
