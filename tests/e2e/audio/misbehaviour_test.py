# SPDX-License-Identifier: MIT
"""A focus that runs beside a stream that misbehaves: the seconds, the card and the end are as ever."""
import time
import unittest
from dataclasses import dataclass

import numpy

from desktop import VirtualDesktop, wait_for
from guard import processes_with
from x_window import XWindow

from sound import ENVIRONMENT, Recording, SoundServer, StreamServer, settings_for

SECONDS = 5


@dataclass
class Stream:
    name: str
    path: str = "tone.mp3"
    port: str = "plain"
    heard: bool = False
    seconds: int = SECONDS  # after the first one


STREAMS = [
    Stream("refused", port="refused"),
    Stream("never answers", "silent"),
    Stream("not found", "missing"),
    Stream("server error", "broken"),
    Stream("web page", "page"),
    Stream("garbage", "garbage"),
    Stream("fifty redirections", "loop/1"),
    Stream("redirection from https to http", "to-plain", "good"),
    Stream("redirection to a file", "to-file"),
    Stream("dropped after 3 s", "dropping", heard=True),
    Stream("stalled after 3 s, and given up", "stalling", heard=True, seconds=12),
    Stream("one byte a second", "trickle"),
    Stream("certificate of another host", port="wrong-host"),
    Stream("expired certificate", port="expired"),
    Stream("unknown authority", port="unknown-authority"),
    Stream("long titles", "titles", heard=True),
    Stream("m3u playlist of a file", "playlist.m3u"),
    Stream("pls playlist of a file", "playlist.pls"),
    Stream("HLS playlist of a file", "playlist.m3u8/passwd"),
]


def setUpModule():
    global desktop, streams, recording
    desktop = unittest.enterModuleContext(VirtualDesktop(host="press"))
    SoundServer(desktop)
    recording = Recording(desktop)
    streams = StreamServer()
    unittest.addModuleCleanup(streams.close)


class Run:
    """One run of the program with music from `url`, from the start of a focus to the end of the program."""

    def __init__(self, url):
        self._heard_before = len(recording.samples())
        self._mark = f"VELTO_RUN={time.monotonic()}"
        self.velto = desktop.launch(settings_for(url), ENVIRONMENT | dict([self._mark.split("=")]))
        self._name = wait_for(lambda: self.velto.item, what="the status item").bus_name
        self._window = wait_for(lambda: XWindow(desktop, self.velto.pid), what="the card, shown at launch")
        self.velto.item.choose("Start Focus")

    def follow(self, seconds):
        """How late, in seconds, were: every tick, as seen from the first one; the card, when it was to hide or to
        appear in between."""
        first = wait_for(self._ticks, what="the first tick")[0]
        answers = []
        for second in range(1, seconds + 1):
            _sleep_until(first + second - 0.5)
            answers.append(self._click())
        ticks = wait_for(lambda: len(self._ticks()) > seconds and self._ticks(), what="the last tick")
        return max(abs(moment - first - second) for second, moment in enumerate(ticks)), max(answers)

    def _ticks(self):
        return [when for when, sender, _ in desktop.announcements if sender == self._name]

    def _click(self):
        was_mapped, start = self._window.is_mapped, time.monotonic()
        self.velto.item.activate()
        while self._window.is_mapped == was_mapped and time.monotonic() - start < 10:
            time.sleep(0.001)
        return time.monotonic() - start

    @property
    def is_heard(self):
        """So far."""
        return bool(numpy.abs(recording.samples()[self._heard_before:]).max() > 0.005)

    def quit(self):
        """How long it took until nothing was left of it."""
        self._window.close()
        start = time.monotonic()
        self.velto.item.choose("Quit")
        wait_for(lambda: not list(processes_with(self._mark)), what="the end of all its processes")
        self.velto.wait()
        return time.monotonic() - start


def _sleep_until(moment):
    """On the wall clock."""
    time.sleep(max(0, moment - time.time()))


class Misbehaviour(unittest.TestCase):
    def test_no_stream_disturbs_the_time_the_card_or_the_end(self):
        for stream in STREAMS:
            with self.subTest(stream.name):
                self.bear(stream)
            self.doCleanups()

    def bear(self, stream):
        url = streams.url(stream.path, stream.port)
        connections = streams.connections
        run = Run(url)
        self.addCleanup(run.velto.kill)
        with desktop.hindrance(run.velto.process) as held_up:
            tick, answer = run.follow(stream.seconds)
            heard = run.is_heard
            end = run.quit()

        self.assertEqual(run.velto.output, [f"Started playing music from: {url}"])
        self.assertEqual(run.velto.process.returncode, 0)
        self.assertEqual(heard, stream.heard, "what is heard")
        self.assertEqual(streams.connections > connections, stream.port != "refused")
        times = f"tick {tick:.3f} s, card {answer:.3f} s, end {end:.3f} s, held up for {held_up.seconds:.3f} s"
        print(f"{stream.name}: {times}")
        self.assertLess(tick, 0.05 + held_up.seconds, times)
        self.assertLess(answer, 0.1 + held_up.seconds, times)
        self.assertLess(end, 1 + held_up.seconds, times)


if __name__ == "__main__":
    unittest.main()
