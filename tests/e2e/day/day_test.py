# SPDX-License-Identifier: MIT
"""A day in an hour: the program's clock runs 24 times as fast, a seeded hand uses everything, its neighbours come and go.

VELTO_DAY_PHASES and VELTO_DAY_SEED choose another number of phases, and another hand."""
import os
import random
import subprocess
import time
import unittest

from gi.repository import GLib

from countdown import Countdown
from desktop import VirtualDesktop, wait_for
from resources import Usage
from sound import ENVIRONMENT, SoundServer, StreamServer

SPEED = 24
PHASES = int(os.environ.get("VELTO_DAY_PHASES", 500))
SEED = int(os.environ.get("VELTO_DAY_SEED", 1))
SETTLED = PHASES // 10
LATEST = 0.1  # s
MOST_GROWTH = 2048  # KiB

# Only velto itself lives faster, not what it starts.
FAST = {"LD_PRELOAD": "/usr/$LIB/faketime/libfaketime.so.1", "FAKETIME": f"+0 x{SPEED}", "FAKETIME_DONT_RESET": "1",
        "FAKETIME_DISABLE_SHM": "1", "FAKETIME_SKIP_CMDS": "velto-stream"}
SCREENS = {"one": [], "two": [(800, 800, 0, 0), (480, 800, 800, 0)], "small": [(800, 720, 0, 0)]}


