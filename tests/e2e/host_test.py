# SPDX-License-Identifier: MIT
"""Panel bars come and go."""
import time
import unittest

from desktop import VirtualDesktop, holds, wait_for


class PanelBars(unittest.TestCase):
    def start(self, host):
        self.desktop = self.enterContext(VirtualDesktop(host=host))
        self.velto = self.desktop.start_velto({})

    def strip(self):
        """The strip's time. LookupError without a strip."""
        for window in self.velto.other_windows:
            for found in [window, *window.find_all()]:
                if found.name == self.velto.time:
                    return found.name
        raise LookupError("no strip with the time of the card")

    def has_strip(self):
        return bool(self.velto.other_windows)

    def test_a_restarted_bar_has_the_item_within_two_seconds(self):
        for host in ("xfce", "press"):
            with self.subTest(host=host), VirtualDesktop(host=host) as self.desktop:
                self.velto = self.desktop.start_velto({})
                wait_for(lambda: self.desktop.registered_items)
                self.velto.press("Start")
                wait_for(lambda: self.velto.time <= "24:58")

                self.desktop.stop_host()
                self.desktop.start_host()
                back = time.monotonic()

                wait_for(lambda: self.desktop.registered_items, what="the item in the new bar")
                self.assertLess(time.monotonic() - back, 2)
                wait_for(lambda: self.desktop.item_rectangle)
                if host == "press":
                    bar = self.desktop.application(self.desktop.host.pid)
                    wait_for(lambda: bar.find("label").text == self.velto.time)
                hidden = not self.velto.card_is_visible
                self.desktop.click_item()
                wait_for(lambda: self.velto.card_is_visible == hidden, what="the click on the new item")

    def test_without_a_bar_a_strip_shows_the_time(self):
        self.start("none")
        wait_for(self.has_strip, what="the strip")
        wait_for(self.strip, what="25:00 on the strip")

        self.velto.press("Start")
        wait_for(lambda: self.strip() <= "24:58", what="a strip that counts with the card")
        strip = self.velto.other_windows[0]
        x, y, width, height = strip.rectangle
        self.assertGreater(x + width, 1000)
        self.assertLess(y, 60)

        self.desktop.click(*strip.middle)
        wait_for(lambda: not self.velto.card_is_visible)
        self.desktop.click(*strip.middle)
        wait_for(lambda: self.velto.card_is_visible)

    def test_the_strip_gives_way_to_a_bar_and_returns(self):
        self.start("none")
        wait_for(self.has_strip, what="the strip")

        self.desktop.start_host("xfce")
        wait_for(lambda: self.velto.card_is_visible and not self.has_strip(), what="the strip gone")

        self.desktop.stop_host()
        stopped = time.monotonic()
        wait_for(self.has_strip, what="the strip again")
        self.assertGreater(time.monotonic() - stopped, 1.5)
        wait_for(self.strip)

    def test_a_bar_leaves_no_strip(self):
        self.start("xfce")

        holds(lambda: not self.has_strip(), 3, "no strip beside a bar")


if __name__ == "__main__":
    unittest.main()
