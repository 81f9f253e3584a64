# SPDX-License-Identifier: MIT
"""What the desktops have in common whose shell takes scripts."""
import json

from desktop import Window


class Shell:
    BUS_NAME = ""  # its interface is called the same, and its object as well
    IS_SHOWN = "actor.visible"  # of the actor of a window

    def evaluate(self, script):
        return json.loads(self.session.run("python3", "-c", _EVALUATE, self.BUS_NAME, script))

    def windows(self):
        return [Window(title or "", tuple(rectangle), focused) for title, rectangle, focused in self.evaluate(f"""
            global.get_window_actors().filter(actor => {self.IS_SHOWN}).map(actor => {{
                const window = actor.meta_window, r = window.get_frame_rect();
                return [window.title, [r.x, r.y, r.width, r.height], window.has_focus()];
            }})""")]


_EVALUATE = """
import sys
from gi.repository import Gio, GLib
name, script = sys.argv[1:]
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
ok, result = bus.call_sync(name, "/" + name.replace(".", "/"), name, "Eval",
                           GLib.Variant("(s)", (script,)), None, 0, 10000, None).unpack()
if not ok:
    sys.exit(result)
print(result or "null")
"""