class Day(unittest.TestCase):
    def setUp(self):
        self.random = random.Random(SEED)
        self.desktop = self.enterContext(VirtualDesktop(host="press"))
        self.sound, self.streams = SoundServer(self.desktop), StreamServer()
        self.addCleanup(self.streams.close)
        self.countdown = Countdown(self.desktop, SPEED)
        self.countdown.listen()
        self.window_manager = self.desktop.window_manager
        self.monitors = []

        # What the links of the About window open.
        os.mkdir(self.desktop.path("bin"))
        os.symlink("/bin/true", self.desktop.path("bin/xdg-open"))
        path = {"PATH": f"{self.desktop.path('bin')}:{os.environ['PATH']}"}

        url = self.streams.url("tone.mp3")
        self.velto = self.desktop.start_velto(
            {"focusMinutes": 1, "breakMinutes": 1, "autoTransition": True, "focusMusicPreset": b'"Custom URL"',
             "breakMusicPreset": b'"Custom URL"', "focusCustomURL": url, "breakCustomURL": url}, ENVIRONMENT | FAST | path)
        self.countdown.watch(
            self.velto.pid, lambda: {"hand": os.getpid(), "X server": self.desktop.x_server.pid,
                                     "bus": self.desktop.bus_daemon.pid})
        self.places = self.places_in_the_form()

    # The form, by mouse and keyboard: accessibility ends with the bus it began on

    def form(self):
        """Where the form stands on the screen. LookupError while there is none."""
        try:
            window = self.desktop.ask("xdotool", "search", "--onlyvisible", "--name", "^Settings").split()[0]
            text = self.desktop.ask("xdotool", "getwindowgeometry", "--shell", window)
        except (subprocess.CalledProcessError, IndexError):
            raise LookupError("no form") from None
        values = dict(line.split("=") for line in text.splitlines())
        return int(values["X"]), int(values["Y"])

    def open_form(self):
        self.velto.item.choose("Settings…")
        return wait_for(self.form, timeout=5, what="the form")

    def form_is_gone(self):
        try:
            return not self.form()
        except LookupError:
            return True

    def places_in_the_form(self):
        left, top = self.open_form()
        form = next(window for window in self.velto.app.children if window.find_all("push button", "Apply"))
        chosen = {"Focus": "text", "Break": "text", "Auto-Transition": "check box",
                  "Enable music during focus": "check box", "Enable music during break": "check box",
                  "Play Focus End": "push button", "Cancel": "push button", "Apply": "push button"}
        wait_for(lambda: form.find("push button", "Apply").middle[1] > 400, what="the form's layout")
        places = {name: form.find(role, name).middle for name, role in chosen.items()}
        self.desktop.click(*places["Cancel"])
        wait_for(self.form_is_gone, what="the form's end")
        return {name: (x - left, y - top) for name, (x, y) in places.items()}

    def click_in_form(self, corner, name):
        self.desktop.click(corner[0] + self.places[name][0], corner[1] + self.places[name][1])

    def fill_form(self, button):
        corner = self.open_form()
        for name in ("Focus", "Break"):
            self.click_in_form(corner, name)
            self.desktop.key("ctrl+a", str(self.random.choice((1, 1, 2))), "Return")
        for name in list(self.places)[2:6]:
            if self.random.random() < 0.3:
                self.click_in_form(corner, name)
        self.click_in_form(corner, button)
        try:
            wait_for(self.form_is_gone, timeout=3, what="the form's end")
        except AssertionError:
            self.desktop.key("Escape")
            raise

    # What the hand does; the first ones may stop the countdown

    def pause_and_start(self):
        self.choose_if_there("Pause Focus", "Pause Break", "Pause")
        time.sleep(self.random.uniform(0, 0.5))
        self.start()

    def reset(self):
        self.choose_if_there("Reset Focus", "Reset Break")
        self.start()

    def change_phase(self):
        self.velto.item.choose("Current Phase", self.random.choice(("Focus", "Break")))
        self.start()

    def change_durations(self):
        menu = self.velto.item.menu()
        name = self.random.choice(("Focus Duration", "Break Duration", "Presets"))
        entries = [entry for entry in menu.find(name).children if entry.label and entry.label != "Custom…"]
        self.velto.item.choose(name, self.random.choice(entries).label)
        self.fill_form("Apply")
        self.start()

    def apply_form(self):
        self.fill_form("Apply")
        self.start()

    def use_keyboard(self):
        self.velto.item.activate()
        self.desktop.key(*self.random.choices(("Tab", "space", "Return", "Escape", "shift+Tab"), k=6))
        self.start()

    def read_menu(self):
        self.velto.item.menu()

    def click_item(self):
        self.velto.item.activate(self.random.randrange(1280), 14)

    def click_elsewhere(self):
        self.desktop.click(self.random.randrange(20, 300), self.random.randrange(500, 700))

    def read_help(self):
        self.velto.item.choose(self.random.choice(("How to Use", "About velto")))
        time.sleep(0.3)
        self.desktop.key("Escape")

    def cancel_form(self):
        self.fill_form("Cancel")

    def change_music(self):
        self.velto.item.choose(self.random.choice(("Focus Music", "Break Music")),
                               self.random.choice(("None", "Custom URL", "Custom URL")))

    def change_colours(self):
        self.desktop.change_setting("org.freedesktop.appearance", "color-scheme",
                                    GLib.Variant("u", self.random.randrange(3)))

    def choose_if_there(self, *labels):
        for entry in self.velto.item.menu().children:
            if entry.label in labels and entry.visible and entry.enabled:
                self.velto.item.choose(entry.label)
                return

    def start(self):
        self.choose_if_there("Start Focus", "Start Break", "Resume Focus", "Resume Break", "Start", "Resume")

    STOPPING = (pause_and_start, reset, change_phase, change_durations, apply_form, use_keyboard)
    OTHER = (read_menu, click_item, click_elsewhere, read_help, cancel_form, change_music, change_colours)

    def act(self):
        is_stopping = self.random.random() < 0.25
        action = self.random.choice(self.STOPPING if is_stopping else self.OTHER)
        begin = time.time()
        self.done.append((begin, action.__name__))
        try:
            action(self)
        except (LookupError, GLib.Error, AssertionError) as error:
            self.missed.append(repr(error))
        if is_stopping:
            self.countdown.touched(begin)

    # Neighbours that come and go

    def lose_bar(self):
        self.desktop.stop_host()
        yield
        self.desktop.start_host()

    def lose_bus(self):
        self.desktop.stop_bus()
        yield
        self.desktop.start_bus()
        self.countdown.listen()
        self.desktop.start_host()
        self.velto._item = None

    def lose_sound_server(self):
        self.sound.kill()
        yield
        self.sound.start()

    def lose_window_manager(self):
        self.window_manager.kill()
        self.window_manager.wait()
        yield
        self.window_manager = self.desktop.run("xfwm4", "--compositor=off", "--sm-client-disable")

    def change_screens(self):
        for index in range(len(self.monitors)):
            self.desktop.ask("xrandr", "--delmonitor", f"day{index}")
        self.monitors = self.random.choice(list(SCREENS.values()))
        for index, (width, height, x, y) in enumerate(self.monitors):
            self.desktop.ask("xrandr", "--setmonitor", f"{'' if index else '*'}day{index}",
                             f"{width}/200x{height}/150+{x}+{y}", "none" if index else "screen")
        yield

    NEIGHBOURS = (lose_bar, lose_bus, lose_sound_server, lose_window_manager, change_screens)

    def test_a_day(self):
        self.missed, self.done, losses, actions = [], [], 0, 0
        usage = Usage(self.velto.pid, self.desktop.display)
        begin = time.monotonic()
        self.start()
        while self.countdown.phases < PHASES:
            for _ in range(self.random.randrange(4, 9)):
                self.act()
                actions += 1
                time.sleep(self.random.uniform(0, 1.5))
                if not self.countdown.goes_on:
                    stopped = time.time()
                    self.start_again()
                    self.countdown.touched(stopped - 1)
                self.assertIsNone(self.velto.process.poll(), self.desktop.log("velto"))
                usage.sample(self.countdown.phases)
                self.velto.printed  # nothing is to be stuck in the pipe
            neighbour = self.random.choice(self.NEIGHBOURS)
            loss = neighbour(self)
            self.done.append((time.time(), neighbour.__name__))
            next(loss)
            time.sleep(self.random.uniform(0.1, 2))
            if neighbour not in (type(self).lose_bus, type(self).lose_bar):
                self.act()
            next(loss, None)
            losses += 1
        hours = (time.monotonic() - begin) / 3600

        self.report(usage, f"{self.countdown.phases} phases in {hours:.2f} h, seed {SEED}: {actions} actions, of which "
                           f"{len(self.missed)} missed, {losses} losses of a neighbour")
        self.velto.item.choose("Quit")
        self.assertEqual(self.velto.wait(), 0)
        self.assertEqual(self.desktop.log("velto"), "")

    def start_again(self):
        try:
            self.start()
        except (LookupError, GLib.Error):
            pass

    def done_before(self, moment):
        """The last three things done, and how many seconds before."""
        return [f"{name} {moment - begin:.1f}" for begin, name in self.done if begin <= moment][-3:]

    def report(self, usage, summary):
        lateness = self.countdown.lateness()
        early, late = usage.within(SETTLED, 2 * SETTLED), usage.within(PHASES - SETTLED, PHASES)
        least = usage.within(SETTLED, 2 * SETTLED, min), usage.within(PHASES - SETTLED, PHASES, min)
        left_out = sum(int(max(0, late) * SPEED) for late, *_ in lateness)
        latest, _, when, worked, disk = max(lateness)
        print(f"\n{summary}\n{len(self.countdown.heard)} seconds heard, of {len(lateness)} the latest by "
              f"{max(raw for _, raw, *_ in lateness):.3f} s, {latest:.3f} s without waiting for a processor, "
              f"while velto worked {worked:.2f} s and all waited {disk:.2f} s for the disk, after {self.done_before(when)}, "
              f"in the calls {self.countdown.calls_before(when)}\n{left_out} seconds left out\n"
              f"median after {SETTLED} phases {early}\nmedian at the end {late}\n"
              f"least after {SETTLED} phases {least[0]}\nleast at the end {least[1]}", flush=True)
        for error in sorted(set(self.missed)):
            print(f"missed: {error}", flush=True)
        with self.subTest("ticks"):
            self.assertLess(latest, LATEST)
            self.assertLess(left_out, len(lateness) / 100)
        if SETTLED < 10:
            return  # memory is still on its way to what it settles at
        for kind, before in least[0].items():
            with self.subTest(kind):
                self.assertLessEqual(least[1][kind], before + (MOST_GROWTH if kind == "KiB of memory" else 0))


if __name__ == "__main__":
    unittest.main()
