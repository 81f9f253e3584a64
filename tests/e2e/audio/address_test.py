# SPDX-License-Identifier: MIT
"""Custom addresses that cannot be played, each in a run of its own."""
import os
import plistlib
import unittest

from desktop import VirtualDesktop, wait_for
from guard import processes_with

from sound import ENVIRONMENT, settings_for

UNUSABLE = [
    " ", "radio", "no address", "example.org/stream", "//example.org/stream", "/stream", "://example.org", "http",
    "http:", "http:/", "http://", "http:///stream", "http:example.org", "https://:8000/", "http://user@/",
    " http://example.org", "http://example.org ", "http://exam ple.org/", "http://example.org/a b",
    "http://example.org/\tstream", "http://example.org/\nstream", "http://example.org/\r\nHost: other", "\n",
    "http://example.org/\x01", "http://example.org/\x7f", "http://example.org:port/", "http://example.org:65536/",
    "http://example.org:0/", "http://example.org:-1/", "http://example.org:80:80/", "http://[::1/", "http://[]/",
    "http://[::1]x/", "http://a@b@example.org/", "http://example.org/%", "http://example.org/%zz",
    "http://example.org/<a>", "http://example.org/a\\b", "http://example.org/{a}", "http://example.org/ü",
    "http://bücher.example/", "file:///etc/passwd", "ftp://example.org/a.mp3", "rtsp://example.org/",
    "data:audio/mpeg;base64,AAAA", "javascript:alert(1)", "httpx://example.org/",
    "http://example.org/" + "a" * 500000,
]


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop(host="none"))
    os.makedirs(os.path.dirname(desktop.settings_file))


class AnAddress(unittest.TestCase):
    def start_focus_with(self, address):
        # In its binary form the file holds every character.
        with open(desktop.settings_file, "wb") as file:
            plistlib.dump(settings_for(address, hasLaunchedBefore=True), file, fmt=plistlib.FMT_BINARY)
        velto = desktop.start_velto(None, ENVIRONMENT | {"VELTO_RUN": desktop.folder})
        self.addCleanup(velto.kill)
        velto.item.choose("Start Focus")
        return velto

    @staticmethod
    def is_played():
        """Whether a process of its own tries to."""
        return len(list(processes_with(f"VELTO_RUN={desktop.folder}"))) > 1

    def test_that_is_unusable_is_reported_as_it_is(self):
        for address in UNUSABLE:
            with self.subTest(address[:60]):
                velto = self.start_focus_with(address)
                line = f"Invalid music URL: {address}\n".encode()
                wait_for(lambda: len(velto.printed) >= len(line), what="the line")
                self.assertTrue(velto.printed == line, velto.printed[:200])
                wait_for(lambda: velto.item.menu().find("Pause Focus"), what="a focus that runs")
                self.assertFalse(self.is_played())
                self.assertEqual(desktop.log("velto"), "")
            self.doCleanups()

    def test_that_is_empty_is_no_address_and_not_reported(self):
        velto = self.start_focus_with("")
        wait_for(lambda: velto.item.label == "24:58", what="two seconds")
        self.assertEqual(velto.printed, b"")
        self.assertFalse(self.is_played())

    def test_that_is_usable_is_played(self):
        velto = self.start_focus_with("http://127.0.0.1:9/")
        wait_for(lambda: velto.printed == b"Started playing music from: http://127.0.0.1:9/\n", what="the line")
        wait_for(self.is_played, what="the process that plays it")


if __name__ == "__main__":
    unittest.main()
