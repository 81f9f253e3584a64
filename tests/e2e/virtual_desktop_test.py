# SPDX-License-Identifier: MIT
"""The virtual desktop that the other stories stand on."""
import os
import signal
import subprocess
import sys
import unittest

from desktop import VirtualDesktop, wait_for
from guard import processes_of

STARTS_A_DESKTOP_AND_WAITS = """
import signal
from desktop import VirtualDesktop
with VirtualDesktop() as desktop:
    print(desktop.folder, flush=True)
    signal.pause()
"""


class TheVirtualDesktop(unittest.TestCase):
    def test_the_focused_window_gets_what_is_typed(self):
        with VirtualDesktop(host="none") as desktop:
            window = desktop.open_window("other")

            desktop.type("hello")

            wait_for(lambda: window.text == "hello")

    def test_a_picture_shows_what_is_on_the_screen(self):
        with VirtualDesktop(host="none", wm="none") as desktop:
            desktop.ask("xsetroot", "-solid", "#102030")
            self.assertEqual(desktop.picture()[5, 700], (0x10, 0x20, 0x30))

            desktop.ask("xsetroot", "-solid", "#ff8000")
            self.assertEqual(desktop.picture()[5, 700], (0xff, 0x80, 0x00))

    def test_monitors_are_where_they_should_be(self):
        with VirtualDesktop(size=(2304, 1000), monitors=[(1280, 800, 1024, 0), (1024, 768, 0, 232)]) as desktop:
            monitors = desktop.ask("xrandr", "--listmonitors")

            self.assertIn("*M0 1280/320x800/200+1024+0", monitors)
            self.assertIn("M1 1024/256x768/192+0+232", monitors)

    def test_it_has_the_chosen_font_and_fallbacks_only(self):
        with VirtualDesktop(host="none", wm="none") as desktop:
            families = {line.split(",")[0] for line in desktop.ask("fc-list", ":", "family").splitlines()}

            self.assertEqual(families, {"Inter", "Quicksand", "Noto Sans Arabic", "Droid Sans Fallback"})
            for name in ("sans-serif", "Cantarell", "monospace"):
                self.assertEqual(desktop.ask("fc-match", "--format", "%{family}", name), "Inter", name)

    def test_it_leaves_nothing_behind(self):
        with VirtualDesktop() as desktop:
            self.assertGreater(len(list(processes_of(desktop.folder))), 4)

        self.assertEqual(list(processes_of(desktop.folder)), [])
        self.assertFalse(os.path.exists(desktop.folder))

    def test_it_leaves_nothing_behind_even_when_the_test_is_killed(self):
        with subprocess.Popen([sys.executable, "-c", STARTS_A_DESKTOP_AND_WAITS], stdout=subprocess.PIPE) as test:
            folder = test.stdout.readline().decode().strip()
            self.assertGreater(len(list(processes_of(folder))), 4)

            test.send_signal(signal.SIGKILL)

            wait_for(lambda: not os.path.exists(folder), what="the guard's work")
            self.assertEqual(list(processes_of(folder)), [])


if __name__ == "__main__":
    unittest.main()
