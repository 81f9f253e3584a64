# SPDX-License-Identifier: MIT
"""sway with Waybar. sway does not run as root, and gives input only where there is a pointer and a keyboard."""
import json
import os
import subprocess

from desktop import Desktop, Window
from root import PROJECT

_BUILD_POINTER = """
cd /tmp
wayland-scanner client-header "$0/sway_pointer.xml" sway_pointer.h
wayland-scanner private-code "$0/sway_pointer.xml" protocol.c
cc -I. -o pointer "$0/sway_pointer.c" protocol.c -lwayland-client
"""


class Sway(Desktop):
    PACKAGES = "sway waybar wtype grim gcc libc6-dev libwayland-dev libwayland-bin".split()
    USER = 1000
    PLACES_CARDS = False
    START = """
mkdir -p ~/.config/sway ~/.config/waybar
cat > ~/.config/waybar/config <<EOF
{"layer": "top", "position": "top", "height": 30, "modules-right": ["tray"], "tray": {"icon-size": 22}}
EOF
cat > ~/.config/sway/config <<EOF
output HEADLESS-1 resolution 1280x800
output HEADLESS-1 background #404040 solid_color
default_border none
exec waybar
exec env | grep -E '^(HOME|XDG_|DBUS|PATH|LANG|USER|LOGNAME|WAYLAND_|DISPLAY|SWAYSOCK)' > $XDG_RUNTIME_DIR/session
EOF
export WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman
export XDG_CURRENT_DESKTOP=sway XDG_SESSION_TYPE=wayland
exec sway
"""

    def prepare(self):
        self.session.run("sh", "-c", _BUILD_POINTER, os.path.join(PROJECT, "tests", "desktops"))
        self._pointer = self.session.start("/tmp/pointer", stdin=subprocess.PIPE)
        self.session.start("wtype", "-s", "36000000")

    def _point(self, *commands):
        self._pointer.stdin.write("".join(command + "\n" for command in commands))
        self._pointer.stdin.flush()

    def click(self, x, y, button=1):
        number = {1: 0, 2: 2, 3: 1}[button]
        self._point(f"m {x - 1} {y}", "s 100", f"m {x} {y}", "s 200", f"d {number}", "s 80", f"u {number}")

    def type(self, text):
        self.session.run("wtype", "-d", "20", text)

    def key(self, name):
        self.session.run("wtype", "-k", name)

    def picture(self, path):
        with open(path, "wb") as file:
            file.write(self.session.run_bytes("grim", "-"))

    def windows(self):
        found = []

        def walk(node):
            if node.get("pid"):
                rect = node["rect"]
                found.append(Window(node["name"], (rect["x"], rect["y"], rect["width"], rect["height"]),
                                    node["focused"]))
            for child in node["nodes"] + node["floating_nodes"]:
                walk(child)

        walk(json.loads(self.session.run("swaymsg", "-t", "get_tree")))
        return found

    def item_place(self):
        return 1258, 15  # the only one, at the right end of the bar
