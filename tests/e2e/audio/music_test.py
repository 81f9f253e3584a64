# SPDX-License-Identifier: MIT
"""Background music, from the first connection to the last sound."""
import os
import signal
import time
import unittest

from desktop import VirtualDesktop, holds, wait_for

from sound import ENVIRONMENT, Recording, SoundServer, StreamServer, alert_sound, find_all, settings_for


def handles(pid):
    """What a process has open that it could share with another one."""
    opened = {os.readlink(f"/proc/{pid}/fd/{name}") for name in os.listdir(f"/proc/{pid}/fd")}
    return {name for name in opened if name != os.devnull and not name.startswith("anon_inode:")}


class Music(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        self.sound = SoundServer(self.desktop)
        self.streams = StreamServer()
        self.addCleanup(self.streams.close)
        self.recording = Recording(self.desktop)

    def start_velto(self, path, port="plain", **settings):
        self.url = self.streams.url(path, port)
        self.velto = self.desktop.start_velto(settings_for(self.url, **settings), ENVIRONMENT)
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")

    def wait_for_tone(self):
        wait_for(lambda: self.recording.has_tone, what="the tone")

    def wait_for_silence(self):
        wait_for(lambda: self.streams.open_connections == 0, what="the connection's end")
        wait_for(lambda: self.recording.has_nothing, what="silence")

    def clients(self):
        return self.sound.list("clients").count('application.name = "velto"')

    def libraries(self):
        with open(f"/proc/{self.velto.pid}/maps", encoding="utf-8") as file:
            return file.read()

    def programs(self):
        """The processes that velto has started."""
        with open(f"/proc/{self.velto.pid}/task/{self.velto.pid}/children", encoding="utf-8") as file:
            return [int(child) for child in file.read().split()]

    def test_nothing_is_touched_before_it_is_needed(self):
        self.start_velto("tone.mp3")

        self.assertNotIn("libcanberra-pulse", self.libraries())  # a connection to the sound server
        self.assertEqual(self.programs(), [])
        self.assertEqual((self.streams.connections, self.clients()), (0, 0))

    def test_it_follows_the_timer(self):
        self.start_velto("tone.mp3")

        before = time.monotonic()
        self.velto.press("Start")
        self.wait_for_tone()
        self.assertLess(time.monotonic() - before, 3)
        self.assertEqual(self.streams.connections, 1)
        started = f"Started playing music from: {self.url}"
        self.assertEqual(self.velto.output, [started])

        self.velto.press("Pause")
        self.wait_for_silence()

        self.velto.press("Start")
        self.wait_for_tone()
        self.assertEqual(self.streams.connections, 2)
        self.assertEqual(self.velto.output, [started, started])

        self.velto.press("Reset")
        self.wait_for_silence()

        self.velto.press("Start")
        self.wait_for_tone()
        self.velto.item.choose("Current Phase", "Break")
        self.wait_for_silence()
        self.assertEqual(self.streams.connections, 3)
        holds(lambda: self.streams.connections == 3, 2, "no connection without a phase that runs")

    def test_a_break_without_music_is_silent(self):
        self.start_velto("tone.mp3", focusMinutes=1, autoTransition=True, countdownSound=b'"None"',
                         focusEndSound=b'"None"')

        self.velto.press("Start")
        self.wait_for_tone()
        wait_for(lambda: self.velto.phase == "Break", timeout=120, what="the break")

        self.wait_for_silence()
        wait_for(lambda: self.velto.time == "04:57", what="a break that runs")
        self.assertEqual((self.streams.connections, self.recording.has_nothing), (1, True))

    def test_it_comes_back_with_the_sound_server_and_so_do_the_ticks(self):
        self.start_velto("tone.mp3", focusMinutes=1, countdownSound=b'"Submarine"')
        self.velto.press("Start")
        self.wait_for_tone()

        self.recording.stop()
        self.sound.kill()
        self.sound.start()
        self.recording = Recording(self.desktop)

        self.wait_for_tone()
        tick = alert_sound("Submarine")
        self.velto.item.choose("Focus Music", "None")
        wait_for(lambda: find_all(tick, self.recording.samples(3)), timeout=90, what="a tick")

    def test_it_is_played_by_a_program_that_shares_nothing_with_velto(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()

        program, = self.programs()
        self.assertEqual(handles(program) & handles(self.velto.pid), {os.readlink(f"/proc/{program}/fd/0")})
        self.assertEqual(os.readlink(f"/proc/{program}/fd/1"), os.devnull)
        self.assertNotIn("libgst", self.libraries())
        self.assertEqual(self.desktop.log("velto"), "")

    def test_it_comes_back_when_that_program_is_killed(self):
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

    def test_nothing_plays_on_after_velto_was_killed(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        program, = self.programs()

        before = time.monotonic()
        self.velto.kill(signal.SIGKILL)
        wait_for(lambda: not os.path.exists(f"/proc/{program}/exe"), what="the program's end")
        self.wait_for_silence()
        self.assertLess(time.monotonic() - before, 1)

    def test_when_that_program_hangs_it_is_stopped_all_the_same(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        os.kill(self.programs()[0], signal.SIGSTOP)

        self.velto.press("Pause")

        wait_for(lambda: self.programs() == [], what="the program's end")
        self.wait_for_silence()

    def test_when_that_program_hangs_it_does_not_hold_up_the_end(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        os.kill(self.programs()[0], signal.SIGSTOP)

        self.assert_quits_at_once()
        self.wait_for_silence()

    def test_an_unusable_address_is_reported_and_nothing_else(self):
        self.velto = self.desktop.start_velto(settings_for("no address"), ENVIRONMENT)
        wait_for(lambda: self.velto.card_is_visible, what="the card, shown at launch")

        self.velto.press("Start")
        wait_for(lambda: self.velto.output, what="a line")

        self.assertEqual(self.velto.output, ["Invalid music URL: no address"])
        wait_for(lambda: self.velto.time == "24:58", what="a timer that runs")
        self.assertEqual(self.desktop.log("velto"), "")

    def test_a_stream_server_that_hangs_does_not_hold_up_the_end(self):
        self.start_velto("silent")
        self.velto.press("Start")
        wait_for(lambda: self.streams.open_connections == 1, what="a connection")

        self.assert_quits_at_once()

    def test_a_sound_server_that_hangs_does_not_hold_up_the_end(self):
        self.start_velto("tone.mp3")
        self.velto.press("Start")
        self.wait_for_tone()
        self.sound.freeze()

        self.assert_quits_at_once()

    def assert_quits_at_once(self):
        before = time.monotonic()
        self.velto.item.choose("Quit")
        self.assertEqual(self.velto.wait(), 0)
        self.assertLess(time.monotonic() - before, 1)


if __name__ == "__main__":
    unittest.main()
