# SPDX-License-Identifier: MIT
"""Listens to what a program says on the session bus."""
import time

from gi.repository import Gio

from calls import call


class Messages:
    """What the connection `name` sends to others than this test, until the end of the `with`: for each
    message the name of its signal or of the call it makes, or "answer"."""

    def __init__(self, desktop, name):
        self._name, self._ours = name, desktop.bus.get_unique_name()
        self._monitor = desktop.connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.sent = []

    def __enter__(self):
        self._monitor.add_filter(self._note)
        call(self._monitor, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.Monitoring",
             "BecomeMonitor", "(asu)", [], 0)
        return self

    def __exit__(self, *_):
        self._monitor.close_sync(None)

    def _note(self, _connection, message, incoming):
        if incoming and message.get_sender() == self._name and message.get_destination() != self._ours:
            self.sent.append(message.get_member() or "answer")
        is_question = message.get_message_type() == Gio.DBusMessageType.METHOD_CALL
        return None if incoming and is_question else message  # a monitor that answers is thrown out


def messages_in(desktop, name, seconds):
    """What the connection `name` sends in that time."""
    with Messages(desktop, name) as messages:
        time.sleep(seconds)
        return messages.sent
