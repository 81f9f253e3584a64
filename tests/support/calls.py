# SPDX-License-Identifier: MIT
"""Calls over D-Bus. They raise GLib.Error when nobody answers."""
from gi.repository import Gio, GLib

_DAEMON = "org.freedesktop.DBus"


def call(bus, name, path, interface, method, signature="()", *arguments, timeout=10000):
    """The values of the answer."""
    return bus.call_sync(name, path, interface, method, GLib.Variant(signature, arguments), None,
                         Gio.DBusCallFlags.NONE, timeout, None).unpack()


def call_daemon(bus, method, *names):
    return call(bus, _DAEMON, "/org/freedesktop/DBus", _DAEMON, method, f"({'s' * len(names)})", *names)[0]


def read_property(bus, name, path, interface, prop, timeout=10000):
    return call(bus, name, path, f"{_DAEMON}.Properties", "Get", "(ss)", interface, prop, timeout=timeout)[0]
