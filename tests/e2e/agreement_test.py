# SPDX-License-Identifier: MIT
"""The panel bar and the card tell the same time."""
import unittest

from desktop import VirtualDesktop, wait_for

SECONDS = ["24:59", "24:58", "24:57", "24:56"]


class TheBarAndTheCard(unittest.TestCase):
    def start(self, host):
        self.desktop = self.enterContext(VirtualDesktop(host=host))
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.velto.card_is_visible)

    def test_a_label_agrees_with_the_card_every_second(self):
        self.start("press")
        wait_for(lambda: self.velto.item.label == self.velto.time == "25:00")
        self.velto.press("Start")
        bar = self.desktop.application(self.desktop.host.pid)

        for second in SECONDS:
            wait_for(lambda: self.velto.time == second, what=second)
            wait_for(lambda: self.velto.item.label == bar.find("label").text == self.velto.time,
                     what=f"agreement at {second}")

        self.velto.press("Pause")
        wait_for(lambda: self.velto.controls == ["Start", "Reset"])
        wait_for(lambda: self.velto.item.label == bar.find("label").text == self.velto.time)
        self.velto.press("Reset")
        wait_for(lambda: self.velto.item.label == bar.find("label").text == self.velto.time == "25:00")

    def test_a_label_comes_with_one_picture_that_stays(self):
        self.start("press")
        wait_for(lambda: self.velto.item.label == "25:00")
        at_rest = self.velto.item.pictures
        self.velto.press("Start")

        wait_for(lambda: self.velto.item.label == "24:58")

        self.assertEqual(self.velto.item.pictures, at_rest)

    def test_a_picture_belongs_to_the_time_on_the_card(self):
        self.start("xfce")
        wait_for(lambda: self.velto.item.pictures)

        first, second = self.pictures_of_one_count(), self.pictures_of_one_count()

        self.assertEqual(first, second)
        self.assertEqual(len(set(map(str, first.values()))), len(SECONDS) + 1)
        for pictures in first.values():
            for width, height, _ in pictures:
                self.assertEqual(width, height)

    def pictures_of_one_count(self):
        """What the bar is given for each second: the picture that is there while the card does not change."""
        wait_for(lambda: self.velto.time == "25:00")
        rest = self.settled_picture("25:00")
        self.velto.press("Start")
        pictures = {"25:00": rest} | {second: self.settled_picture(second) for second in SECONDS}
        self.velto.press("Reset")
        return pictures

    def settled_picture(self, second):
        wait_for(lambda: self.velto.time == second, what=second)
        last = None

        def settled():
            nonlocal last
            before, last = last, self.velto.item.pictures
            return before == last

        wait_for(settled)
        self.assertEqual(self.velto.time, second)
        return last


if __name__ == "__main__":
    unittest.main()
