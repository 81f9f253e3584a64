# SPDX-License-Identifier: MIT
"""What a bar that shows labels hears of the item."""
import re
import unittest

from gi.repository import GLib

from desktop import VirtualDesktop, wait_for
from messages import messages_in


class ABarThatShowsLabels(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.velto = self.desktop.start_velto({})
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")
        self.velto.press("Start")
        self.desktop.click_item()
        wait_for(lambda: not self.velto.card_is_visible)
        wait_for(lambda: self.velto.item.label < "24:59")

    def ask_for_the_menu(self, times):
        """As fast as it goes; returns when everything is answered."""
        bus = self.desktop.connect(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        answers = []
        for _ in range(times):
            bus.call(self.velto.item.bus_name, "/MenuBar", "com.canonical.dbusmenu", "GetLayout",
                     GLib.Variant("(iias)", (0, -1, [])), GLib.VariantType("(u(ia{sv}av))"), 0, 120000, None,
                     lambda connection, result: answers.append(connection.call_finish(result)))
        while len(answers) < times:
            GLib.MainContext.default().iteration(True)
        bus.close_sync(None)

    def test_counting_costs_one_label_a_second_and_nothing_else(self):
        heard = messages_in(self.desktop, self.velto.item.bus_name, 5)

        self.assertIn(heard.count("XAyatanaNewLabel"), (4, 5, 6))
        self.assertLessEqual(len(heard), 12)
        self.assertEqual(set(heard), {"XAyatanaNewLabel", "answer"})  # this bar reads the label again

    def test_a_flood_of_questions_does_not_hold_up_the_second(self):
        times = self.desktop.path("times")
        monitor = self.desktop.run("dbus-monitor", "--profile", "type='signal',member='XAyatanaNewLabel'",
                                   output=times)

        def seconds():
            with open(times, encoding="ascii") as file:
                return [float(line) for line in re.findall(r"sig\t([\d.]+)\t.*XAyatanaNewLabel", file.read())]

        wait_for(lambda: len(seconds()) > 2)
        self.ask_for_the_menu(10000)
        wait_for(lambda known=len(seconds()): len(seconds()) > known)
        monitor.terminate()

        late = [abs(time - seconds()[0] - second) for second, time in enumerate(seconds())]
        self.assertLess(max(late), 0.05, late)


if __name__ == "__main__":
    unittest.main()
