# SPDX-License-Identifier: MIT
"""What the program says in other languages. Every visible text is walked through in one that nobody speaks: what is
not translated stands out."""
import os
import re
import sys
import unittest
import unittest.mock

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../translations"))
from desktop import VirtualDesktop, wait_for  # noqa: E402
from pseudo import pseudo  # noqa: E402

NAMES = re.compile(
    "The velto authors|[Vv]elto|Lo-Fi|Deep Space Ambient|Groove Salad|DEF CON Radio|Space Station|Lush|"
    "Basso|Blow|Bottle|Frog|Funk|Glass|Hero|Morse|Ping|Pop|Purr|Sosumi|Submarine|Tink")


def untranslated(texts):
    return sorted({text for text in texts if re.search("[a-zA-Z]{2}", NAMES.sub("", text))
                   and re.search("[aeiouyAEIOUY]", NAMES.sub("", text))})


def texts_of(window):
    """Everything that is shown or said of a window."""
    for found in [window, *window.find_all()]:
        yield found.name
        yield found.description
        if found.role == "text":
            yield found.text


def labels_of(menu):
    for entry in menu.children:
        yield entry.label
        yield from labels_of(entry)


class InALanguageThatNobodySpeaks(unittest.TestCase):
    def setUp(self):
        program = os.path.join(os.environ["VELTO_BUILD"], "bin/velto_pseudo")
        self.enterContext(unittest.mock.patch.dict(os.environ, VELTO_BIN=program))

    def start(self, settings, **desktop):
        self.desktop = self.enterContext(VirtualDesktop(**desktop))
        self.velto = self.desktop.start_velto(settings, {"LANGUAGE": "eo"})

    def window(self, button_or_title):
        def find():
            return next(window for window in self.velto.other_windows
                        if window.name == button_or_title or window.find_all("push button", button_or_title))
        return wait_for(lambda: find() if self.velto.other_windows else None, what=button_or_title)

    def expect_translated(self, texts):
        texts = list(texts)
        self.assertGreater(len([text for text in texts if text]), 3, texts)
        self.assertEqual(untranslated(texts), [])

    def test_the_card_says_nothing_in_english(self):
        self.start({})
        self.expect_translated(texts_of(self.velto.card))

        self.velto.press(pseudo("Start"))
        wait_for(lambda: self.velto.controls == [pseudo("Pause"), pseudo("Reset")], what="the counting card")
        self.expect_translated(texts_of(self.velto.card))

        self.velto.item.choose(pseudo("Current Phase"), pseudo("Break"))
        wait_for(lambda: self.velto.card.find_all(name=pseudo("Break")), what="the break")
        self.expect_translated(texts_of(self.velto.card))

    def test_the_form_says_nothing_in_english(self):
        self.start({"enableFocusMusic": True, "focusMusicPreset": b'"Custom URL"', "enableBreakMusic": True,
                    "countdownSound": b'"None"', "hasLaunchedBefore": True})
        self.velto.item.choose(pseudo("Settings…"))
        form = self.window(pseudo("Apply"))

        self.expect_translated(texts_of(form))
        for picker in form.find_all("combo box"):
            self.expect_translated(found.name for found in picker.find_all("list item", showing=False))

    def test_help_and_about_say_nothing_in_english(self):
        self.start({})
        self.velto.item.choose(pseudo("How to Use"))
        self.expect_translated(texts_of(self.window(pseudo("How to Use velto"))))

        self.velto.item.choose(pseudo("About velto"))
        self.expect_translated(texts_of(self.window(pseudo("About %1").replace("%1", "velto"))))

    def test_the_menus_say_nothing_in_english(self):
        self.start({}, host="none")
        self.expect_translated(labels_of(self.velto.item.menu()))

        x, y = wait_for(lambda: self.velto.strip, what="the strip").middle
        self.desktop.click(x, y, button=3)
        wait_for(lambda: self.velto.app.find_all("menu item", pseudo("Quit")), what="the menu")
        self.expect_translated(
            found.name for role in ("menu item", "check menu item", "menu") for found in self.velto.app.find_all(role))

    def test_what_is_stored_stays_in_english(self):
        self.start({})

        self.velto.item.choose(pseudo("Focus Music"), pseudo("Custom URL"))
        self.velto.item.choose(pseudo("Break Music"), "Groove Salad")

        expected = {"focusMusicPreset": b'"Custom URL"', "breakMusicPreset": b'"Groove Salad"'}
        wait_for(lambda: expected.items() <= self.velto.settings.items(), what="the settings file")


class FromRightToLeft(unittest.TestCase):
    """In Arabic."""

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop())
        self.velto = self.desktop.start_velto({}, {"LANGUAGE": "ar"})

    def test_the_first_button_is_on_the_right(self):
        self.velto.press("ابدأ")

        wait_for(lambda: self.velto.controls == ["أعِد الضبط", "أوقف مؤقتًا"], what="both buttons, from the left")

    def test_the_time_reads_from_left_to_right(self):
        self.velto.press("ابدأ")

        wait_for(lambda: self.velto.time == "24:58")


class TheMenuFromRightToLeft(unittest.TestCase):
    def test_it_ends_where_the_strip_does(self):
        with VirtualDesktop(host="none") as desktop:
            velto = desktop.start_velto({}, {"LANGUAGE": "ar"})
            x, _, width, _ = wait_for(lambda: velto.strip, what="the strip").rectangle

            desktop.click(*velto.strip.middle, 3)

            wait_for(lambda: velto.app.find("menu item", "أنهِ"), what="the menu")
            menu_x, _, menu_width, _ = velto.app.find("popup menu").rectangle
            self.assertEqual(menu_x + menu_width, x + width)


class WhoseLanguage(unittest.TestCase):
    def menu(self, **environment):
        with VirtualDesktop(host="press", wm="none") as desktop:
            return next(labels_of(desktop.start_velto({}, environment).item.menu()))

    def test_language_comes_before_the_locale(self):
        self.assertEqual(self.menu(LANGUAGE="ja:de", LANG="fr_FR.UTF-8"), "集中を開始")
        self.assertEqual(self.menu(LC_MESSAGES="fr_FR.UTF-8", LANG="de_DE.UTF-8"), "Démarrer la concentration")
        self.assertEqual(self.menu(LANGUAGE="en:de", LANG="de_DE.UTF-8"), "Start Focus")

    def test_a_language_without_a_catalogue_is_english(self):
        self.assertEqual(self.menu(LANG="eu_ES.UTF-8"), "Start Focus")


if __name__ == "__main__":
    unittest.main()
