# SPDX-License-Identifier: MIT
"""What a person does with the item in a panel bar; the same on every bar."""
import time

from desktop import VirtualDesktop, holds, wait_for
from menus import MenuOnScreen
from messages import Messages, messages_in


def labels(entry):
    """What a shown menu lists, separators left out."""
    return [child.label for child in entry.children if child.visible and not child.separator]


class PanelStories:
    """Subclasses say which bar: `host`; what tells it of a new time: `news`; and how many questions it asks about
    that: `questions`."""

    news = "NewIcon"

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(VirtualDesktop(host=cls.host))

    def setUp(self):
        self.velto = self.desktop.start_velto({"breakMinutes": 10})
        self.addCleanup(self.velto.kill)
        wait_for(self.is_in_the_bar, what="the item in the bar")

    def is_in_the_bar(self):
        taken_in = self.desktop.registered_items
        return len(taken_in) == 1 and self.velto.item.bus_name in taken_in[0] and self.desktop.item_rectangle

    def click_item(self, button=1, modifiers=()):
        self.desktop.click_item(button, modifiers)

    def look(self):
        """The screen without the mouse pointer, which waits in the bar."""
        self.desktop.move(600, 10)
        latest = None

        def holds_still():
            nonlocal latest
            earlier, latest = latest, self.desktop.picture()
            time.sleep(0.2)
            return earlier and earlier.rgb == latest.rgb

        wait_for(holds_still)
        return latest

    def open_menu(self):
        entries = labels(self.velto.item.menu())
        before = self.look()
        self.click_item(button=3)
        return MenuOnScreen(self.desktop, before, rows=len(entries)), entries

    def choose(self, *names):
        """Opens the menu and goes down the path of `names` with the mouse."""
        tree = self.velto.item.menu()
        menu, entries = self.open_menu()
        for name in names[:-1]:
            tree = tree.find(name)
            menu, entries = menu.open_submenu(entries.index(name), len(labels(tree))), labels(tree)
        self.desktop.click(*menu.place(entries.index(names[-1])))
        return menu

    def wait_until_gone(self, menu):
        self.desktop.move(600, 10)
        wait_for(menu.is_gone)
        holds(menu.is_gone, 0.5)  # until the host has let go of the mouse, too

    def hide_the_card(self):
        self.click_item()
        wait_for(lambda: not self.velto.card_is_visible, what="the card hidden by a left click")
        holds(lambda: not self.velto.card_is_visible, 0.7, "the card stays hidden")

    def show_the_card(self, **click):
        self.click_item(**click)
        wait_for(lambda: self.velto.card_is_visible, what="the card shown by a click")

    def test_a_left_click_toggles_the_card(self):
        self.hide_the_card()
        self.show_the_card()
        self.hide_the_card()

    def test_a_middle_click_toggles_it_too(self):
        self.hide_the_card()
        self.show_the_card(button=2)

    def test_the_card_stands_under_the_item(self):
        self.hide_the_card()
        self.show_the_card()

        x, y, item_width, item_height = self.desktop.item_rectangle
        left, top, width, _ = self.velto.card.rectangle
        self.assertAlmostEqual(top, y + item_height + 6, delta=4)
        self.assertAlmostEqual(left, min(x + item_width // 2 - width // 2, 1280 - width), delta=2)

    def test_a_preset_is_chosen_with_the_mouse(self):
        self.choose("Presets", "25m focus / 5m break")

        wait_for(lambda: self.velto.settings.get("breakMinutes") == 5, what="the preset")
        holds(lambda: self.velto.card_is_visible, 0.7, "the card that was there before the menu")
        self.hide_the_card()
        self.show_the_card()

    def test_the_timer_is_paused_with_the_mouse(self):
        self.velto.press("Start")
        wait_for(lambda: self.velto.item.menu().find("Pause Focus"))
        self.hide_the_card()

        menu = self.choose("Pause Focus")

        wait_for(lambda: self.velto.item.menu().find("Start Focus"))
        self.wait_until_gone(menu)
        self.assertFalse(self.velto.card_is_visible)
        self.show_the_card()

    def test_escape_closes_the_menu_and_changes_nothing(self):
        menu, _ = self.open_menu()
        holds(lambda: self.velto.card_is_visible, 0.7, "the card beside the menu")
        self.desktop.key("Escape")
        self.wait_until_gone(menu)

        self.assertTrue(self.velto.item.menu().find("Start Focus"))
        self.hide_the_card()

    def test_a_press_elsewhere_hides_the_card_once_escape_closed_the_menu(self):
        menu, _ = self.open_menu()
        self.desktop.key("Escape")
        self.wait_until_gone(menu)
        self.assertTrue(self.velto.card_is_visible)

        self.desktop.click(300, 500)

        wait_for(lambda: not self.velto.card_is_visible, 5, "the card hidden by the first press")

    def test_a_press_beside_the_menu_closes_only_the_menu(self):
        menu, _ = self.open_menu()

        self.desktop.click(300, 500)
        self.wait_until_gone(menu)
        self.assertTrue(self.velto.card_is_visible)

        self.desktop.click(300, 500)
        wait_for(lambda: not self.velto.card_is_visible, 5, "the card hidden by the next press")

    def test_an_open_menu_follows_the_timer(self):
        self.hide_the_card()
        menu, _ = self.open_menu()

        self.velto.item.choose("Start Focus")

        wait_for(lambda: self.desktop.picture().crop(*menu.box).rgb != menu.picture.crop(*menu.box).rgb,
                 what="other entries in the menu")
        self.desktop.key("Escape")

    def entries(self):
        """The entries of our own menu, with those of its open submenus; none while it is closed."""
        return [entry for entry in self.velto.app.find_all() if entry.role in ("menu item", "check menu item")]

    def entry(self, name):
        for entry in self.entries():
            if entry.name == name:
                return entry
        raise LookupError(f"no menu entry {name!r}")

    def wait_until_closed(self):
        wait_for(lambda: not self.entries(), what="our menu closed")
        self.hide_the_card()
        self.show_the_card()

    def test_control_click_opens_our_menu_with_the_keyboard(self):
        self.click_item(modifiers=("ctrl",))
        wait_for(lambda: self.entry("Start Focus"))
        self.assertTrue(self.velto.card_is_visible)

        self.desktop.key("Down", "Down", "Down", "Down", "Right")  # Start, two durations, Presets
        wait_for(lambda: self.entry("25m focus / 5m break").has_state("focused"))
        self.desktop.key("Escape")
        wait_for(lambda: self.entry("Presets").has_state("focused"))
        self.desktop.key("Escape")
        self.wait_until_closed()

        self.click_item(modifiers=("ctrl",))
        wait_for(lambda: self.entry("Start Focus"))
        self.desktop.key("Down", "Return")
        wait_for(lambda: self.velto.item.menu().find("Pause Focus"), what="Start chosen with the keyboard")
        self.assertTrue(self.velto.card_is_visible)
        self.wait_until_closed()

    def test_our_menu_works_with_assistive_technology(self):
        x, y, width, height = self.desktop.item_rectangle
        self.desktop.move(x + width // 2, y + height // 2)
        self.velto.item.context_menu(x, y)  # as a host does that draws no menus

        wait_for(self.entries)
        self.assertEqual([entry.name for entry in self.entries()], labels(self.velto.item.menu()))
        self.assertFalse(self.entry("Auto-Transition").has_state("checked"))
        self.entry("Auto-Transition").press()
        wait_for(lambda: self.velto.item.menu().find("Auto-Transition").checked)
        self.assertTrue(self.velto.card_is_visible)
        self.wait_until_closed()

        self.velto.item.context_menu(x, y)
        self.assertTrue(wait_for(lambda: self.entry("Auto-Transition")).has_state("checked"))
        self.entry("Presets").press()
        wait_for(lambda: self.entry("50m focus / 10m break")).press()
        wait_for(lambda: self.velto.settings.get("focusMinutes") == 50)
        self.wait_until_closed()

    def test_the_time_in_the_bar_follows_the_timer(self):
        def shown():
            return self.desktop.picture().crop(*self.desktop.item_rectangle).rgb

        self.desktop.move(600, 10)
        self.velto.item.choose("Start Focus")
        for _ in range(3):
            before = shown()
            wait_for(lambda: shown() != before, 5, "another time in the bar")

    def wait_for_silence(self):
        """Until the host has asked its last question about what was before."""
        wait_for(lambda: not messages_in(self.desktop, self.velto.item.bus_name, 1), what="silence on the bus")

    def test_counting_costs_one_signal_a_second_and_its_answers(self):
        self.velto.press("Start")
        self.hide_the_card()
        self.desktop.move(600, 10)
        wait_for(lambda: self.velto.item.label < "24:58")

        with Messages(self.desktop, self.velto.item.bus_name) as messages:
            wait_for(lambda: messages.sent.count(self.news) == 1)
            started = time.monotonic()
            wait_for(lambda: messages.sent.count(self.news) == 6)
            seconds = time.monotonic() - started

        heard = messages.sent[messages.sent.index(self.news):]
        self.assertEqual(heard[:5 * (1 + self.questions)], 5 * [self.news, *self.questions * ["answer"]])
        self.assertAlmostEqual(seconds, 5, delta=0.5)

    def test_sends_nothing_while_the_timer_is_idle_or_paused(self):
        name = self.velto.item.bus_name
        self.hide_the_card()
        self.wait_for_silence()
        self.assertEqual(messages_in(self.desktop, name, 3), [])

        self.velto.item.choose("Start Focus")
        wait_for(lambda: self.velto.item.label < "24:59")
        self.velto.item.choose("Pause Focus")
        wait_for(lambda: self.velto.item.menu().find("Start Focus"))
        self.wait_for_silence()
        self.assertEqual(messages_in(self.desktop, name, 3), [])
