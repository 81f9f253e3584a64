# SPDX-License-Identifier: MIT
"""GNOME Shell on Wayland, without an extension, as Debian installs it, and with AppIndicator."""
from desktop import Desktop
from shell import Shell

_DEVICES = """
const {Clutter, GLib} = imports.gi;
if (!global._pointer) {
    const seat = (global.stage.context?.get_backend() ?? Clutter.get_default_backend()).get_default_seat();
    global._pointer = seat.create_virtual_device(Clutter.InputDeviceType.POINTER_DEVICE);
    global._keyboard = seat.create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
}
const now = () => GLib.get_monotonic_time();
"""
_KEYS = {"Escape": 0xff1b, "Return": 0xff0d, "Tab": 0xff09, "Up": 0xff52, "Down": 0xff54}


class Gnome(Shell, Desktop):
    BUS_NAME = "org.gnome.Shell"
    ROOT = "gnome"
    PACKAGES = ["gnome-shell", "gnome-shell-extension-appindicator"]
    EXTENSIONS = []
    HAS_STRIP = True
    START = """
export XDG_CURRENT_DESKTOP=GNOME XDG_SESSION_TYPE=wayland XDG_SESSION_DESKTOP=gnome
gsettings set org.gnome.shell welcome-dialog-last-shown-version 99
gsettings set org.gnome.desktop.session idle-delay 0
gsettings set org.gnome.shell enabled-extensions "%s"
gnome-shell --headless --wayland --virtual-monitor 1280x800 --unsafe-mode &
until ls $XDG_RUNTIME_DIR/.mutter-Xwaylandauth* && [ -S $XDG_RUNTIME_DIR/wayland-0 ]; do sleep 0.2; done >/dev/null 2>&1
export WAYLAND_DISPLAY=wayland-0 DISPLAY=:0 XAUTHORITY=$(ls $XDG_RUNTIME_DIR/.mutter-Xwaylandauth*)
until gdbus call --session --dest org.gnome.Shell --object-path /org/gnome/Shell --method org.gnome.Shell.Eval \\
    'Main.layoutManager._startingUp' | grep "'false'"
do sleep 0.2; done >/dev/null 2>&1
env | grep -E '^(HOME|XDG_|DBUS|PATH|LANG|USER|LOGNAME|WAYLAND_|DISPLAY|XAUTHORITY)' > $XDG_RUNTIME_DIR/session
wait
"""

    def __init__(self, *arguments):
        self.START = self.START % self.EXTENSIONS
        super().__init__(*arguments)

    def prepare(self):
        self.evaluate("Main.overview.hide()")

    def evaluate(self, script):
        return super().evaluate(_DEVICES + script)

    def click(self, x, y, button=1):
        for move in (x - 1, x):
            self.evaluate(f"global._pointer.notify_absolute_motion(now(), {move}, {y}); 1")
        for state in ("PRESSED", "RELEASED"):
            self.evaluate(f"global._pointer.notify_button(now(), {button}, Clutter.ButtonState.{state}); 1")

    def type(self, text):
        for letter in text:
            self._press(ord(letter))

    def key(self, name):
        self._press(_KEYS[name])

    def _press(self, symbol):
        self.evaluate(f"""for (const state of [Clutter.KeyState.PRESSED, Clutter.KeyState.RELEASED])
                              global._keyboard.notify_keyval(now(), {symbol}, state); 1""")

    def picture(self, path):
        self.session.run("gdbus", "call", "--session", "--dest", "org.gnome.Shell.Screenshot", "--object-path",
                         "/org/gnome/Shell/Screenshot", "--method", "org.gnome.Shell.Screenshot.Screenshot", "true",
                         "false", "/tmp/picture.png")
        with open(path, "wb") as file:
            file.write(self.session.run_bytes("cat", "/tmp/picture.png"))

    @property
    def strip_menu(self):
        return next((window for window in self.windows() if window.title == "velto" and window.rectangle[3] > 60
                     and not self.is_card(window)), None)

    def item_place(self):
        x, y, width, height = next(window.rectangle for window in self.windows()
                                   if window.title == "velto" and window.rectangle[3] < 60)
        return x + width // 2, y + height // 2


class GnomeAppIndicator(Gnome):
    EXTENSIONS = ["ubuntu-appindicators@ubuntu.com"]
    HAS_STRIP = False
    TOGGLING_BUTTON = 2

    def text_in_bar(self):
        return self._ask_item("item._label?.text ?? ''")

    def item_place(self):
        x, y, width, height = self._ask_item("[...item.get_transformed_position(), item.width, item.height]")
        return round(x + width / 2), round(y + height / 2)

    def _ask_item(self, question):
        return self.evaluate(f"""
            (() => {{
                const area = Main.panel.statusArea;
                const item = area[Object.keys(area).find(name => name.startsWith("appindicator-"))];
                return {question};
            }})()""")
