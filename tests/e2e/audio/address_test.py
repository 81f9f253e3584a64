# SPDX-License-Identifier: MIT
"""Custom addresses that cannot be played, each in a run of its own."""
import os
import plistlib
import unittest

from desktop import VirtualDesktop, wait_for
from guard import processes_with

from sound import ENVIRONMENT, settings_for

UNUSABLE = [
    "://example.org", " http://example.org", "http://exam ple.org/", "http://example.org:port/",
    "http://example.org:65536/", "http://example.org:80:80/", "http://[::1/", "http://[]/", "http://a@b@example.org/",
    "http://[\n\r\n", "http://[/" + "a" * 500000,
]

NOT_ON_THE_WEB = [
    " ", "radio", "example.org/stream", "//127.0.0.1/stream", "http:", "http:///stream", "file:///etc/passwd",
    "ftp://127.0.0.1/a.mp3", "data:audio/mpeg;base64,AAAA", "\n", "ftp://127.0.0.1/" + "a" * 500000,
]


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop(host="none"))
    os.makedirs(os.path.dirname(desktop.settings_file))


class Address(unittest.TestCase):
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

    def test_an_unusable_one_is_reported_in_one_line(self):
        self.assert_not_played("Invalid music URL: ", UNUSABLE)

    def test_one_that_is_not_on_the_web_is_reported_and_not_opened(self):
        self.assert_not_played("Started playing music from: ", NOT_ON_THE_WEB)

    def assert_not_played(self, told, addresses):
        for address in addresses:
            with self.subTest(address[:60]):
                velto = self.start_focus_with(address)
                line = (told + address.replace("\r", "%0D").replace("\n", "%0A") + "\n").encode()
                wait_for(lambda: len(velto.printed) >= len(line), what="the line")
                self.assertTrue(velto.printed == line, velto.printed[:200])
                wait_for(lambda: velto.item.menu().find("Pause Focus"), what="a focus that runs")
                self.assertFalse(self.is_played())
                self.assertEqual(desktop.log("velto"), "")
            self.doCleanups()

    def test_an_empty_one_is_ignored(self):
        velto = self.start_focus_with("")
        wait_for(lambda: velto.item.label == "24:58", what="two seconds")
        self.assertEqual(velto.printed, b"")
        self.assertFalse(self.is_played())

    def test_a_usable_one_is_played(self):
        velto = self.start_focus_with("http://127.0.0.1:9/")
        wait_for(lambda: velto.printed == b"Started playing music from: http://127.0.0.1:9/\n", what="the line")
        wait_for(self.is_played, what="the process that plays it")


if __name__ == "__main__":
    unittest.main()
