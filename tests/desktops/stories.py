# SPDX-License-Identifier: MIT
"""The stories that are the same on every desktop. `desktop` is set by scripts/check-desktops."""
import string
import time
import unittest

from legible import background, contrast_of_digits, luminance
from waiting import holds, wait_for

desktop = None


class Story(unittest.TestCase):
    settings = ["focusMinutes=25"]

    def setUp(self):
        x, y, width, height = desktop.window("editor").rectangle
        self.beside = x + 20, y + height - 20
        desktop.click(*self.beside)
        wait_for(lambda: desktop.window("editor").focused, what="the keyboard in the editor")
        self.addCleanup(desktop.end_velto)
        self.start()

    def start(self):
        desktop.velto("start", *self.settings)
        wait_for(lambda: desktop.card, what="the card, shown at launch")

    def click_item(self, button):
        # Sooner, it is a double click to some bars, or belongs to the press that has just hidden the card.
        time.sleep(1)
        desktop.click(*desktop.item_place(), button)

    def hide(self):
        self.click_item(desktop.TOGGLING_BUTTON)
        wait_for(lambda: not desktop.card, what="the hidden card")

    def show(self):
        self.click_item(desktop.TOGGLING_BUTTON)
        wait_for(lambda: desktop.card, what="the card")

    def form_is_used(self):
        """It lies above the card and has the keyboard."""
        ours = [window for window in desktop.windows() if desktop.is_card(window) or desktop.is_form(window)]
        return [desktop.is_form(window) for window in ours] == [False, True] and ours[1].focused


class Stories(Story):
    def test_the_time_is_seen(self):
        wait_for(lambda: desktop.text_in_bar() == "25:00", what="the time in the bar")
        desktop.save_picture("launch")

    def test_the_card_that_comes_at_launch_hangs_from_the_top(self):
        wait_for(lambda: desktop.card.rectangle[1] < 100, what="the card at the top")
        holds(lambda: desktop.card.rectangle[1] < 100, 1, "the card at the top")

    def test_the_time_can_be_read_with_each_theme_from_the_start_and_after_a_change(self):
        for theme, is_dark in desktop.THEMES.items():
            desktop.use_theme(theme)
            for when in "changed", "started":
                with self.subTest(theme=theme, when=when):
                    self.wait_until_legible(f"theme-{theme}-{when}".replace(" ", "-"), is_dark)
                desktop.end_velto()
                self.start()

    def wait_until_legible(self, what, is_dark):
        seen = None

        def is_legible():
            nonlocal seen
            seen = desktop.look_at_item(what)
            is_as_meant = is_dark in (None, luminance(background(seen)) < 0.18)
            return is_as_meant and contrast_of_digits(seen) >= desktop.LEAST_CONTRAST
        try:
            wait_for(is_legible, 25, what="digits that can be read")
        finally:
            print(f"{what}: {contrast_of_digits(seen):.1f}:1 on {background(seen)}", flush=True)

    def test_clicks_on_the_time_toggle_the_card_under_it(self):
        for _ in range(3):
            self.hide()
            self.show()
        left, _, width, _ = desktop.card.rectangle
        item, _ = desktop.item_place()
        self.assertTrue(left <= item < left + width, f"card at {left}, item at {item}")
        desktop.save_picture("card")

    def test_a_press_elsewhere_hides_the_card(self):
        self.hide()
        self.show()
        desktop.click(*self.beside)
        wait_for(lambda: not desktop.card, what="the hidden card")
        wait_for(lambda: desktop.window("editor").focused, what="the keyboard in the editor")

    def test_a_right_click_on_the_time_leaves_the_card(self):
        self.click_item(3)
        holds(lambda: desktop.card, 1, "the card beside the menu")
        desktop.save_picture("menu")
        desktop.key("Escape")

    def test_a_left_click_that_opens_the_menu_leads_to_the_card(self):
        if desktop.TOGGLING_BUTTON == 1:
            self.skipTest("a left click shows the card")
        self.hide()
        self.click_item(1)
        time.sleep(1)
        desktop.key("Down")
        desktop.key("Return")
        wait_for(lambda: desktop.card, what="the card")

    def test_the_menu_of_the_strip_goes_by_escape_and_by_a_press_elsewhere(self):
        if not desktop.HAS_STRIP:
            self.skipTest("the desktop's own menu")
        self.hide()
        for close in lambda: desktop.key("Escape"), lambda: desktop.click(*self.beside):
            desktop.click(*self.beside)
            wait_for(lambda: desktop.window("editor").focused, what="the keyboard in the editor")
            self.click_item(3)
            wait_for(lambda: desktop.strip_menu, what="the menu")
            time.sleep(1)
            close()
            wait_for(lambda: not desktop.strip_menu, what="the closed menu")
            wait_for(lambda: desktop.window("editor").focused, what="the keyboard in the editor")

    def test_the_menu_of_the_strip_opens_the_form_by_keys(self):
        if not desktop.HAS_STRIP:
            self.skipTest("the desktop's own menu")
        self.hide()
        self.click_item(3)
        wait_for(lambda: desktop.strip_menu, what="the menu")
        time.sleep(1)
        for key in "Up", "Up", "Up", "Up", "Return":
            desktop.key(key)
        wait_for(self.form_is_used, what="the form, to be used")
        holds(self.form_is_used, 1, "the form")

    def test_the_form_comes_back_on_the_card_with_the_keyboard(self):
        desktop.velto("choose", "Settings…")
        wait_for(self.form_is_used, what="the form, to be used")
        for _ in range(2):
            desktop.click(*self.beside)
            wait_for(lambda: not desktop.card and not desktop.form, what="hidden card and form")
            self.show()
            wait_for(self.form_is_used, what="the form, to be used")
        desktop.save_picture("form")
        desktop.key("Escape")
        wait_for(lambda: desktop.card and not desktop.form, what="the card without the form")


class Letters(unittest.TestCase):
    def test_a_card_that_comes_by_itself_takes_no_letter(self):
        letters = string.ascii_lowercase + string.digits
        x, y, width, height = desktop.window("editor").rectangle
        desktop.click(x + 20, y + height - 20)
        wait_for(lambda: desktop.window("editor").focused, what="the keyboard in the editor")
        before = desktop.typed
        self.addCleanup(desktop.end_velto)

        for number, letter in enumerate(letters):
            if number == 4:
                desktop.velto("start", "focusMinutes=0")
            elif number == 18:
                desktop.velto("choose", "Start Focus")
            desktop.type(letter)
        wait_for(lambda: desktop.velto("label") == "05:00", what="the end of the phase")

        self.assertEqual(desktop.typed[len(before):], letters)
