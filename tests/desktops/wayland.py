# SPDX-License-Identifier: MIT
"""What the desktops of Wayland have in common that give input only where there is a program for it."""
import os
import subprocess

from desktop import Desktop
from root import PROJECT

_BUILD = """
cd /tmp
wayland-scanner client-header "$2" protocol.h
wayland-scanner private-code "$2" protocol.c
cc -I. -I"$0" -o input "$0/wayland_input.c" "$0/$1" protocol.c -lwayland-client
"""


class WaylandDesktop(Desktop):
    FOLDER = os.path.join(PROJECT, "tests", "desktops")
    INPUT = ""  # see wayland_input.h
    PROTOCOL = ""  # what it speaks

    def prepare(self):
        super().prepare()
        self.session.run("sh", "-c", _BUILD, self.FOLDER, self.INPUT, self.PROTOCOL)
        self._input = self.session.start("/tmp/input", stdin=subprocess.PIPE)

    def send(self, *commands):
        self._input.stdin.write("".join(command + "\n" for command in commands))
        self._input.stdin.flush()

    def click(self, x, y, button=1):
        number = {1: 0, 2: 2, 3: 1}[button]
        self.send(f"m {x - 1} {y}", "s 100", f"m {x} {y}", "s 200", f"d {number}", "s 80", f"u {number}")
