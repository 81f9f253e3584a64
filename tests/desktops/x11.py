# SPDX-License-Identifier: MIT
"""What the desktops on an X server have in common."""
from desktop import Desktop


class X11Desktop(Desktop):
    SERVER = """
Xvfb :5 -screen 0 1280x800x24 -nolisten tcp -noreset +extension GLX &
export DISPLAY=:5
until xdpyinfo >/dev/null 2>&1; do sleep 0.2; done
"""

    def click(self, x, y, button=1):
        self.session.run("xdotool", "mousemove", str(x - 1), str(y), "mousemove", str(x), str(y), "sleep", "0.2",
                         "mousedown", str(button), "sleep", "0.08", "mouseup", str(button))

    def type(self, text):
        self.session.run("xdotool", "type", "--delay", "20", text)

    def key(self, name):
        self.session.run("xdotool", "key", name)

    def picture(self, path):
        with open(path, "wb") as file:
            file.write(self.session.run_bytes("python3", "-c", PICTURE))


PICTURE = """
import sys, gi
gi.require_version("Gdk", "3.0")
from gi.repository import Gdk
picture = Gdk.pixbuf_get_from_window(Gdk.get_default_root_window(), 0, 0, 1280, 800)
sys.stdout.buffer.write(picture.save_to_bufferv("png", [], [])[1])
"""
