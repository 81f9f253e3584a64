#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The settings portal of a desktop: tells programs about light and dark, contrast and motion.

    portal.py COLOR_SCHEME (0 no preference, 1 dark, 2 light)

Beside the portal's own interface it has org.velto.Test.Change, with which a test turns a setting.
"""
import sys

from gi.repository import Gio, GLib

NAME, PATH = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"
SETTINGS = "org.freedesktop.portal.Settings"
NODE = Gio.DBusNodeInfo.new_for_xml(f"""<node>
  <interface name="{SETTINGS}">
    <method name="ReadAll"><arg type="as" direction="in"/><arg type="a{{sa{{sv}}}}" direction="out"/></method>
    <method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="v" direction="out"/></method>
    <method name="ReadOne"><arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="v" direction="out"/></method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
    <property name="version" type="u" access="read"/>
  </interface>
  <interface name="org.velto.Test">
    <method name="Change"><arg type="s" direction="in"/><arg type="s" direction="in"/>
      <arg type="v" direction="in"/></method>
  </interface>
</node>""")

settings = {"org.freedesktop.appearance": {"color-scheme": GLib.Variant("u", int(sys.argv[1])),
                                           "contrast": GLib.Variant("u", 0)},
            "org.gnome.desktop.interface": {"enable-animations": GLib.Variant("b", True)}}
bus = Gio.bus_get_sync(Gio.BusType.SESSION)


def call(_bus, _sender, _path, _interface, method, arguments, invocation):
    if method == "ReadAll":
        wanted = arguments.unpack()[0]
        chosen = {space: values for space, values in settings.items()
                  if not wanted or any(w in ("", space) or w.endswith("*") and space.startswith(w[:-1])
                                       for w in wanted)}
        invocation.return_value(GLib.Variant("(a{sa{sv}})", (chosen,)))
        return
    space, key = arguments.get_child_value(0).get_string(), arguments.get_child_value(1).get_string()
    if method == "Change":
        value = arguments.get_child_value(2).get_variant()
        settings.setdefault(space, {})[key] = value
        bus.emit_signal(None, PATH, SETTINGS, "SettingChanged", GLib.Variant("(ssv)", (space, key, value)))
        invocation.return_value(None)
    elif key not in settings.get(space, {}):
        invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "Requested setting not found")
    else:
        value = settings[space][key]
        # Read is known for wrapping its answer twice.
        invocation.return_value(GLib.Variant("(v)", (value if method == "ReadOne" else GLib.Variant("v", value),)))


for interface in NODE.interfaces:
    bus.register_object(PATH, interface, call, lambda *_: GLib.Variant("u", 2), None)
Gio.bus_own_name_on_connection(bus, NAME, Gio.BusNameOwnerFlags.NONE, None, None)
GLib.MainLoop().run()
