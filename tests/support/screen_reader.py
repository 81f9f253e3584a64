# SPDX-License-Identifier: MIT
"""Orca on a virtual desktop, its speech as text: it writes down what it would say."""
import json
import os
import re

from waiting import wait_for

# Names of keys, which it says as they are pressed, end with a blank outside the sentence.
_SAID = re.compile(r"SPEECH OUTPUT: '(.*?)'\{", re.DOTALL)


class ScreenReader:
    """Started on `desktop`, before what it shall read. Without a speech server it still writes."""

    def __init__(self, desktop, environment=None):
        self._log, self._read = desktop.path("log/speech"), 0
        folder = desktop.path("data/orca")
        os.makedirs(folder)
        with open(os.path.join(folder, "user-settings.conf"), "w", encoding="utf-8") as file:
            json.dump({"general": {"enableBraille": False, "enableKeyEcho": False}, "profiles": {"default": {
                "profile": ["Default", "default"]}}, "pronunciations": {}, "keybindings": {}}, file)
        with open(os.path.join(folder, "orca-customizations.py"), "w", encoding="utf-8") as file:
            file.write("from orca import debug\ndebug.debugFile.reconfigure(line_buffering=True)\n")
        # Orca ends itself where it finds another, which is none of its business here.
        os.makedirs(desktop.path("bin"))
        os.symlink("/bin/false", desktop.path("bin/pgrep"))
        path = {"PATH": f"{desktop.path('bin')}:{desktop.environment['PATH']}"}
        desktop.run("orca", f"--debug-file={self._log}", environment=path | (environment or {}))
        wait_for(self.said, timeout=120, what="the screen reader's first words")

    def said(self):
        """All sentences so far."""
        try:
            with open(self._log, encoding="utf-8", errors="replace") as file:
                return _SAID.findall(file.read())
        except FileNotFoundError:
            return []

    def hear(self, *sentences, timeout=30):
        """Waits for sentences that contain these, one after the other, since the last that was waited for."""
        for sentence in sentences:
            def spoken(wanted=sentence):
                for index, said in enumerate(self.said()[self._read:], self._read):
                    if wanted in said:
                        self._read = index + 1
                        return True
                return False
            try:
                wait_for(spoken, timeout, what=f"{sentence!r}")
            except AssertionError as error:
                raise AssertionError(f"{error}; said: {self.said()[self._read:]}") from None
