# SPDX-License-Identifier: MIT
"""Cinnamon, which runs on X11."""
from shell import Shell
from x11 import X11Desktop


class Cinnamon(Shell, X11Desktop):
    BUS_NAME = "org.Cinnamon"
    IS_SHOWN = "actor.visible && actor.meta_window.showing_on_its_workspace()"
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

    def item_place(self):
        x, y, width, height = self.evaluate("""
            (() => {
                const applet = imports.ui.appletManager.getRunningInstancesForUuid("xapp-status@cinnamon.org")[0];
                const icon = Object.values(applet.statusIcons).find(icon => icon.name.includes("velto")) ||
                    Object.values(applet.statusIcons)[0];
                const [x, y] = icon.actor.get_transformed_position();
                return [x, y, icon.actor.width, icon.actor.height];
            })()""")
        return round(x + width / 2), round(y + height / 2)
