# SPDX-License-Identifier: MIT
"""The about window and where its links lead."""
import datetime
import os
import unittest

from desktop import VirtualDesktop, wait_for
from windows import ABOUT, move, place, properties, shown, title, wait_for_focus

LINKS = {
    "Support": "mailto:support@velto.example",
    "Website": "https://velto.example",
    "Buy Me a Coffee": "https://velto.example/coffee",
}

OPENER = """#!/bin/sh
env > "$OPENED.environment"
printf '%s\\n' "$@" >> "$OPENED"
"""


def setUpModule():
    global desktop
    desktop = unittest.enterModuleContext(VirtualDesktop())
    del desktop.environment["QT_QPA_PLATFORM"]
    os.mkdir(desktop.path("bin"))
    with open(desktop.path("bin/xdg-open"), "w", encoding="utf-8") as file:
        file.write(OPENER)
    os.chmod(file.name, 0o755)


class About(unittest.TestCase):
    def setUp(self):
        if os.path.exists(desktop.path("opened")):
            os.remove(desktop.path("opened"))
        self.velto = desktop.start_velto({}, environment={
            "PATH": f"{desktop.path('bin')}:{os.environ['PATH']}", "OPENED": desktop.path("opened")})
        self.addCleanup(self.velto.kill)
        self.window = self.open()

    def open(self):
        self.velto.item.choose("About velto")
        wait_for(lambda: len(shown(self.velto, ABOUT)) == 1, what="the about window")
        return wait_for_focus(desktop, self.velto)

    def wait_until_closed(self):
        wait_for(lambda: not shown(self.velto, ABOUT), what="no about window")

    def link(self, name):
        return shown(self.velto, ABOUT)[0].find("push button", name)

    @property
    def opened(self):
        try:
            with open(desktop.path("opened"), encoding="utf-8") as file:
                return file.read().splitlines()
        except FileNotFoundError:
            return []

    def test_says_what_the_program_is(self):
        texts = [label.name for label in shown(self.velto, ABOUT)[0].find_all("label")]

        self.assertEqual(texts[:2], ["velto - Focus Timer",
                                     "A focus timer companion built to keep sessions simple and distraction-free."])
        self.assertRegex(texts[2], r"^v\d+\.\d+\.\d+ \(\d+\)$")
        self.assertEqual(texts[3], f"© {datetime.date.today().year} The velto authors. All rights reserved.")
        self.assertEqual([button.name for button in shown(self.velto, ABOUT)[0].find_all("push button")], list(LINKS))

    def test_its_title_bar_is_blank(self):
        self.assertEqual(title(desktop, self.window).strip(), "")
        desktop.key("Escape")
        self.wait_until_closed()

        self.assertEqual(title(desktop, self.open()).strip(), "")

    def test_has_a_fixed_size_floats_and_can_only_be_closed(self):
        self.assertEqual(place(desktop, self.window)[2:], (640, 240))
        text = properties(desktop, self.window, "_NET_WM_ALLOWED_ACTIONS", "_NET_WM_STATE")
        self.assertIn("_NET_WM_ACTION_CLOSE", text)
        self.assertIn("_NET_WM_STATE_ABOVE", text)
        for action in ("RESIZE", "MINIMIZE", "MAXIMIZE"):
            self.assertNotIn(f"_NET_WM_ACTION_{action}", text)

    def test_reopens_where_it_was(self):
        left = move(desktop, self.window)
        desktop.ask("wmctrl", "-i", "-c", self.window)
        self.wait_until_closed()

        self.window = self.open()

        wait_for(lambda: place(desktop, self.window) == left)

    def test_chosen_twice_shows_the_same_window(self):
        desktop.open_window("other")

        self.assertEqual(self.open(), self.window)

    def test_a_click_on_a_link_opens_its_address(self):
        for name, address in LINKS.items():
            desktop.click(*self.link(name).middle)
            wait_for(lambda: self.opened[-1:] == [address], what=address)

        self.assertEqual(self.opened, list(LINKS.values()))

    def test_what_it_opens_does_not_inherit_its_private_environment(self):
        desktop.click(*self.link("Website").middle)
        wait_for(lambda: self.opened, what="the link's address")

        with open(desktop.path("opened.environment"), encoding="utf-8") as file:
            inherited = {line for line in file.read().splitlines() if line.startswith("QT_")}
        self.assertEqual(inherited, {f"{name}={value}" for name, value in desktop.environment.items()
                                     if name.startswith("QT_")})

    def test_tab_reaches_the_links_and_return_opens_them(self):
        wait_for(lambda: self.link("Support").has_state("focused"))

        for name, address in LINKS.items():
            wait_for(lambda: self.link(name).has_state("focused"), what=f"the focus on {name}")
            desktop.key("Return")
            wait_for(lambda: self.opened[-1:] == [address], what=address)
            desktop.key("Tab")

        wait_for(lambda: self.link("Support").has_state("focused"))

    def test_a_pressed_link_is_dimmed_until_it_is_released(self):
        x, y, width, height = self.link("Website").rectangle
        place_on_face = x + 12, y + height // 2
        corner_left = x, y + height // 2
        face, background = desktop.picture()[place_on_face], desktop.picture()[x - 8, y]
        self.assertEqual(desktop.picture()[corner_left], face)

        desktop.press(x + width // 2, y + height // 2)
        dimmed = tuple(round(0.8 * channel + 0.2 * behind) for channel, behind in zip(face, background))
        wait_for(lambda: all(abs(a - b) <= 2 for a, b in zip(desktop.picture()[place_on_face], dimmed)),
                 what=f"a face of {dimmed}")
        self.assertNotEqual(desktop.picture()[corner_left], desktop.picture()[place_on_face])
        desktop.move(x + width // 2, y + 3 * height)
        desktop.release()

        wait_for(lambda: desktop.picture()[place_on_face] == face, what="the face as it was")
        self.assertEqual(desktop.picture()[corner_left], face)
        self.assertEqual(self.opened, [])


if __name__ == "__main__":
    unittest.main()
