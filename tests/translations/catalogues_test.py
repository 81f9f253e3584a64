# SPDX-License-Identifier: MIT
"""catalogues_test.py FOLDER UPDATE...: the catalogues of FOLDER against the texts of the program, which the command
UPDATE collects."""
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from xml.etree import ElementTree

LANGUAGES = ["ar", "de", "es", "fr", "ja", "pl", "pt_BR", "zh_CN"]
FOLDER = os.path.abspath(sys.argv[1])
UPDATE = sys.argv[2:]
PACKAGING = os.path.join(FOLDER, "../packaging")
CATALOGUES = sorted(glob.glob(FOLDER + "/*.ts"))


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def manual(path):
    """What each paragraph of a manual page is, and its text: requests with the names in bold and italics, which stay."""
    free = ("SH", "SS", "BR")  # titles and keys
    page = []
    for line in read(path).splitlines():
        macro, _, rest = line[1:].partition(" ")
        if not line.startswith("."):
            page[-1][1] += " " + line
        elif macro == "TH":
            page.append([line[:line.rindex(' "')], line])
        elif macro in free and not rest.endswith("(1)"):
            page.append([macro, rest])
        else:
            page.append([line, ""])
    return page


def entries(path):
    """(source, translation) of each message; each plural form is one."""
    for message in ElementTree.parse(path).iter("message"):
        translation = message.find("translation")
        for text in translation.findall("numerusform") or [translation]:
            yield message.find("source").text, text.text or ""


class Catalogues(unittest.TestCase):
    def test_there_is_one_for_each_language(self):
        self.assertEqual([os.path.basename(path) for path in CATALOGUES],
                         [f"velto_{language}.ts" for language in LANGUAGES])

    def test_they_have_the_texts_of_the_program_and_no_others(self):
        with tempfile.TemporaryDirectory() as folder:
            for path in CATALOGUES:
                copy = shutil.copy(path, folder)
                subprocess.run([*UPDATE, copy], check=True, stdout=subprocess.DEVNULL, timeout=120)
                self.assertEqual(read(path), read(copy), "Build the target update_catalogues, and translate.")

    def test_none_has_an_unfinished_text(self):
        for path in CATALOGUES:
            self.assertNotRegex(read(path), "unfinished|vanished", path)
            self.assertEqual([source for source, text in entries(path) if not text.strip()], [], path)

    def test_places_lines_and_bullets_are_those_of_the_source(self):
        def shape(text):
            return sorted(re.findall(r"%[n0-9]", text)), text.count("\n"), text.count("\n•"), "…" in text

        for path in CATALOGUES:
            for source, text in entries(path):
                if "%n" not in source:  # one and two are words in some languages
                    self.assertEqual(shape(text), shape(source), (path, source))

    def test_what_is_pressed_is_called_alike_where_it_is_explained(self):
        for path in CATALOGUES:
            texts = dict(entries(path))
            footer = texts["You can access this guide anytime from the menu bar → How to Use"]
            self.assertIn(texts["How to Use"], footer, path)

    def test_the_desktop_entry_is_in_every_language(self):
        entry = read(PACKAGING + "/org.velto.Velto.desktop")
        for key in ("GenericName", "Comment", "Keywords"):
            self.assertEqual(re.findall(rf"^{key}\[(.*)\]=.", entry, re.MULTILINE), LANGUAGES, key)

    def test_the_metainfo_is_in_every_language(self):
        languages = {language.replace("_", "-") for language in LANGUAGES}
        root = ElementTree.parse(PACKAGING + "/org.velto.Velto.metainfo.xml.in").getroot()
        root.remove(root.find("releases"))
        for parent in root.iter():
            for tag in ("summary", "p", "li", "caption", "keyword"):
                said = [child.get("{http://www.w3.org/XML/1998/namespace}lang") for child in parent.findall(tag)]
                if said:
                    self.assertLessEqual(languages, set(said), tag)
                    if tag != "keyword":
                        self.assertEqual([said.count(language) for language in languages],
                                         [said.count(None)] * len(languages), tag)

    def test_the_manual_page_is_in_every_language(self):
        def names(text):
            return sorted(set(re.findall(r"\b(?:Qt|GNOME|XML|XWayland|F10)\b|\d+|velto", text, re.ASCII)))

        english = manual(PACKAGING + "/man/man1/velto.1")
        for language in LANGUAGES:
            path = f"{PACKAGING}/man/{language}/man1/velto.1"
            page = manual(path)
            self.assertEqual([what for what, _ in page], [what for what, _ in english], path)
            for (_, text), (_, source) in zip(page, english):
                self.assertEqual(names(text), names(source), (path, source))
                self.assertEqual(bool(text), bool(source), (path, source))
                self.assertEqual(len(re.findall("[.。]( |$)", text)), len(re.findall(r"\.( |$)", source)), (path, source))
                if len(source) > 20:
                    self.assertNotEqual(text, source, path)

    def test_the_manual_page_has_the_name_of_the_desktop_entry(self):
        entry = read(PACKAGING + "/org.velto.Velto.desktop")
        for language in LANGUAGES:
            generic = re.search(rf"^GenericName\[{language}\]=(.*)", entry, re.MULTILINE).group(1)
            what = re.search(r"^velto \\- (.*)", read(f"{PACKAGING}/man/{language}/man1/velto.1"), re.MULTILINE).group(1)
            self.assertIn(generic.casefold(), what.casefold())

    @unittest.skipUnless(shutil.which("man"), "no man")
    def test_each_manual_page_is_shown_without_a_warning(self):
        pages = glob.glob(PACKAGING + "/man/**/velto.1", recursive=True)
        self.assertEqual(len(pages), 1 + len(LANGUAGES))
        for page in pages:
            shown = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", page], text=True, check=True, timeout=60,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                   env={**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "80"})
            self.assertIn("velto", shown.stdout)
            self.assertEqual(shown.stderr, "", page)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
