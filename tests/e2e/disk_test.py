# SPDX-License-Identifier: MIT
"""A disk that takes ten seconds for what others do at once."""
import os
import time
import unittest

from desktop import VirtualDesktop, wait_for


def on_disk(desktop, **settings):
    """The environment of a program whose settings lie on a disk as bad as said."""
    library = os.path.join(os.path.dirname(desktop.program), "velto_faulty_disk.so")
    return {"LD_PRELOAD": library, "FAULTY_DISK_FOLDER": desktop.path("config/velto")} | {
        f"FAULTY_DISK_{name.upper()}": str(value) for name, value in settings.items()}


class ABusyDisk(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))

    def start(self, sync_ms):
        return self.desktop.start_velto({"focusMinutes": 25}, on_disk(self.desktop, sync_ms=sync_ms))

    def test_the_countdown_goes_on(self):
        velto = self.start(sync_ms=10_000)
        velto.item.choose("Settings…")
        wait_for(lambda: velto.app.find("push button", "Apply"), what="the settings form").press()
        velto.press("Start")
        wait_for(lambda: len(self.desktop.announcements) > 1, what="the countdown")

        with self.desktop.hindrance(velto.process) as held_up:
            velto.item.choose("Auto-Transition")
            self.assertFalse(velto.settings.get("autoTransition"))
            velto.item.choose("Focus Music", "None")
            wait_for(lambda: len(self.desktop.announcements) > 15, what="fifteen seconds")

        times = [when for when, _, _ in self.desktop.announcements]
        gaps = [later - earlier for earlier, later in zip(times, times[1:])]
        print(f"the longest tick: {max(gaps):.3f} s")
        self.assertLess(max(gaps), 1.05 + held_up.seconds)

    def test_delays_quitting_by_five_seconds_at_most_and_is_reported(self):
        velto = self.start(sync_ms=60_000)
        velto.item.choose("Auto-Transition")

        start = time.monotonic()
        velto.item.choose("Quit")
        self.assertEqual(velto.wait(), 0)

        self.assertLess(time.monotonic() - start, 8)
        self.assertEqual(self.desktop.log("velto"),
                         f"velto: settings not saved: {self.desktop.settings_file}: no answer for 5 s\n")

    def test_quitting_waits_for_the_last_write(self):
        velto = self.start(sync_ms=1000)
        velto.item.choose("Auto-Transition")
        velto.item.choose("Break Duration", "15 minutes")

        velto.item.choose("Quit")

        self.assertEqual(velto.wait(), 0)
        self.assertEqual(velto.settings["breakMinutes"], 15)
        self.assertTrue(velto.settings["autoTransition"])

    def test_the_end_of_the_x_server_waits_for_the_last_write(self):
        velto = self.start(sync_ms=1000)
        velto.item.choose("Auto-Transition")
        wait_for(lambda: velto.item.menu().find("Auto-Transition").checked, what="the choice")

        self.desktop.x_server.kill()

        velto.wait()
        self.assertTrue(velto.settings.get("autoTransition"))


if __name__ == "__main__":
    unittest.main()
