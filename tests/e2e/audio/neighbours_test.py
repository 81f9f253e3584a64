# SPDX-License-Identifier: MIT
"""The countdown beside neighbours that hang."""
import glob
import os
import signal
import unittest

from desktop import VirtualDesktop, wait_for

from sound import SoundServer

# Who hangs, one after the other, and the programs behind it; the sound server last, when the phase ends.
NEIGHBOURS = {
    "window manager": ["xfwm4"],
    "panel bar": ["budgie-panel"],
    "settings portal": ["portal.py"],
    "accessibility bus": ["accessibility.conf", "at-spi-bus-launcher"],
    "accessibility registry": ["at-spi2-registryd"],
    "sound server": ["pulseaudio", "pipewire", "wireplumber"],
}
SECONDS_EACH = 6


class Neighbours(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.server = SoundServer(self.desktop)

    def processes(self, programs):
        """Those of this desktop that have one of `programs` on their command line."""
        for path in glob.glob("/proc/[0-9]*"):
            try:
                with open(f"{path}/environ", "rb") as environ, open(f"{path}/cmdline", "rb") as command:
                    belongs = f"VELTO_DESKTOP={self.desktop.folder}\0".encode() in environ.read()
                    line = command.read().decode(errors="replace")
            except OSError:
                continue
            if belongs and any(program in line for program in programs):
                yield int(path.rpartition("/")[2])

    def let_pass(self, seconds):
        announced = len(self.desktop.announcements)
        wait_for(lambda: len(self.desktop.announcements) >= announced + seconds, timeout=3 * seconds,
                 what=f"{seconds} seconds of the countdown")

    def test_the_countdown_goes_on(self):
        velto = self.desktop.start_velto({"focusMinutes": 1, "breakMinutes": 1, "autoTransition": True})
        velto.item.choose("Start Focus")
        self.let_pass(2)

        for neighbour, programs in NEIGHBOURS.items():
            with self.subTest(neighbour=neighbour):
                stopped = list(self.processes(programs))
                self.assertTrue(stopped, f"no {neighbour} to stop")
                if neighbour == "sound server":  # the last ten seconds tick, and the end of the phase sounds
                    wait_for(lambda: self.desktop.announced_labels[-1] <= "00:12", timeout=60, what="the end")
                earlier = len(self.desktop.announcements)
                with self.desktop.hindrance(velto.process) as held_up:
                    for pid in stopped:
                        os.kill(pid, signal.SIGSTOP)
                    try:
                        self.let_pass(16 if neighbour == "sound server" else SECONDS_EACH)
                    finally:
                        for pid in stopped:
                            os.kill(pid, signal.SIGCONT)
                times = [when for when, _, _ in self.desktop.announcements[earlier - 1:]]
                longest = max(later - before for before, later in zip(times, times[1:]))
                print(f"{neighbour}: {longest:.3f} s at the most from one second to the next")
                self.assertLess(longest, 1.05 + held_up.seconds)
        self.assertIn("01:00", self.desktop.announced_labels[5:], "the break has begun")


if __name__ == "__main__":
    unittest.main()
