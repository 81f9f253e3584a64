# SPDX-License-Identifier: MIT
"""Counts what a program says on the session bus."""
import time

from gi.repository import Gio, GLib


def messages_of(desktop, name, seconds):
    """(how many messages the connection `name` sends in about `seconds`, those seconds)."""
    monitor = desktop.connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
    sent = []

    def note(_connection, message, incoming):
        if incoming and message.get_sender() == name:
            sent.append(message)
        is_question = message.get_message_type() == Gio.DBusMessageType.METHOD_CALL
        return None if incoming and is_question else message  # a monitor that answers is thrown out

    monitor.add_filter(note)
    monitor.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.Monitoring",
                      "BecomeMonitor", GLib.Variant("(asu)", ([], 0)), None, Gio.DBusCallFlags.NONE, 10000, None)
    started = time.monotonic()
    time.sleep(seconds)
    monitor.close_sync(None)
    return len(sent), time.monotonic() - started
