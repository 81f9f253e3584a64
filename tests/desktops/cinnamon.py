# SPDX-License-Identifier: MIT
"""Cinnamon, which runs on X11."""
import json

from desktop import Window
from x11 import X11Desktop


class Cinnamon(X11Desktop):
    PACKAGES = "cinnamon muffin xapp-sn-watcher xvfb".split()
    START = X11Desktop.SERVER + """
export XDG_CURRENT_DESKTOP=X-Cinnamon XDG_SESSION_TYPE=x11 LIBGL_ALWAYS_SOFTWARE=1
/usr/lib/x86_64-linux-gnu/xapps/xapp-sn-watcher &
cinnamon --replace &
until gdbus call --session --dest org.Cinnamon --object-path /org/Cinnamon --method org.Cinnamon.Eval 1 | grep true
do sleep 0.2; done >/dev/null 2>&1
sleep 5 # it puts up its panel
env | grep -E '^(HOME|XDG_|DBUS|PATH|LANG|USER|LOGNAME|DISPLAY|XAUTHORITY)' > $XDG_RUNTIME_DIR/session
wait
"""

    def _evaluate(self, script):
        return json.loads(self.session.run("python3", "-c", _EVALUATE, script))

    def windows(self):
        return [Window(title or "", tuple(rectangle), focused) for title, rectangle, focused in self._evaluate("""
            global.get_window_actors().filter(actor => actor.visible && actor.meta_window.showing_on_its_workspace())
                .map(actor => {
                    const window = actor.meta_window, r = window.get_frame_rect();
                    return [window.title, [r.x, r.y, r.width, r.height], window.has_focus()];
                })""")]

    def item_place(self):
        x, y, width, height = self._evaluate("""
            (() => {
                const applet = imports.ui.appletManager.getRunningInstancesForUuid("xapp-status@cinnamon.org")[0];
                const icon = Object.values(applet.statusIcons).find(icon => icon.name.includes("velto")) ||
                    Object.values(applet.statusIcons)[0];
                const [x, y] = icon.actor.get_transformed_position();
                return [x, y, icon.actor.width, icon.actor.height];
            })()""")
        return round(x + width / 2), round(y + height / 2)


_EVALUATE = """
import sys
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
ok, result = bus.call_sync("org.Cinnamon", "/org/Cinnamon", "org.Cinnamon", "Eval",
                           GLib.Variant("(s)", (sys.argv[1],)), None, 0, 10000, None).unpack()
if not ok:
    sys.exit(result)
print(result or "null")
"""
