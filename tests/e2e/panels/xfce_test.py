# SPDX-License-Identifier: MIT
"""The item in the panel bar of Xfce."""
import unittest

from panel_stories import PanelStories


class TheXfcePanel(PanelStories, unittest.TestCase):
    host = "xfce"


if __name__ == "__main__":
    unittest.main()
