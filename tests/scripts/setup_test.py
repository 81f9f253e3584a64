# SPDX-License-Identifier: MIT
"""scripts/setup and ./run on machines that hold nothing but what the test says."""
import os
import shutil
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOLS = ("awk", "bash", "cat", "dirname", "echo", "env", "grep", "xargs")

DPKG_QUERY = """#!/bin/bash
for package in "${@:4}"; do
    grep -qx -- "$package" "$MACHINE/installed" && echo "$package installed"
done
"""

APT_GET = """#!/bin/bash
echo "$*" >>"$MACHINE/calls"
case "$*" in
*--print-uris*--no-remove*conflicting*) echo "E: Packages need to be removed" >&2; exit 100 ;;
*--print-uris*conflicting*) printf '%s\\n' "The following packages will be REMOVED:" "  gnome-core" "0 upgraded" ;;
*--print-uris*) ;;
update*) ;;
*install*) [ ! -e "$MACHINE/offline" ] && shift 5 && printf '%s\\n' "$@" >>"$MACHINE/installed" ;;
esac
"""


class Setup(unittest.TestCase):
    def setUp(self):
        self.machine = self.enterContext(tempfile.TemporaryDirectory())
        os.mkdir(f"{self.machine}/bin")
        for tool in TOOLS:
            os.symlink(shutil.which(tool), f"{self.machine}/bin/{tool}")
        self.add("dpkg-query", DPKG_QUERY)
        self.add("apt-get", APT_GET)
        self.add("id", "#!/bin/bash\necho 0\n")
        self.write("installed", "")
        self.write("calls", "")

    def write(self, name, text):
        with open(f"{self.machine}/{name}", "w", encoding="utf-8") as file:
            file.write(text)

    def read(self, name):
        with open(f"{self.machine}/{name}", encoding="utf-8") as file:
            return file.read()

    def add(self, program, text):
        self.write(f"bin/{program}", text)
        os.chmod(f"{self.machine}/bin/{program}", 0o755)

    def use_as_a_person(self):
        self.add("id", "#!/bin/bash\necho 1000\n")

    def call(self, *command, **environment):
        environment |= {"PATH": f"{self.machine}/bin", "MACHINE": self.machine}
        return subprocess.run(command, cwd=ROOT, env=environment, stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=30, check=False)

    def setup(self, *arguments):
        return self.call("scripts/setup", *arguments)

    @property
    def installations(self):
        """What apt was told to install for real."""
        return [line for line in self.read("calls").splitlines() if "install" in line and "--print-uris" not in line]

    def test_what_running_needs_is_installed_and_nothing_else(self):
        self.assertEqual(self.setup("run").returncode, 0)

        installed = self.read("installed").split()
        self.assertIn("qt6-base-dev", installed)
        for package in ("xvfb", "libgtest-dev", "clang", "pulseaudio", "xfwm4"):
            self.assertNotIn(package, installed)

    def test_nothing_is_ever_removed(self):
        self.setup("run")

        self.assertEqual(len(self.installations), 1)
        self.assertIn("--no-remove", self.installations[0])

    def test_with_everything_there_it_needs_neither_root_nor_apt(self):
        self.setup("run")
        self.write("calls", "")
        self.use_as_a_person()

        result = self.setup("run")

        self.assertEqual((result.returncode, result.stderr, self.read("calls")), (0, "", ""))

    def test_without_root_it_names_the_packages_and_the_command(self):
        self.setup("run")
        self.write("installed", self.read("installed").replace("cmake\n", "").replace("g++\n", ""))
        self.write("calls", "")
        self.use_as_a_person()

        result = self.setup("run")

        self.assertEqual(result.returncode, 1)
        self.assertIn("missing: cmake g++\n", result.stderr)
        self.assertIn("  sudo apt-get install --no-install-recommends --no-remove cmake g++\n", result.stderr)
        self.assertEqual(self.installations, [])

    def test_without_a_network_it_names_the_packages_and_the_command(self):
        self.setup("run")
        self.write("installed", self.read("installed").replace("cmake\n", ""))
        self.write("offline", "")

        result = self.setup("run")

        self.assertEqual(result.returncode, 1)
        self.assertIn("missing: cmake\n", result.stderr)
        self.assertIn("  apt-get install --no-install-recommends --no-remove cmake\n", result.stderr)

    def test_it_says_which_package_stands_in_the_way_and_installs_none(self):
        with open(f"{ROOT}/scripts/setup", encoding="utf-8") as file:
            script = file.read().replace("\nrun=(\n", "\nrun=(\nconflicting\n")
        os.mkdir(f"{self.machine}/scripts")
        self.add("../scripts/setup", script)

        result = self.call(f"{self.machine}/scripts/setup", "run")

        self.assertEqual(result.returncode, 1)
        self.assertEqual(result.stderr, "conflicting cannot be installed unless apt removes these, so nothing was "
                                        "installed: gnome-core\n")
        self.assertEqual(self.installations, [])

    def test_the_tests_take_the_sound_server_that_is_there(self):
        for installed, wanted in (("", "pulseaudio"), ("pulseaudio\n", None), ("pipewire-pulse\n", "wireplumber"),
                                  ("pipewire-pulse\nwireplumber\n", None), ("pipewire-pulse\npulseaudio\n", None)):
            with self.subTest(installed=installed):
                self.write("installed", installed)

                missing = self.setup("--dry-run", "tests").stdout.split()

                self.assertEqual({"pulseaudio", "wireplumber"} & set(missing), {wanted} - {None})

    def test_a_wayland_session_without_xwayland_is_told_how_to_get_it(self):
        result = self.call("./run", WAYLAND_DISPLAY="wayland-0")

        self.assertEqual(result.returncode, 1)
        self.assertIn("XWayland, which is missing", result.stderr)
        self.assertIn("  sudo apt-get install --no-remove xwayland\n", result.stderr)
        self.assertEqual(self.read("calls"), "")


if __name__ == "__main__":
    unittest.main()
