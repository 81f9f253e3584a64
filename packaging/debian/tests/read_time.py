# SPDX-License-Identifier: MIT
"""Takes velto's item in, as a panel bar does, and reads the time that the item shows."""
import subprocess
import sys

from gi.repository import Gio, GLib

PATIENCE = 60  # seconds
WATCHER = """<node><interface name="org.kde.StatusNotifierWatcher">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
</interface></node>"""

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
loop = GLib.MainLoop()
times = []


def read_time(sender):
    answer = bus.call_sync(sender, "/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                           GLib.Variant("(ss)", ("org.kde.StatusNotifierItem", "XAyatanaLabel")),
                           None, Gio.DBusCallFlags.NONE, -1, None)
    times.append(answer.unpack()[0])
    if times[-1]:
        loop.quit()
    return not times[-1]


def called(_connection, sender, _path, _interface, _method, _arguments, invocation):
    invocation.return_value(None)
    GLib.timeout_add(200, read_time, sender)


bus.register_object("/StatusNotifierWatcher", Gio.DBusNodeInfo.new_for_xml(WATCHER).interfaces[0],
                    called, lambda *_: GLib.Variant("b", True), None)
Gio.bus_own_name_on_connection(bus, "org.kde.StatusNotifierWatcher", Gio.BusNameOwnerFlags.NONE, None, None)
velto = subprocess.Popen(["velto"])
GLib.timeout_add_seconds(PATIENCE, loop.quit)
try:
    loop.run()
finally:
    velto.terminate()
    velto.wait(10)
print("The times that velto showed:", times)
sys.exit(times[-1:] != ["25:00"])
