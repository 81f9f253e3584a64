# SPDX-License-Identifier: MIT
"""The program that plays the music: nothing of it reaches velto, and nothing of it stays."""
import os
import signal
import time
import unittest

from desktop import wait_for

from music import MusicStory


def handles(pid):
    """What a process has open that it could share with another one."""
    opened = {os.readlink(f"/proc/{pid}/fd/{name}") for name in os.listdir(f"/proc/{pid}/fd")}
    return {name for name in opened if name != os.devnull and not name.startswith("anon_inode:")}


class StreamProcess(MusicStory):
    def test_shares_nothing_with_velto(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()

        program, = self.programs()
        self.assertEqual(handles(program) & handles(self.velto.pid), {os.readlink(f"/proc/{program}/fd/0")})
        self.assertEqual(os.readlink(f"/proc/{program}/fd/1"), os.devnull)
        self.assertNotIn("libgst", self.libraries())
        self.assertEqual(self.desktop.log("velto"), "")

    def test_is_replaced_when_it_is_killed(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        for deadly in (signal.SIGSEGV, signal.SIGKILL):
            self.wait_for_tone()
            program, = self.programs()

            os.kill(program, deadly)

            wait_for(lambda killed=program: self.programs() not in ([], [killed]), what="another program")
        self.wait_for_tone()
        self.assertEqual(self.streams.connections, 3)
        self.assertEqual(len(self.velto.output), 1)

    def test_ends_when_velto_is_killed(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()

        self.assert_dies_with_velto(self.programs()[0])

    def test_ends_with_velto_even_when_it_hangs(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        program, = self.programs()
        os.kill(program, signal.SIGSTOP)

        self.assert_dies_with_velto(program)

    def assert_dies_with_velto(self, program):
        before = time.monotonic()
        self.velto.kill(signal.SIGKILL)
        wait_for(lambda: not os.path.exists(f"/proc/{program}/exe"), what="the program's end")
        self.wait_for_silence()
        self.assertLess(time.monotonic() - before, 1)

    def test_is_stopped_even_when_it_hangs(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        os.kill(self.programs()[0], signal.SIGSTOP)

        self.velto.press("Pause")

        wait_for(lambda: self.programs() == [], what="the program's end")
        self.wait_for_silence()

    def test_does_not_delay_quitting_when_it_hangs(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        os.kill(self.programs()[0], signal.SIGSTOP)

        self.assert_quits_at_once()
        self.wait_for_silence()


if __name__ == "__main__":
    unittest.main()
