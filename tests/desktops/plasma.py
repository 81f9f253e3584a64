# SPDX-License-Identifier: MIT
"""Plasma, on X11 and on Wayland."""
import json

from desktop import UP_WITH_ITEMS, Window
from waiting import wait_for
from wayland import WaylandDesktop
from x11 import PICTURE, X11Desktop

_SHELL = """
export LIBGL_ALWAYS_SOFTWARE=1 KDE_FULL_SESSION=true KDE_SESSION_VERSION=$(basename /usr/bin/kded? | tail -c 2)
mkdir -p ~/.config/kdedefaults
export XDG_CONFIG_DIRS=$HOME/.config/kdedefaults:/etc/xdg # as startplasma has it
dbus-update-activation-environment --all
kded$KDE_SESSION_VERSION &
plasmashell &
""" + UP_WITH_ITEMS
_WINDOWS = """
const windows = (workspace.windowList ? workspace.windowList() : workspace.clientList())
    .filter(window => !window.minimized && !window.hidden);
windows.sort((one, other) => one.stackingOrder - other.stackingOrder);
callDBus("%s", "/", "org.velto.Answers", "Answer", JSON.stringify(windows.map(window => {
    const r = window.frameGeometry;
    return [window.caption, [r.x, r.y, r.width, r.height], window.active];
})));
"""
_ASK = """
import sys
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
loop = GLib.MainLoop()

def answer(connection, sender, path, interface, method, parameters, invocation):
    print(parameters.unpack()[0])
    invocation.return_value(None)
    loop.quit()

def scripting(method, *arguments):
    bus.call_sync("org.kde.KWin", "/Scripting", "org.kde.kwin.Scripting", method,
                  GLib.Variant("(" + "s" * len(arguments) + ")", arguments), None, 0, 10000, None)

node = Gio.DBusNodeInfo.new_for_xml('''<node><interface name="org.velto.Answers"><method name="Answer">
    <arg type="s" direction="in"/></method></interface></node>''')
bus.register_object("/", node.interfaces[0], answer, None, None)
with open("/tmp/script.js", "w") as file:
    file.write(sys.argv[1] % bus.get_unique_name())
scripting("loadScript", "/tmp/script.js", "ask")
scripting("start")
GLib.timeout_add_seconds(10, sys.exit, "KWin did not answer")
loop.run()
scripting("unloadScript", "ask")
"""


class _Plasma:
    ROOT = "kde"
    PACKAGES = """kwin-x11 kwin-wayland plasma-workspace plasma-desktop qtwayland5 xvfb gcc libc6-dev libwayland-dev
        libwayland-bin plasma-wayland-protocols""".split()

    THEMES = {  # the colours of the applications, and the panel's own
        "BreezeLight default": False,
        "BreezeDark default": True,
        "BreezeLight breeze-dark": True,
        "BreezeDark breeze-light": False,
        "org.kde.breezetwilight.desktop": True,
        "org.kde.breeze.desktop": False,
    }

    def prepare(self):
        super().prepare()
        wait_for(lambda: any(window.rectangle[1] > 600 and window.rectangle[2] == 1280 for window in self.windows()),
                 what="the panel")

    def use_theme(self, name):
        colors, _, style = name.partition(" ")
        if style:
            self.session.run("plasma-apply-colorscheme", colors)
            self.session.run("plasma-apply-desktoptheme", style)
        else:
            self.session.run("plasma-apply-lookandfeel", "-a", name)

    def windows(self):
        return [Window(title, tuple(round(side) for side in rectangle), focused) for title, rectangle, focused
                in json.loads(self.session.run("python3", "-c", _ASK, _WINDOWS))]

    def item_place(self):
        # The first in the tray of a panel as it comes.
        return (1063, 778) if self.suite == "bookworm" else (1105, 780)


class PlasmaX11(_Plasma, X11Desktop):
    START = X11Desktop.SERVER + """
export XDG_CURRENT_DESKTOP=KDE XDG_SESSION_TYPE=x11
kwin_x11 &
""" + _SHELL


class PlasmaWayland(_Plasma, WaylandDesktop):
    INPUT = "plasma_input.c"
    PROTOCOL = "/usr/share/plasma-wayland-protocols/fake-input.xml"
    START = """
export XDG_CURRENT_DESKTOP=KDE XDG_SESSION_TYPE=wayland LIBGL_ALWAYS_SOFTWARE=1
export KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 KWIN_SCREENSHOT_NO_PERMISSION_CHECKS=1
cat > ~/.config/kwinrulesrc <<EOF
[General]
count=1
rules=editor
[editor]
title=editor
titlematch=1
position=40,560
positionrule=3
EOF
cp /usr/bin/kwin_wayland /tmp # without its capability, which namespaces do not give
Xvfb :9 -screen 0 1280x800x24 -nolisten tcp -noreset +extension GLX &
until DISPLAY=:9 xdpyinfo >/dev/null 2>&1; do sleep 0.2; done
/tmp/kwin_wayland --x11-display :9 --xwayland --width 1280 --height 800 --no-lockscreen --socket wayland-0 &
until [ -S $XDG_RUNTIME_DIR/wayland-0 ] && ls /tmp/.X11-unix/X[0-8]; do sleep 0.2; done >/dev/null 2>&1
export WAYLAND_DISPLAY=wayland-0 DISPLAY=$(ls /tmp/.X11-unix | grep -v '_\|X9' | sed 's/X/:/' | head -1)
""" + _SHELL.replace("plasmashell &", "QT_QPA_PLATFORM=wayland plasmashell &")

    def type(self, text):
        for letter in text:
            self._press(_CODES[letter])

    def key(self, name):
        self._press(_CODES[name])

    def _press(self, code):
        self.send(f"p {code}", "s 20", f"r {code}")

    def picture(self, path):
        with open(path, "wb") as file:
            file.write(self.session.run_bytes("env", "DISPLAY=:9", "GDK_BACKEND=x11", "python3", "-c", PICTURE))


_CODES = {letter: start + i for start, row in ((2, "1234567890"), (16, "qwertyuiop"), (30, "asdfghjkl"), (44, "zxcvbnm"))
          for i, letter in enumerate(row)} | {"Escape": 1, "Return": 28, "Tab": 15}
