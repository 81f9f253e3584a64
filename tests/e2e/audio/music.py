# SPDX-License-Identifier: MIT
"""What the stories of background music have in common."""
import time
import unittest

from desktop import VirtualDesktop, wait_for

from sound import ENVIRONMENT, Recording, SoundServer, StreamServer, settings_for


class MusicStory(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.sound = SoundServer(self.desktop)
        self.streams = StreamServer()
        self.addCleanup(self.streams.close)
        self.recording = Recording(self.desktop)

    def start_velto(self, path, port="plain", **settings):
        self.url = self.streams.url(path, port)
        self.velto = self.desktop.start_velto(settings_for(self.url, **settings), ENVIRONMENT)

    def wait_for_tone(self):
        wait_for(lambda: self.recording.has_tone, what="the tone")

    def wait_for_silence(self):
        wait_for(lambda: self.streams.open_connections == 0, what="the connection's end")
        wait_for(lambda: self.recording.has_nothing, what="silence")

    def libraries(self):
        with open(f"/proc/{self.velto.pid}/maps", encoding="utf-8") as file:
            return file.read()

    def programs(self):
        """The processes that velto has started."""
        with open(f"/proc/{self.velto.pid}/task/{self.velto.pid}/children", encoding="utf-8") as file:
            return [int(child) for child in file.read().split()]

    def assert_quits_at_once(self):
        before = time.monotonic()
        self.velto.item.choose("Quit")
        self.assertEqual(self.velto.wait(), 0)
        self.assertLess(time.monotonic() - before, 1)
