# SPDX-License-Identifier: MIT
"""The life of the process: one of it, and settings that outlive it."""
import os
import signal
import socket
import stat
import subprocess
import time
import unittest

from desktop import VirtualDesktop, holds, wait_for


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())


class TheProcess(unittest.TestCase):
    def start(self, settings=None):
        velto = desktop.start_velto(settings)
        self.addCleanup(lambda: velto.process.poll() is not None or velto.kill())
        return velto

    def test_a_second_launch_shows_the_first_ones_card_and_succeeds(self):
        velto = self.start({})
        velto.press("Start")
        desktop.click_item()
        wait_for(lambda: not velto.card_is_visible)

        other = desktop.open_window("other")

        second = desktop.launch()

        self.assertEqual(second.wait(), 0)
        wait_for(lambda: velto.card_is_visible, what="the card of the first")
        self.assertEqual(velto.controls, ["Pause", "Reset"])
        wait_for(lambda: velto.card.find("push button", "Pause").has_state("focused"), what="the card's keyboard")
        desktop.key("Return")
        wait_for(lambda: velto.controls == ["Start", "Reset"], what="the paused timer")
        desktop.key("Escape")
        wait_for(lambda: not velto.card_is_visible, what="the hidden card")
        wait_for(lambda: other.has_state("focused"), what="the keyboard back in the other window")

    def test_a_second_launch_keeps_a_visible_card(self):
        velto = self.start({})

        self.assertEqual(desktop.launch().wait(), 0)

        holds(lambda: velto.card_is_visible, 1)

    def test_its_windows_belong_to_the_desktop_entry(self):
        self.start({})

        tree = desktop.ask("xwininfo", "-root", "-tree")

        self.assertIn('("velto" "org.velto.Velto")', tree)
        self.assertNotIn('("velto" "velto")', tree)

    def test_quit_succeeds(self):
        velto = self.start({})

        velto.item.choose("Quit")

        self.assertEqual(velto.wait(), 0)

    def test_it_ends_without_a_word_while_something_moves(self):
        velto = self.start({})
        said = desktop.log("velto")

        velto.press("Start")
        wait_for(lambda: velto.item.label == "24:59", what="digits that roll")
        velto.process.terminate()

        self.assertEqual(velto.wait(), 0)
        self.assertEqual(desktop.log("velto"), said)

    def test_nothing_it_opens_takes_the_place_of_a_closed_standard_stream(self):
        velto = desktop.run("sh", "-c", 'exec "$0" <&- >&- 2>&-', desktop.program)
        self.addCleanup(lambda: (velto.kill(), velto.wait()))
        wait_for(lambda: desktop.application(velto.pid), what="velto")

        for number in range(3):
            self.assertEqual(os.readlink(f"/proc/{velto.pid}/fd/{number}"), "/dev/null")

    def test_a_signal_ends_it_within_a_second(self):
        for chosen_signal in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(signal=chosen_signal):
                velto = self.start({})
                velto.item.choose("Auto-Transition")
                start = time.monotonic()

                self.assertEqual(velto.kill(chosen_signal), 0)

                self.assertLess(time.monotonic() - start, 1)
                self.assertTrue(velto.settings["autoTransition"])

    def test_a_signal_ends_it_within_a_second_while_the_session_bus_hangs(self):
        velto = self.start({})
        with desktop.paused(desktop.bus_daemon):
            start = time.monotonic()

            self.assertEqual(velto.kill(signal.SIGTERM), 0)

            self.assertLess(time.monotonic() - start, 1)

    def run_alone(self, *arguments, **environment):
        """What the program does with these arguments, and with these variables set, or unset where None."""
        changed = desktop.environment | environment
        return subprocess.run([desktop.program, *arguments], capture_output=True, text=True, timeout=40,
                              env={name: value for name, value in changed.items() if value is not None})

    def test_without_a_display_it_fails_with_one_line(self):
        for display in (None, ":977"):
            with self.subTest(display=display):
                result = self.run_alone(DISPLAY=display, QT_QPA_PLATFORM=None)

                self.assertEqual((result.returncode, result.stdout), (1, ""))
                self.assertRegex(result.stderr, r"\Avelto: there is no display.*\n\Z")

    def test_with_a_session_bus_that_hangs_it_fails_with_one_line(self):
        with socket.socket(socket.AF_UNIX) as bus:
            bus.bind(desktop.path("runtime/hanging-bus"))
            bus.listen()
            begin = time.monotonic()
            result = self.run_alone(DBUS_SESSION_BUS_ADDRESS=f"unix:path={bus.getsockname()}")

        self.assertEqual((result.returncode, result.stdout, result.stderr),
                         (1, "", "velto: the session bus does not answer\n"))
        self.assertGreater(time.monotonic() - begin, 24, "a bus that starts slowly is waited for")

    def test_version_and_help_need_no_display(self):
        version = self.run_alone("--version", DISPLAY=None)
        self.assertEqual((version.returncode, version.stderr), (0, ""))
        self.assertRegex(version.stdout, r"\Avelto \d+\.\d+\.\d+\n\Z")

        usage = self.run_alone("--help", DISPLAY=None)
        self.assertEqual((usage.returncode, usage.stderr), (0, ""))
        self.assertIn("Usage: velto\n", usage.stdout)

    def test_it_refuses_unknown_arguments(self):
        for arguments in (["--colour"], ["25"], ["--version", "--help"]):
            with self.subTest(arguments=arguments):
                result = self.run_alone(*arguments)

                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertRegex(result.stderr, rf"\Avelto: unknown argument {arguments[0]} .*\n\Z")

    def test_it_runs_without_x11_if_told_to(self):
        environment = desktop.environment | {"QT_QPA_PLATFORM": "offscreen"}
        del environment["DISPLAY"]
        velto = subprocess.Popen([desktop.program], env=environment)
        self.addCleanup(velto.kill)

        with self.assertRaises(subprocess.TimeoutExpired):
            velto.wait(2)  # the card shows itself meanwhile
        velto.send_signal(signal.SIGTERM)
        self.assertEqual(velto.wait(5), 0)

    def test_settings_outlive_every_end(self):
        for chosen_signal in (signal.SIGTERM, signal.SIGKILL, signal.SIGINT):
            with self.subTest(signal=chosen_signal):
                velto = self.start({"focusMinutes": 30, "ofAnotherVersion": "kept"})
                velto.item.choose("Auto-Transition")
                velto.item.choose("Break Duration", "15 minutes")
                wait_for(lambda: velto.settings.get("breakMinutes") == 15)

                velto.kill(chosen_signal)

                self.assertEqual(velto.settings, {"hasLaunchedBefore": True, "ofAnotherVersion": "kept",
                                                  "focusMinutes": 30, "breakMinutes": 15, "autoTransition": True})
                velto = self.start()
                self.assertTrue(velto.card.find_all(name="Focus: 30m  •  Break: 15m"))
                self.assertTrue(velto.item.menu().find("Auto-Transition").checked)
                velto.kill()

    def test_the_settings_file_is_for_its_owner_only(self):
        velto = self.start({})
        os.remove(desktop.settings_file)
        velto.item.choose("Auto-Transition")
        wait_for(lambda: velto.settings.get("autoTransition"))

        self.assertEqual(stat.S_IMODE(os.stat(desktop.settings_file).st_mode), 0o600)

    def test_a_broken_settings_file_is_moved_aside(self):
        self.start({}).kill()
        with open(desktop.settings_file, "w", encoding="utf-8") as file:
            file.write("not a property list")

        velto = self.start()

        self.assertEqual(velto.time, "25:00")
        folder = os.path.dirname(desktop.settings_file)

        def moved_aside():
            return [name for name in os.listdir(folder) if name.startswith("defaults.plist.corrupt-")]

        aside = wait_for(moved_aside, what="the first assignment of the new file, that the user was welcomed")
        self.assertEqual(len(aside), 1)
        with open(os.path.join(folder, aside[0]), encoding="utf-8") as file:
            self.assertEqual(file.read(), "not a property list")


if __name__ == "__main__":
    unittest.main()
