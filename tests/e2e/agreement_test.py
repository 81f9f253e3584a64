# SPDX-License-Identifier: MIT
"""The panel bar and the card tell the same time."""
import unittest

from desktop import VirtualDesktop, holds, wait_for

class TheBarAndTheCard(unittest.TestCase):
    def start(self, host):
        self.desktop = self.enterContext(VirtualDesktop(host=host))
        self.velto = self.desktop.start_velto({})

    def test_a_label_agrees_with_the_card_every_second(self):
        self.start("press")
        wait_for(lambda: self.velto.item.label == self.velto.time == "25:00")
        self.velto.press("Start")
        bar = self.desktop.application(self.desktop.host.pid)

        agreed = ["25:00"]
        while len(agreed) < 5:
            def agree_on_another():
                time = self.velto.time
                return time != agreed[-1] and self.velto.item.label == bar.find("label").text == time and time

            agreed.append(wait_for(agree_on_another, what=f"agreement after {agreed[-1]}"))
        self.assertEqual(agreed, sorted(agreed, reverse=True))

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

        wait_for(lambda: self.velto.item.label <= "24:58")

        self.assertEqual(self.velto.item.pictures, at_rest)

    def test_a_picture_belongs_to_the_time_on_the_card(self):
        self.start("xfce")
        wait_for(lambda: self.velto.item.pictures)
        seen = {}  # for each time, its picture in each count

        def counts_share_times():
            self.count(seen)
            return sum(len(pictures) > 1 for pictures in seen.values()) > 3
        wait_for(counts_share_times, timeout=120, what="times of two counts")

        for time, pictures in seen.items():
            self.assertEqual(pictures, pictures[:1] * len(pictures), f"the picture of {time}")
        first = [pictures[0] for pictures in seen.values()]
        self.assertEqual(len(set(map(str, first))), len(first), "one picture for each time")
        for width, height, _ in sum(first, []):
            self.assertEqual(width, height)

    def count(self, seen):
        """Adds the picture that the bar is given for each time on the card, over some seconds."""
        wait_for(lambda: self.velto.time == "25:00")
        pictures = {}
        self.settle(pictures)
        self.velto.press("Start")
        wait_for(lambda: self.settle(pictures) <= "24:53", what="some seconds")
        self.velto.press("Reset")
        for time, picture in pictures.items():
            seen.setdefault(time, []).append(picture)

    def settle(self, pictures):
        """Notes the picture if it and the time stay for a moment; returns the time."""
        time, picture = self.velto.time, self.velto.item.pictures
        try:
            holds(lambda: (self.velto.time, self.velto.item.pictures) == (time, picture), 0.3)
            pictures[time] = picture
        except AssertionError:
            pass  # between two seconds
        return time


if __name__ == "__main__":
    unittest.main()
