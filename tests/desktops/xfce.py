# SPDX-License-Identifier: MIT
"""XFCE, with the panels that it comes with."""
import json
import re

from desktop import UP_WITH_ITEMS, Window
from x11 import X11Desktop


class Xfce(X11Desktop):
    PACKAGES = "xfce4-session xfce4-panel xfce4-settings xfwm4 xfdesktop4 gir1.2-wnck-3.0 xvfb".split()
    THEMES = {"light": False, "dark": True}
    START = X11Desktop.SERVER + """
export XDG_CURRENT_DESKTOP=XFCE XDG_SESSION_TYPE=x11
xfce4-session &
""" + UP_WITH_ITEMS

    def prepare(self):
        super().prepare()
        self.session.run("xfconf-query", "-c", "xsettings", "-p", "/Net/ThemeName", "-s", "Adwaita")  # has a dark variant

    def use_theme(self, name):
        self.session.run("xfconf-query", "-c", "xfce4-panel", "-p", "/panels/dark-mode", "-n", "-t", "bool", "-s",
                         str(self.THEMES[name]).lower())

    def windows(self):
        return [Window(title, tuple(rectangle), focused) for title, rectangle, focused
                in json.loads(self.session.run("python3", "-c", _WINDOWS))]

    def item_place(self):
        # Of the plug-ins that are programs of their own, the one of the status items is the first in the upper panel.
        tree = self.session.run("xwininfo", "-root", "-tree")
        plugins = re.findall(r'"wrapper-2\.0" .*\)  (\d+)x(\d+)\+-?\d+\+-?\d+  \+(\d+)\+0\n', tree)
        x, width, height = min((int(x), int(width), int(height)) for width, height, x in plugins if int(width) > 16)
        return x + width // 2, height // 2


_WINDOWS = """
import json, gi
gi.require_version("Wnck", "3.0")
from gi.repository import Wnck
screen = Wnck.Screen.get_default()
screen.force_update()
print(json.dumps([(window.get_name(), window.get_client_window_geometry(), window.is_active())
                  for window in screen.get_windows_stacked() if not window.is_minimized()]))
"""
