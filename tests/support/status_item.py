# SPDX-License-Identifier: MIT
"""A program's status item and its menu, as a panel host sees them."""
from gi.repository import GLib

from calls import call, call_daemon, read_property

ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"


class MenuEntry:
    """One entry of an exported menu, as it was when it was read."""

    def __init__(self, layout):
        self.id, self.properties, children = layout
        self.children = [MenuEntry(child) for child in children]

    def __repr__(self):
        return f"<{self.id} {self.label!r}>"

    @property
    def label(self):
        """Without the marks for access keys."""
        return self.properties.get("label", "").replace("__", "\0").replace("_", "").replace("\0", "_")

    @property
    def separator(self):
        return self.properties.get("type") == "separator"

    @property
    def visible(self):
        return self.properties.get("visible", True)

    @property
    def enabled(self):
        return self.properties.get("enabled", True)

    @property
    def checked(self):
        return self.properties.get("toggle-state", -1) == 1

    def find(self, *labels):
        """Down the path of `labels`; LookupError without it."""
        if not labels:
            return self
        for child in self.children:
            if child.label == labels[0]:
                return child.find(*labels[1:])
        raise LookupError(f"no menu entry {labels[0]!r} in {[child.label for child in self.children]}")


class StatusItem:
    """The item that process `pid` exports on the session bus `bus`. LookupError while there is none."""

    def __init__(self, bus, pid):
        self._bus = bus
        self._name = self._find(pid)

    def _find(self, pid):
        for name in call_daemon(self._bus, "ListNames"):
            if not name.startswith(":") or call_daemon(self._bus, "GetConnectionUnixProcessID", name) != pid:
                continue
            try:
                self._get(name, "Id")
                return name
            except GLib.Error:
                pass
        raise LookupError(f"process {pid} has no status item")

    def _call(self, path, interface, method, signature, *arguments):
        return call(self._bus, self._name, path, interface, method, signature, *arguments)

    def _get(self, name, prop):
        return read_property(self._bus, name, "/StatusNotifierItem", ITEM, prop, timeout=2000)

    def __getitem__(self, prop):
        """A property, such as "XAyatanaLabel"."""
        return self._get(self._name, prop)

    @property
    def bus_name(self):
        return self._name

    @property
    def label(self):
        return self["XAyatanaLabel"]

    @property
    def pictures(self):
        """[(width, height, ARGB bytes)], as exported."""
        return [(width, height, bytes(data)) for width, height, data in self["IconPixmap"]]

    def activate(self, x=0, y=0):
        self._call("/StatusNotifierItem", ITEM, "Activate", "(ii)", x, y)

    def secondary_activate(self, x=0, y=0):
        self._call("/StatusNotifierItem", ITEM, "SecondaryActivate", "(ii)", x, y)

    def context_menu(self, x=0, y=0):
        self._call("/StatusNotifierItem", ITEM, "ContextMenu", "(ii)", x, y)

    def menu(self):
        """The whole menu, read anew, as a host does before it shows it."""
        path = self["Menu"]
        self._call(path, MENU, "AboutToShow", "(i)", 0)
        return MenuEntry(self._call(path, MENU, "GetLayout", "(iias)", 0, -1, [])[1])

    def choose(self, *labels):
        """Chooses the menu entry at the end of the path of `labels`."""
        entry = self.menu().find(*labels)
        self._call(self["Menu"], MENU, "Event", "(isvu)", entry.id, "clicked", GLib.Variant("i", 0), 0)
