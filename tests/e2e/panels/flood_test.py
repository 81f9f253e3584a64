# SPDX-License-Identifier: MIT
"""Somebody on the bus who keeps asking for the menu. Runs alone, since it would hold up the others."""
import unittest

from gi.repository import GLib

from desktop import VirtualDesktop, wait_for


class AFlood(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.velto = self.desktop.start_velto({})
        self.velto.item.choose("Start Focus")

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

    def test_of_calls_does_not_delay_the_second(self):
        earlier = len(self.desktop.announcements)

        def seconds():
            return [when for when, _, _ in self.desktop.announcements[earlier:]]

        with self.desktop.hindrance(self.velto.process) as held_up:
            wait_for(lambda: len(seconds()) > 2)
            self.ask_for_the_menu(10000)
            wait_for(lambda known=len(seconds()): len(seconds()) > known)

        late = [abs(when - seconds()[0] - second) for second, when in enumerate(seconds())]
        self.assertLess(max(late), 0.05 + held_up.seconds, late)
        print(f"{max(late):.3f} s late, held up for {held_up.seconds:.3f} s")


if __name__ == "__main__":
    unittest.main()
