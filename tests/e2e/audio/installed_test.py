# SPDX-License-Identifier: MIT
"""Music from where velto is installed."""
import os
import subprocess
import tempfile
import unittest
from unittest import mock

from desktop import VirtualDesktop, holds, wait_for

from sound import BUILD, ENVIRONMENT, Recording, SoundServer, StreamServer, settings_for


class TheInstalledTree(unittest.TestCase):
    def setUp(self):
        self.prefix = self.enterContext(tempfile.TemporaryDirectory(prefix="velto-installed-"))
        subprocess.run(["cmake", "--install", BUILD, "--prefix", self.prefix], check=True, stdout=subprocess.DEVNULL)
        self.enterContext(mock.patch.dict(os.environ, VELTO_BIN=f"{self.prefix}/bin/velto"))
        self.desktop = self.enterContext(VirtualDesktop())
        SoundServer(self.desktop)
        self.streams = StreamServer()
        self.addCleanup(self.streams.close)
        self.recording = Recording(self.desktop)

    def start_music(self):
        self.velto = self.desktop.start_velto(settings_for(self.streams.url("tone.mp3")), ENVIRONMENT)
        self.velto.press("Start")
        wait_for(lambda: self.velto.output, what="the line that music has started")

    def test_it_plays_music(self):
        self.start_music()

        wait_for(lambda: self.recording.has_tone, what="the tone")

    def test_without_velto_stream_it_counts_in_silence(self):
        os.remove(f"{self.prefix}/libexec/velto-stream")

        self.start_music()

        wait_for(lambda: self.velto.time == "24:57", what="a timer that runs")
        holds(lambda: self.recording.has_nothing and self.streams.connections == 0, 1, "silence")
        self.assertEqual(self.desktop.log("velto"), "")
        self.velto.press("Pause")
        self.assertEqual(len(self.velto.output), 1)


if __name__ == "__main__":
    unittest.main()
