# SPDX-License-Identifier: MIT
"""sway with Waybar. sway does not run as root, and gives input only where there is a pointer and a keyboard."""
import json

from desktop import Window
from wayland import WaylandDesktop


class Sway(WaylandDesktop):
    INPUT = "sway_pointer.c"
    PROTOCOL = WaylandDesktop.FOLDER + "/sway_pointer.xml"
    PACKAGES = "sway waybar wtype grim gcc libc6-dev libwayland-dev libwayland-bin".split()
    USER = 1000
    LEAST_CONTRAST = 4.2  # white, as Waybar's own style has it on the blue of its tray
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
        super().prepare()
        self.session.start("wtype", "-s", "36000000")

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
