# SPDX-License-Identifier: MIT
"""The panel bars that a virtual desktop can have."""
import os
import re
import subprocess

_HERE = os.path.dirname(os.path.abspath(__file__))

_XFCE = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="{dark}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="output-name" type="string" value="{output}"/>
      <property name="length" type="uint" value="100"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
        <value type="int" value="3"/>
        <value type="int" value="4"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="tasklist"/>
    <property name="plugin-2" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-3" type="string" value="systray">
      <property name="square-icons" type="bool" value="true"/>
      <property name="icon-size" type="int" value="0"/>
    </property>
    <property name="plugin-4" type="string" value="clock">
      <property name="digital-layout" type="uint" value="3"/>
      <property name="digital-time-format" type="string" value="%H:%M"/>
      <property name="digital-time-font" type="string" value="Sans 9"/>
    </property>
  </property>
</channel>
"""


_LXQT = """[General]
__userfile__=true
panels=panel1

[panel1]
alignment=-1
desktop=0
hidable=false
panelSize=32
iconSize=22
plugins=mainmenu, spacer, statusnotifier
position=Top
width=100
width-percent=true

[mainmenu]
type=mainmenu

[spacer]
alignment=Right
expandable=true
type=spacer

[statusnotifier]
alignment=Right
type=statusnotifier
"""

_MATE = """[org/mate/panel/general]
toplevel-id-list=['top']
object-id-list=['tray']

[org/mate/panel/toplevels/top]
expand=true
orientation='top'
size=28

[org/mate/panel/objects/tray]
object-type='applet'
applet-iid='NotificationAreaAppletFactory::NotificationArea'
toplevel-id='top'
position={distance}
panel-right-stick=true
"""


def _windows(desktop, wm_class):
    """(x, y, width, height) of every window of that class on the screen."""
    pattern = re.compile(rf'(0x\w+) .*\("{re.escape(wm_class)}" .*\)  (\d+)x(\d+)\+-?\d+\+-?\d+  \+(-?\d+)\+(-?\d+)')
    try:
        tree = desktop.ask("xwininfo", "-root", "-tree")
    except subprocess.CalledProcessError:
        return  # a window has gone meanwhile
    for match in pattern.finditer(tree):
        width, height, x, y = map(int, match.groups()[1:])
        try:
            if width > 16 and height > 16 and "IsViewable" in desktop.ask("xwininfo", "-id", match[1]):
                yield x, y, width, height
        except subprocess.CalledProcessError:
            pass  # it has gone meanwhile


class XfcePanel:
    """The XFCE panel at the top of the main monitor. Shows square pictures, activates on release."""

    def __init__(self, dark=True):
        self._dark = dark

    def start(self, desktop):
        folder = desktop.path("config/xfce4/xfconf/xfce-perchannel-xml")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "xfce4-panel.xml"), "w", encoding="utf-8") as file:
            file.write(_XFCE.format(output="Primary" if desktop.monitors else "Automatic", dark=str(self._dark).lower()))
        return desktop.run("xfce4-panel", "--disable-wm-check", "--sm-client-disable")

    def item_rectangle(self, desktop):
        # The plug-in of the status items is a process of its own; it takes no room while it has no item.
        for rectangle in _windows(desktop, "wrapper-2.0"):
            if rectangle[1] == 0:
                return rectangle
        raise LookupError("no status item in the panel bar")

    def menu_rectangle(self, desktop):
        for rectangle in _windows(desktop, "wrapper-2.0"):
            if rectangle[1] > 0:
                return rectangle
        raise LookupError("no menu under the panel bar")


class PlainBar:
    """A bar of our own at the top of a monitor that shows labels and activates on press or on release."""

    def __init__(self, activate_on):
        self._activate_on = activate_on

    def start(self, desktop):
        program = desktop.path("budgie-panel")  # a name that is known for showing labels
        if not os.path.exists(program):
            os.symlink("/usr/bin/python3", program)
        width, _, x, y = desktop.monitors[desktop.bar_monitor] if desktop.monitors else (desktop.size[0], 0, 0, 0)
        return desktop.run(program, os.path.join(_HERE, "plain_bar.py"), self._activate_on, str(x), str(y), str(width))

    def item_rectangle(self, desktop):
        bar = desktop.application(desktop.host.pid)
        return bar.find("label", "velto").rectangle


class LxqtPanel:
    """The LXQt panel at the top of the screen. Shows square pictures, activates on release."""

    def __init__(self, theme):
        self._theme = theme

    def start(self, desktop):
        folder = desktop.path("config/lxqt")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "panel.conf"), "w", encoding="utf-8") as file:
            file.write(_LXQT)
        with open(os.path.join(folder, "lxqt.conf"), "w", encoding="utf-8") as file:
            file.write(f"[General]\ntheme={self._theme}\n")
        return desktop.run("lxqt-panel", environment={"XDG_CURRENT_DESKTOP": "LXQt"})

    def item_rectangle(self, desktop):
        for button in desktop.application(desktop.host.pid).find_all("push button"):
            x, y, width, height = button.rectangle
            if x > 640 and width > 16:  # the other one is the panel's own menu at the left
                return x, y, width, height
        raise LookupError("no status item in the panel bar")


class MatePanel:
    """The MATE panel at the top of the screen with its notification area, so far from the right edge. Shows labels,
    activates on release."""

    def __init__(self, distance=0):
        self._distance = distance

    def start(self, desktop):
        folder = desktop.path("config/glib-2.0/settings")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "keyfile"), "w", encoding="utf-8") as file:
            file.write(_MATE.format(distance=self._distance))
        return desktop.run("mate-panel", environment={"XDG_CURRENT_DESKTOP": "MATE", "GSETTINGS_BACKEND": "keyfile"})

    def item_rectangle(self, desktop):
        for x, y, width, height in _windows(desktop, "notification-area-applet"):
            if y == 0:
                handle = 10
                return x + handle, y, width - handle, height
        raise LookupError("no status item in the panel bar")


HOSTS = {
    "lxqt": LxqtPanel("light"),
    "lxqt-dark": LxqtPanel("dark"),
    "mate": MatePanel(),
    "mate-inside": MatePanel(distance=308),
    "xfce": XfcePanel(),
    "xfce-light": XfcePanel(dark=False),
    "press": PlainBar("press"),
    "release": PlainBar("release"),
}
