# SPDX-License-Identifier: MIT
"""A desktop of its own for one test: X server, D-Bus session, accessibility, window manager, panel bar.

    with VirtualDesktop() as desktop:
        velto = desktop.start_velto({"focusMinutes": 1})
        velto.press("Start")
        wait_for(lambda: velto.item.label == "00:59")

Nothing of it is shared with the machine or with another test: display, bus, home and settings are new,
and whatever it started is gone when it ends, also when the test itself is killed. Needs the system's
Python (/usr/bin/python3) with gi.
"""
import contextlib
import os
import plistlib
import re
import select
import signal
import subprocess
import sys
import tempfile

import gi  # noqa: F401
from gi.repository import Gio, GLib

import accessibility
import framebuffer
from calls import call, call_daemon, read_property
from hosts import HOSTS
from machine import Hindrance
from status_item import StatusItem
from waiting import holds, wait_for  # noqa: F401

_HERE = os.path.dirname(os.path.abspath(__file__))
_ROOT = os.path.dirname(os.path.dirname(_HERE))
_ATSPI = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")

_OPENBOX = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <keyboard><keybind key="C-A-v"><action name="Execute"><command>{program}</command></action></keybind></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""

# Qt's warnings about misuse. Those of QSpi... are about a screen reader that does not answer.
_MISUSE = re.compile(r"^(?:Q(?!Spi)\w+::|qt\.qpa\.xcb: internal error).*", re.MULTILINE)
_TIME = re.compile(r"\d{2,}:\d\d")
_ANNOUNCEMENT = re.compile(r'signal time=(\S+) sender=(\S+) .*member=XAyatanaNewLabel\n   string "([^"]*)"\n')


class Velto:
    """One run of the program."""

    def __init__(self, desktop, process):
        self.desktop, self.process, self._printed = desktop, process, b""
        self._app = self._item = self._time_label = None

    @property
    def pid(self):
        return self.process.pid

    @property
    def printed(self):
        """What has come out of its standard output so far, in bytes."""
        pipe = self.process.stdout
        while select.select([pipe], [], [], 0)[0] and (piece := os.read(pipe.fileno(), 65536)):
            self._printed += piece
        return self._printed

    @property
    def output(self):
        """The lines on standard output so far."""
        return self.printed.decode().splitlines()

    @property
    def app(self):
        """Its accessibility tree. LookupError while it is not there yet."""
        if not self._app:
            self._app = self.desktop.application(self.pid, self.desktop.scale)
        return self._app

    @property
    def item(self):
        """Its status item. LookupError while it is not there yet."""
        if not self._item:
            self._item = StatusItem(self.desktop.bus, self.pid)
        return self._item

    @property
    def card(self):
        """The timer's card on the screen. LookupError while it is hidden."""
        for window in self.app.children:
            if window.showing and any(_TIME.fullmatch(label.name) for label in window.find_all("label")):
                return window
        raise LookupError("the card is hidden")

    @property
    def card_is_visible(self):
        try:
            return bool(self.card)
        except (LookupError, GLib.Error):
            return False

    @property
    def time(self):
        """The time on the card, such as "24:59"."""
        if not self._time_label:
            self._time_label = next(
                (found for found in self.card.find_all() if _TIME.fullmatch(found.name)), None)
        if not self._time_label or not self._time_label.showing:
            raise LookupError("no time on the card")
        return self._time_label.name

    @property
    def phase(self):
        """The phase on the card: "Focus" or "Break"."""
        for found in self.card.find_all():
            if found.name in ("Focus", "Break"):
                return found.name
        raise LookupError("no phase on the card")

    @property
    def controls(self):
        """The names of the buttons on the card, from left to right."""
        buttons = self.card.find_all("push button")
        return [button.name for button in sorted(buttons, key=lambda button: button.rectangle[0])]

    @property
    def other_windows(self):
        """What it shows beside the card."""
        card = self.card if self.card_is_visible else None
        return [window for window in self.app.children if window.showing and window != card]

    @property
    def strip(self):
        """The strip's button with the time. LookupError while there is a panel bar."""
        for window in self.other_windows:
            for button in window.find_all("push button"):
                if button.name == self.item.label:
                    return button
        raise LookupError("no strip")

    def has_strip(self):
        try:
            return bool(self.strip)
        except LookupError:
            return False

    def press(self, name):
        """Presses a button of the card, without the mouse."""
        wait_for(lambda: self.card.find("push button", name), what=f"a button {name!r}").press()

    @property
    def settings(self):
        """What the settings file holds now; empty without one."""
        try:
            with open(self.desktop.settings_file, "rb") as file:
                return plistlib.load(file)
        except FileNotFoundError:
            return {}

    def wait(self, timeout=30):
        """The exit status (negative: the signal), once it has ended."""
        return self.process.wait(timeout)

    def kill(self, chosen_signal=signal.SIGKILL):
        self.process.send_signal(chosen_signal)
        return self.wait()


