# SPDX-License-Identifier: MIT
"""The accessibility tree of a desktop, read over its bus each time: nothing is cached."""
from gi.repository import GLib

from calls import call, call_daemon, read_property

_ACCESSIBLE = "org.a11y.atspi.Accessible"
_ROOT = "/org/a11y/atspi/accessible/root"
_STATES = {"active": 1, "checked": 4, "editable": 7, "enabled": 8, "focusable": 11, "focused": 12, "sensitive": 24,
           "showing": 25, "visible": 30}


class Accessible:
    """One object of the tree. Everything raises GLib.Error when the object is gone.

    `scale` is what the program's toolkit calls one pixel, in pixels."""

    def __init__(self, bus, name, path, scale=1):
        self._bus, self._name, self._path, self._scale = bus, name, path, scale

    def __eq__(self, other):
        return isinstance(other, Accessible) and (self._name, self._path) == (other._name, other._path)

    def __repr__(self):
        try:
            return f"<{self.role} {self.name!r}>"
        except GLib.Error:
            return "<gone>"

    def _call(self, interface, method, signature="()", *arguments):
        return call(self._bus, self._name, self._path, interface, method, signature, *arguments)

    def _get(self, interface, prop):
        return read_property(self._bus, self._name, self._path, interface, prop)

    @property
    def name(self):
        return self._get(_ACCESSIBLE, "Name")

    @property
    def role(self):
        """Such as "push button", "label", "frame"."""
        return self._call(_ACCESSIBLE, "GetRoleName")[0]

    @property
    def description(self):
        return self._get(_ACCESSIBLE, "Description")

    @property
    def children(self):
        return [Accessible(self._bus, name, path, self._scale)
                for name, path in self._call(_ACCESSIBLE, "GetChildren")[0]]

    def has_state(self, state):
        low, high = self._call(_ACCESSIBLE, "GetState")[0]
        return bool((low | high << 32) >> _STATES[state] & 1)

    @property
    def showing(self):
        return self.has_state("showing")

    @property
    def text(self):
        return self._call("org.a11y.atspi.Text", "GetText", "(ii)", 0, -1)[0]

    @text.setter
    def text(self, value):
        self._call("org.a11y.atspi.EditableText", "SetTextContents", "(s)", value)

    @property
    def value(self):
        return self._get("org.a11y.atspi.Value", "CurrentValue")

    @value.setter
    def value(self, value):
        self._call("org.freedesktop.DBus.Properties", "Set", "(ssv)", "org.a11y.atspi.Value", "CurrentValue",
                   GLib.Variant("d", value))

    @property
    def rectangle(self):
        """(x, y, width, height) on the screen, in pixels, from the top left."""
        extents = self._call("org.a11y.atspi.Component", "GetExtents", "(u)", 0)[0]
        return tuple(round(self._scale * length) for length in extents)

    @property
    def middle(self):
        x, y, width, height = self.rectangle
        return x + width // 2, y + height // 2

    @property
    def actions(self):
        return [action[0] for action in self._call("org.a11y.atspi.Action", "GetActions")[0]]

    def press(self):
        """The first action: presses a button, toggles a switch."""
        self._call("org.a11y.atspi.Action", "DoAction", "(i)", 0)

    def grab_focus(self):
        self._call("org.a11y.atspi.Component", "GrabFocus")

    def descendants(self):
        for child in self.children:
            yield child
            yield from child.descendants()

    def find_all(self, role=None, name=None, showing=True):
        """Every descendant with this role and name (None: any), by default only what is on the screen.
        Anything that disappears meanwhile is left out."""
        found = []
        try:
            for child in self.children:
                try:
                    if ((role is None or child.role == role) and (name is None or child.name == name)
                            and (not showing or child.showing)):
                        found.append(child)
                    found += child.find_all(role, name, showing)
                except GLib.Error:
                    pass
        except GLib.Error:
            pass
        return found

    def find(self, role=None, name=None, showing=True):
        """The first of find_all; LookupError without one."""
        for found in self.find_all(role, name, showing):
            return found
        raise LookupError(f"no {role or 'object'} named {name!r}")

    def dump(self, indent=""):
        """The tree as text, for a person."""
        lines = [f"{indent}{self!r}{'' if self.showing else ' (hidden)'}"]
        for child in self.children:
            lines.append(child.dump(indent + "  "))
        return "\n".join(lines)


def applications(bus, scale=1):
    return Accessible(bus, "org.a11y.atspi.Registry", _ROOT, scale).children


def process_of(bus, accessible):
    return call_daemon(bus, "GetConnectionUnixProcessID", accessible._name)
