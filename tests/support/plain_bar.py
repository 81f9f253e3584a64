#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A bar at the top of a monitor that shows the label of every status item, and activates it on a left press
or on its release.

    plain_bar.py press|release X Y WIDTH
"""
import subprocess
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkX11, Gio, GLib, Gtk  # noqa: E402

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
HEIGHT = 28
INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>""").interfaces[0]


class Bar(Gtk.Window):
    def __init__(self, activate_on, x, y, width):
        super().__init__(title="bar", type_hint=Gdk.WindowTypeHint.DOCK)
        self._items = {}
        self._row = Gtk.Box(spacing=8, halign=Gtk.Align.CENTER)
        self.add(self._row)
        self.set_default_size(width, HEIGHT)
        self._activation = f"button-{activate_on}-event"
        self.show_all()
        self.move(x, y)
        self._keep_free(x, y, width)

        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._bus.register_object("/StatusNotifierWatcher", INTERFACE, self._call, self._get, None)
        Gio.bus_own_name_on_connection(self._bus, WATCHER, Gio.BusNameOwnerFlags.NONE, None, None)

    def _keep_free(self, x, y, width):
        """Asks the window manager to keep other windows from under the bar."""
        strut = [0, 0, y + HEIGHT, 0, 0, 0, 0, 0, x, x + width - 1, 0, 0]
        subprocess.run(["xprop", "-id", str(GdkX11.X11Window.get_xid(self.get_window())),
                        "-f", "_NET_WM_STRUT_PARTIAL", "32c",
                        "-set", "_NET_WM_STRUT_PARTIAL", ",".join(map(str, strut))], check=True)

    def _get(self, _bus, _sender, _path, _interface, name):
        return {"RegisteredStatusNotifierItems": GLib.Variant("as", list(self._items)),
                "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def _call(self, _bus, sender, _path, _interface, method, arguments, invocation):
        invocation.return_value(None)  # first: the item may be waiting for it, and is asked things below
        if method == "RegisterStatusNotifierItem":
            self._add(sender, arguments[0])

    def _add(self, sender, service):
        name, path = (sender, service) if service.startswith("/") else (service, "/StatusNotifierItem")
        key = name + path
        if key in self._items:
            return
        item = Gio.DBusProxy.new_sync(self._bus, Gio.DBusProxyFlags.DO_NOT_LOAD_PROPERTIES, None, name, path, ITEM, None)
        label = Gtk.Label(width_request=48)
        label.get_accessible().set_name("velto")
        box = Gtk.EventBox()
        box.add(label)
        box.add_events(Gdk.EventMask.BUTTON_PRESS_MASK | Gdk.EventMask.BUTTON_RELEASE_MASK)
        box.connect(self._activation, self._activate, item)
        item.connect("g-signal", lambda *_: self._refresh(item, label))
        item.connect("notify::g-name-owner", lambda *_: item.get_name_owner() or self._remove(key))
        self._items[key] = box
        self._row.add(box)
        box.show_all()
        self._refresh(item, label)
        self._bus.emit_signal(None, "/StatusNotifierWatcher", WATCHER, "StatusNotifierItemRegistered",
                              GLib.Variant("(s)", (key,)))

    def _remove(self, key):
        self._items.pop(key).destroy()
        self._bus.emit_signal(None, "/StatusNotifierWatcher", WATCHER, "StatusNotifierItemUnregistered",
                              GLib.Variant("(s)", (key,)))

    def _refresh(self, item, label):
        def show(bus, result):
            try:
                label.set_text(bus.call_finish(result).unpack()[0])
            except GLib.Error:
                pass  # the item went away meanwhile

        self._bus.call(item.get_name(), item.get_object_path(), "org.freedesktop.DBus.Properties", "Get",
                       GLib.Variant("(ss)", (ITEM, "XAyatanaLabel")), None, Gio.DBusCallFlags.NONE, 5000, None, show)

    def _activate(self, _box, event, item):
        method = {1: "Activate", 2: "SecondaryActivate", 3: "ContextMenu"}.get(event.button)
        # A quick second press comes as a double press, too.
        if method and event.type in (Gdk.EventType.BUTTON_PRESS, Gdk.EventType.BUTTON_RELEASE):
            item.call(method, GLib.Variant("(ii)", (int(event.x_root), int(event.y_root))), Gio.DBusCallFlags.NONE,
                      5000, None, None)
        return True


bar = Bar(sys.argv[1], *map(int, sys.argv[2:]))
Gtk.main()