class VirtualDesktop:
    """See the module. `host` is the panel bar: one of hosts.HOSTS, or "none". `wm` is the window manager:
    "xfwm4", "openbox", which starts the program on Control+Alt+V, or "none". `monitors` is a list of
    (width, height, x, y) inside `size`, the first being the main one; `bar_monitor` says which has the bar
    ("press" and "release" only).
    `scale` is how many pixels a point has, `dark` the colour scheme that the desktop asks for, `font` the one family
    for its texts: no other font of the machine is seen."""

    def __init__(self, host="xfce", wm="xfwm4", size=(1280, 800), monitors=(), scale=1, dark=False,
                 compositing=False, bar_monitor=0, font="Inter", verbose=False):
        self._host_kind, self._wm_kind, self.size = host, wm, size
        self.monitors, self.scale, self.dark, self._compositing = monitors, scale, dark, compositing
        self.bar_monitor, self._font, self._verbose = bar_monitor, font, verbose
        self._processes = []
        self.host = None

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="velto-desktop-")
        self._guard = subprocess.Popen([sys.executable, os.path.join(_HERE, "guard.py"), self.folder],
                                       stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, error, *_):
        try:
            misuse = [] if error else _MISUSE.findall(self.log("velto"))
        except FileNotFoundError:
            misuse = []  # it was never started, or its words go to the terminal
        self.close()
        if misuse:
            raise AssertionError(f"Qt complains of velto: {misuse}")

    def close(self):
        self._guard.stdin.close()
        self._guard.stdout.read()  # until the guard has finished
        self._guard.stdout.close()
        for process in [self._guard, *self._processes]:
            process.wait()
            if process.stdout:
                process.stdout.close()

    # Building it up

    def _start(self):
        for name in ("home", "config", "data", "cache", "state", "runtime", "screen", "log"):
            os.mkdir(self.path(name), 0o700)
        kept = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS")
        self.environment = {name: os.environ[name] for name in kept if name in os.environ} | {
            "VELTO_DESKTOP": self.folder,
            "LANG": "C.UTF-8",
            "HOME": self.path("home"),
            "XDG_CONFIG_HOME": self.path("config"),
            "XDG_DATA_HOME": self.path("data"),
            "XDG_CACHE_HOME": self.path("cache"),
            "XDG_STATE_HOME": self.path("state"),
            "XDG_RUNTIME_DIR": self.path("runtime"),
            "XDG_SESSION_TYPE": "x11",
            "FONTCONFIG_FILE": self.path("fonts.conf"),
            "GSETTINGS_BACKEND": "memory",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        if self.scale != 1:
            self.environment["QT_SCALE_FACTOR"] = str(self.scale)
            self.environment["GDK_SCALE"] = str(int(self.scale))
        if self.dark:
            self.environment["GTK_THEME"] = "Adwaita:dark"
        os.mkdir(self.path("config/pulse"))
        with open(self.path("config/pulse/client.conf"), "w", encoding="utf-8") as file:
            file.write("autospawn = no\n")
        with open(os.path.join(_HERE, "fonts.conf.in"), encoding="utf-8") as template:
            with open(self.path("fonts.conf"), "w", encoding="utf-8") as file:
                file.write(template.read().replace("@FONT@", self._font))

        self._start_x_server()
        self.start_bus()
        if self._wm_kind == "xfwm4":
            self.window_manager = self.run(
                "xfwm4", f"--compositor={'on' if self._compositing else 'off'}", "--sm-client-disable")
        elif self._wm_kind == "openbox":
            with open(self.path("config/openbox.xml"), "w", encoding="utf-8") as file:
                file.write(_OPENBOX.format(program=self.program))
            self.window_manager = self.run("openbox", "--config-file", file.name)
        if self._wm_kind != "none":
            wait_for(lambda: "window id" in self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                     what="a window manager")
        if self._compositing:
            self.run("/usr/bin/python3", os.path.join(_HERE, "backdrop.py"), *map(str, self.size),
                     *(("#2b3a4a", "#151c24") if self.dark else ("#9fb6c9", "#5f7d99")))
        self.start_host()

    def _start_x_server(self):
        reader, writer = os.pipe()
        width, height = self.size
        self.x_server = self.run(
            "Xvfb", "-displayfd", str(writer), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp", "-noreset",
            "-dpi", "96", "-fbdir", self.path("screen"), pass_fds=(writer,))
        os.close(writer)
        with os.fdopen(reader) as file:
            if not select.select([file], [], [], 60)[0]:
                raise AssertionError("The X server does not start")
            self.display = ":" + file.readline().strip()
        self.environment["DISPLAY"] = self.display
        for index, (width, height, x, y) in enumerate(self.monitors):
            self.ask("xrandr", "--setmonitor", f"{'*' if index == 0 else ''}M{index}",
                     f"{width}/{width // 4}x{height}/{height // 4}+{x}+{y}", "screen" if index == 0 else "none")
        self.ask("xsetroot", "-solid", "#2b3440" if self.dark else "#7c93ab", "-cursor_name", "left_ptr")

    def start_bus(self):
        """Starts the session bus, with accessibility and the settings portal."""
        address = f"unix:path={self.path('runtime/bus')}"
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.bus_daemon = self.run("dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address={address}")
        self.bus = wait_for(lambda: self.connect(address), what="a session bus")
        self._listener = self.run(
            "dbus-monitor", "--session", "type='method_call',interface='org.kde.StatusNotifierItem',member='Activate'",
            "type='signal',interface='org.kde.StatusNotifierItem',member='XAyatanaNewLabel'",
            output=self.path("overheard"))
        self.run(next(path for path in _ATSPI if os.path.exists(path)), "--launch-immediately")
        self._accessibility = wait_for(lambda: self.connect(call(
            self.bus, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]), what="an accessibility bus")
        self.run("/usr/bin/python3", os.path.join(_HERE, "portal.py"), "1" if self.dark else "2")
        wait_for(lambda: self._has_owner("org.freedesktop.portal.Desktop"), what="the settings portal")

    @contextlib.contextmanager
    def paused(self, process):
        """`process` hangs meanwhile."""
        process.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            process.send_signal(signal.SIGCONT)

    def stop_bus(self):
        """Kills the session bus, and the panel bar with it."""
        for process in (self.bus_daemon, self._listener, self.host):
            process.kill()
            process.wait()

    def start_host(self, kind=None):
        """Starts the panel bar and returns once it takes status items."""
        kind = kind or self._host_kind
        if kind == "none":
            return
        self._host_in_use = HOSTS[kind]
        self.host = self._host_in_use.start(self)
        wait_for(lambda: self._has_owner("org.kde.StatusNotifierWatcher"), what="a host of status items")

    def stop_host(self):
        """Kills the panel bar, with everything it started."""
        os.killpg(self.host.pid, signal.SIGKILL)
        self.host.wait()
        wait_for(lambda: not self._has_owner("org.kde.StatusNotifierWatcher"), what="the host's end")

    @property
    def registered_items(self):
        """The items that the panel bar has taken in."""
        return read_property(self.bus, "org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
                             "org.kde.StatusNotifierWatcher", "RegisteredStatusNotifierItems")

    @property
    def item_rectangle(self):
        """Where the program's item stands in the panel bar; LookupError while it is not there."""
        return self._host_in_use.item_rectangle(self)

    @property
    def menu_rectangle(self):
        """Where the menu stands that the panel bar has opened (only "xfce"); LookupError while there is none."""
        return self._host_in_use.menu_rectangle(self)

    def _has_owner(self, name):
        return call_daemon(self.bus, "NameHasOwner", name)

    # Programs

    def path(self, name):
        return os.path.join(self.folder, name)

    @property
    def program(self):
        return os.environ.get("VELTO_BIN", os.path.join(_ROOT, "build/release/bin/velto"))

    @property
    def settings_file(self):
        return self.path("config/velto/defaults.plist")

    def connect(self, address):
        """A bus connection of its own."""
        return Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION,
            None, None)

    def run(self, *command, output=None, environment=None, pass_fds=()):
        """Starts a program on the desktop, in a process group of its own; it ends with the desktop. `output` is a
        path or subprocess.PIPE."""
        log = None if self._verbose else open(self.path(f"log/{os.path.basename(command[0])}.log"), "ab")
        out = open(output, "wb") if isinstance(output, str) else output or log
        process = subprocess.Popen(command, env=self.environment | (environment or {}), cwd=self.path("home"),
                                   stdin=subprocess.DEVNULL, stdout=out, stderr=log, start_new_session=True,
                                   pass_fds=pass_fds)
        self._processes.append(process)
        for file in {log, out} - {None, subprocess.PIPE}:
            file.close()
        return process

    def ask(self, *command):
        """Runs a program to its end and returns what it printed."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=60, check=True).stdout.decode()

    def launch(self, defaults=None, environment=None):
        """Starts the program: VELTO_BIN, else the release build. `defaults` becomes its settings file (None:
        the one there is stays), without the first-launch welcome unless it sets hasLaunchedBefore itself."""
        if defaults is not None:
            os.makedirs(os.path.dirname(self.settings_file), 0o700, exist_ok=True)
            with open(self.settings_file, "wb") as file:
                plistlib.dump({"hasLaunchedBefore": True} | defaults, file)
        return Velto(self, self.run(self.program, output=subprocess.PIPE, environment=environment))

    def start_velto(self, defaults=None, environment=None):
        """Launches the program, and returns when its card is on the screen."""
        velto = self.launch(defaults, environment)

        def is_shown():
            if velto.process.poll() is not None:
                raise AssertionError(f"velto ended with {velto.process.returncode}: {self.log('velto')}")
            return velto.item and velto.card_is_visible

        wait_for(is_shown, what="the card, shown at launch")
        return velto

    def change_setting(self, namespace, key, value):
        """Turns a setting of the desktop: ("org.freedesktop.appearance", "color-scheme", GLib.Variant("u", 1))
        makes it dark."""
        call(self.bus, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.velto.Test", "Change",
             "(ssv)", namespace, key, value)

    def open_window(self, title):
        """Opens another program's window with a text field, and returns the field once it has the focus."""
        process = self.run("/usr/bin/python3", os.path.join(_HERE, "text_window.py"), title)
        field = wait_for(lambda: self.application(process.pid).find("text"), what=f"the window {title!r}")
        try:
            wait_for(lambda: field.has_state("focused"), timeout=3)
        except AssertionError:  # not every window manager gives a window the keyboard unasked
            self.ask("xdotool", "search", "--name", f"^{title}$", "windowactivate", "--sync")
            wait_for(lambda: field.has_state("focused"), what=f"the focus in {title!r}")
        return field

    def log(self, program):
        """What `program` wrote on standard error so far."""
        with open(self.path(f"log/{program}.log"), encoding="utf-8", errors="replace") as file:
            return file.read()

    def application(self, pid, scale=1):
        """The accessibility tree of process `pid`, whose toolkit calls `scale` pixels one; LookupError without
        one."""
        for application in accessibility.applications(self._accessibility, scale):
            if accessibility.process_of(self._accessibility, application) == pid:
                return application
        raise LookupError(f"process {pid} is not accessible")

    # Eyes and hands

    def picture(self):
        return framebuffer.read_picture(self.path("screen/Xvfb_screen0"))

    def screenshot(self, path):
        self.picture().save(path)

    @property
    def activations(self):
        """How many times a bar has told an item of a left click."""
        with open(self.path("overheard"), encoding="utf-8") as file:
            return file.read().count("member=Activate")

    @property
    def announcements(self):
        """(when on the wall clock, whose bus name, which label) for every label that items have announced so
        far. None is missed, however busy the machine; there are some only beside a bar that shows labels."""
        with open(self.path("overheard"), encoding="utf-8") as file:
            return [(float(when), sender, label) for when, sender, label in _ANNOUNCEMENT.findall(file.read())]

    @property
    def announced_labels(self):
        return [label for _, _, label in self.announcements]

    def hindrance(self, *processes):
        """How much a busy machine holds up `processes` and those who report on them: X server, bus, its listener."""
        return Hindrance([self.x_server, self.bus_daemon, self._listener, *processes])

    def move(self, x, y):
        self.ask("xdotool", "mousemove", str(x), str(y))

    def click(self, x, y, button=1, modifiers=()):
        """A real click at a place on the screen, in pixels, with keys such as "ctrl" held down."""
        command = ["xdotool", "mousemove", str(x), str(y)]
        for key in modifiers:
            command += ["keydown", key]
        command += ["click", str(button)]
        for key in modifiers:
            command += ["keyup", key]
        self.ask(*command)

    def _drawn_item(self):
        """The item's rectangle, once there is something in it and it stays where it is."""
        rectangle = self.item_rectangle
        picture = self.picture().crop(*rectangle)
        colours = {picture.rgb[start:start + 3] for start in range(0, len(picture.rgb), 3)}
        return rectangle if len(colours) > 8 and self.item_rectangle == rectangle else None

    def click_item(self, button=1, modifiers=()):
        """A real click on the program's item in the panel bar. Returns when the bar has told the item of a
        left one."""
        x, y, width, height = wait_for(self._drawn_item, what="the item in the panel bar")
        before = self.activations
        self.click(x + width // 2, y + height // 2, button, modifiers)
        if button == 1:
            wait_for(lambda: self.activations > before, what="the bar's answer to the click")

    def press(self, x, y, button=1):
        self.ask("xdotool", "mousemove", str(x), str(y), "mousedown", str(button))

    def release(self, button=1):
        self.ask("xdotool", "mouseup", str(button))

    def type(self, text):
        self.ask("xdotool", "type", "--delay", "10", text)

    def key(self, *keys):
        """Such as "Return" or "ctrl+a"."""
        self.ask("xdotool", "key", *keys)

    @property
    def focused_window(self):
        """The X window that the window manager gave the focus."""
        return self.ask("xprop", "-root", "-notype", "_NET_ACTIVE_WINDOW").split("#")[-1].strip()
