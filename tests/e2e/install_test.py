# SPDX-License-Identifier: MIT
"""What cmake --install puts somewhere is the whole program."""
import json
import os
import platform
import re
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree
from unittest import mock

from desktop import VirtualDesktop, wait_for

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
ID = "org.velto.Velto"


def setUpModule():
    global prefix, build
    prefix = unittest.enterModuleContext(tempfile.TemporaryDirectory(prefix="velto-installed-"))
    build = os.environ.get("VELTO_BUILD", os.path.join(ROOT, "build/release"))
    install(prefix)


def install(folder):
    subprocess.run(["cmake", "--install", build, "--prefix", folder], check=True, stdout=subprocess.DEVNULL)


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def tree(folder):
    return sorted(os.path.relpath(os.path.join(where, name), folder)
                  for where, folders, files in os.walk(folder) for name in folders + files)


class TheInstalledTree(unittest.TestCase):
    def test_it_has_the_programs_and_the_files_of_the_desktop(self):
        for name in ("bin/velto", "libexec/velto-stream", f"share/applications/{ID}.desktop",
                     f"share/metainfo/{ID}.metainfo.xml", "share/man/man1/velto.1",
                     "share/man/de/man1/velto.1", "share/man/zh_CN/man1/velto.1",
                     f"share/icons/hicolor/scalable/apps/{ID}.svg", f"share/icons/hicolor/48x48/apps/{ID}.png",
                     f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg"):
            with self.subTest(name):
                self.assertTrue(os.path.isfile(os.path.join(prefix, name)), os.listdir(prefix))

    def test_its_descriptions_are_valid(self):
        # AppStream 0.16 does not know <developer>, and says so; 1.0 wants it.
        for command in (["desktop-file-validate", f"{prefix}/share/applications/{ID}.desktop"],
                        ["appstreamcli", "validate", "--strict", "--pedantic", "--no-net",
                         "--override=unknown-tag=pedantic", f"{prefix}/share/metainfo/{ID}.metainfo.xml"]):
            with self.subTest(command[0]):
                result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
                self.assertEqual(result.returncode, 0, result.stdout.decode())

    def test_its_newest_release_is_this_version(self):
        with open(os.path.join(ROOT, "CMakeLists.txt"), encoding="utf-8") as file:
            version = re.search(r"project\(velto VERSION (\S+)", file.read()).group(1)

        release = xml.etree.ElementTree.parse(f"{prefix}/share/metainfo/{ID}.metainfo.xml").find("releases/release")

        self.assertEqual(release.get("version"), version)

    def test_its_screenshots_exist_in_the_given_sizes(self):
        images = xml.etree.ElementTree.parse(f"{prefix}/share/metainfo/{ID}.metainfo.xml").findall(".//image")

        self.assertGreater(len(images), 2)
        for image in images:
            file = os.path.join(ROOT, "docs/screenshots", os.path.basename(image.text))
            with open(file, "rb") as picture, self.subTest(image.text):
                width, height = struct.unpack(">II", picture.read(24)[16:])
                self.assertEqual((image.get("width"), image.get("height")), (str(width), str(height)))

    def test_its_manual_page_is_well_formed(self):
        result = subprocess.run(["man", "--warnings", "-l", f"{prefix}/share/man/man1/velto.1"], text=True, check=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, env={**os.environ, "MANWIDTH": "80"})

        self.assertIn("focus timer", result.stdout)
        self.assertEqual(result.stderr, "")

    def test_it_runs_from_where_it_stands(self):
        with VirtualDesktop() as desktop, mock.patch.dict(os.environ, VELTO_BIN=f"{prefix}/bin/velto"):
            velto = desktop.start_velto({})

            wait_for(lambda: velto.time == "25:00")
            self.assertEqual(os.readlink(f"/proc/{velto.pid}/exe"), f"{prefix}/bin/velto")


class TheInstalledPrograms(unittest.TestCase):
    """Whatever the compiler of a machine does by itself, these are asked for."""

    def setUp(self):
        self.programs = [os.path.join(prefix, name) for name in ("bin/velto", "libexec/velto-stream")]

    def test_are_position_independent(self):
        for program in self.programs:
            self.assertRegex(output("readelf", "--dynamic", program), r"FLAGS_1.*\bPIE\b")

    def test_have_read_only_relocations(self):
        for program in self.programs:
            self.assertIn("GNU_RELRO", output("readelf", "--segments", program))
            self.assertRegex(output("readelf", "--dynamic", program), r"FLAGS_1.*\bNOW\b")

    def test_have_no_executable_stack(self):
        for program in self.programs:
            self.assertRegex(output("readelf", "--segments", "--wide", program), r"GNU_STACK.* RW +0x")

    def test_abort_when_their_stack_is_overwritten(self):
        for program in self.programs:
            self.assertIn("__stack_chk_fail", output("readelf", "--dyn-syms", "--wide", program))

    @unittest.skipUnless(platform.machine() == "x86_64", "a protection of another processor")
    def test_check_the_targets_of_jumps(self):
        for program in self.programs:
            code = output("objdump", "--disassemble", "--no-show-raw-insn", program)
            self.assertRegex(code, r"<main>:\n[^\n]*\bendbr64")

    def test_were_compiled_with_the_flags_that_leave_no_trace(self):
        with open(os.path.join(build, "CMakeCache.txt"), encoding="utf-8") as file:
            optimised = "CMAKE_BUILD_TYPE:STRING=Release" in file.read()
        with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
            commands = [entry["command"] for entry in json.load(file)]

        self.assertTrue(commands)
        for flag in ["-fstack-clash-protection"] + ["-D_FORTIFY_SOURCE=3"] * optimised:
            self.assertEqual([command for command in commands if flag not in command], [])


class Uninstalling(unittest.TestCase):
    def test_leaves_nothing_and_removes_nothing_else(self):
        folder = self.enterContext(tempfile.TemporaryDirectory(prefix="velto-uninstalled-"))
        os.makedirs(os.path.join(folder, "bin"))
        os.makedirs(os.path.join(folder, "share/applications"))
        with open(os.path.join(folder, "share/applications/other.desktop"), "w", encoding="utf-8"):
            pass
        before = tree(folder)
        install(folder)
        self.assertIn("bin/velto", tree(folder))

        subprocess.run(["cmake", "--build", build, "--target", "uninstall"], check=True, stdout=subprocess.DEVNULL)

        self.assertEqual(tree(folder), before)


if __name__ == "__main__":
    unittest.main()
