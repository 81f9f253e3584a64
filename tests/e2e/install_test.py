# SPDX-License-Identifier: MIT
"""What cmake --install puts somewhere is the whole program."""
import os
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree
from unittest import mock

from desktop import VirtualDesktop, wait_for

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
ID = "org.velto.Velto"


def setUpModule():
    global prefix
    prefix = unittest.enterModuleContext(tempfile.TemporaryDirectory(prefix="velto-installed-"))
    build = os.environ.get("VELTO_BUILD", os.path.join(ROOT, "build/release"))
    subprocess.run(["cmake", "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)


class TheInstalledTree(unittest.TestCase):
    def test_it_holds_the_program_and_what_a_desktop_asks_for(self):
        for name in ("bin/velto", "libexec/velto-stream", f"share/applications/{ID}.desktop",
                     f"share/metainfo/{ID}.metainfo.xml", f"share/icons/hicolor/scalable/apps/{ID}.svg", f"share/icons/hicolor/48x48/apps/{ID}.png",
                     f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg"):
            with self.subTest(name):
                self.assertTrue(os.path.isfile(os.path.join(prefix, name)), os.listdir(prefix))

    def test_its_descriptions_are_valid(self):
        for command in (["desktop-file-validate", f"{prefix}/share/applications/{ID}.desktop"],
                        ["appstreamcli", "validate", "--no-net", f"{prefix}/share/metainfo/{ID}.metainfo.xml"]):
            with self.subTest(command[0]):
                result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
                self.assertEqual(result.returncode, 0, result.stdout.decode())

    def test_its_newest_release_is_the_version_that_is_built(self):
        with open(os.path.join(ROOT, "CMakeLists.txt"), encoding="utf-8") as file:
            version = re.search(r"project\(velto VERSION (\S+)", file.read()).group(1)

        release = xml.etree.ElementTree.parse(f"{prefix}/share/metainfo/{ID}.metainfo.xml").find("releases/release")

        self.assertEqual(release.get("version"), version)

    def test_it_runs_from_where_it_stands(self):
        with VirtualDesktop() as desktop, mock.patch.dict(os.environ, VELTO_BIN=f"{prefix}/bin/velto"):
            velto = desktop.start_velto({})

            wait_for(lambda: velto.time == "25:00")
            self.assertEqual(os.readlink(f"/proc/{velto.pid}/exe"), f"{prefix}/bin/velto")


if __name__ == "__main__":
    unittest.main()
