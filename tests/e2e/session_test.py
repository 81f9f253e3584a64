# SPDX-License-Identifier: MIT
"""The end of the session, as a session manager says it."""
import subprocess
import time
import unittest

import session_manager
from desktop import VirtualDesktop, wait_for


class EndOfSession(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.manager = self.enterContext(subprocess.Popen(
            ["/usr/bin/python3", "-B", session_manager.__file__], env=self.desktop.environment, text=True, bufsize=1,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE))
        self.addCleanup(self.manager.kill)
        address = self.hear()
        self.velto = self.desktop.start_velto({"focusMinutes": 30}, {"SESSION_MANAGER": address})
        self.assertEqual([self.hear(), self.hear()], ["registered", "saved"])

    def hear(self):
        return self.manager.stdout.readline().strip()

    def tell(self, command):
        self.manager.stdin.write(command + "\n")

    def test_ends_it_within_a_second_whatever_is_shown(self):
        for entries in (["About velto"], ["How to Use"], ["Settings…"]):
            self.velto.item.choose(*entries)
        wait_for(lambda: len(self.velto.other_windows) == 3, what="three windows")
        self.velto.item.choose("Auto-Transition")
        start = time.monotonic()

        self.tell("save")
        self.assertEqual(self.hear(), "saved")
        self.tell("die")
        self.assertEqual(self.hear(), "closed")

        self.assertEqual(self.velto.wait(), 0)
        self.assertLess(time.monotonic() - start, 1)
        self.assertTrue(self.velto.settings["autoTransition"])
        self.assertEqual(self.desktop.log("velto"), "")

    def test_that_is_cancelled_lets_it_go_on(self):
        self.velto.item.choose("Start Focus")

        self.tell("save")
        self.assertEqual(self.hear(), "saved")
        self.tell("cancel")

        announced = len(self.desktop.announcements)
        wait_for(lambda: len(self.desktop.announcements) > announced + 2, what="three more seconds")
        self.assertTrue(self.velto.card_is_visible)


if __name__ == "__main__":
    unittest.main()
