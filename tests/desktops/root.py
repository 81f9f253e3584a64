# SPDX-License-Identifier: MIT
"""A root of Debian with one desktop in it, and a session of that desktop in namespaces of its own."""
import contextlib
import os
import signal
import subprocess
import time

PROJECT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

COMMON = """dbus dbus-x11 python3-dbusmock python3-gi gir1.2-gtk-3.0 x11-utils xdotool iproute2 procps util-linux-extra
    xwayland fonts-inter fonts-quicksand at-spi2-core libqt6widgets6 libqt6svg6 libqt6dbus6 qt6-qpa-plugins
    libplist-utils libcanberra0 libgstreamer1.0-0 libsoup-3.0-0 libseccomp2""".split()

_BUILD = """
set -eu
root=$1 suite=$2; shift 2
[ -d "$root/usr" ] || debootstrap --variant=minbase "$suite" "$root" http://deb.debian.org/debian
cp /etc/apt/apt.conf.d/99* "$root/etc/apt/apt.conf.d/" 2>/dev/null || true
cp /etc/resolv.conf /etc/hosts "$root/etc/"
printf '#!/bin/sh\\nexit 101\\n' > "$root/usr/sbin/policy-rc.d"
chmod +x "$root/usr/sbin/policy-rc.d"
echo force-unsafe-io > "$root/etc/dpkg/dpkg.cfg.d/of-no-value" # nothing here outlives a crash
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
in_root="chroot $root env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive"
$in_root apt-get update -qq
$in_root apt-get install -qq --no-install-recommends "$@"
"""

_ENTER = """
set -eu
root=$1 project=$2 build=$3 user=$4
for folder in proc dev tmp run; do mkdir -p "$root/$folder"; done
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
mount -t tmpfs -o mode=755 tmpfs "$root/run"
mkdir -p "$root$project"
mount --bind "$project" "$root$project"
mkdir -p "$build" "$project/build"
mount --bind "$build" "$root$project/build"
exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 bash -c "$5" in "$user" "$6"
"""

_COMPILE = """
set -eu
export HOME=/root
cd "$2"
scripts/setup run
cmake --preset release -DVELTO_TESTS=OFF
cmake --build --preset release
"""

_INIT = """
set -eu
ip link set lo up
mount -t sysfs sysfs /sys 2>/dev/null || true
mount -t cgroup2 cgroup2 /sys/fs/cgroup 2>/dev/null || true
getent passwd "$1" >/dev/null || useradd -u "$1" person
export HOME=/tmp/home XDG_RUNTIME_DIR=/run/user/$1 USER=$(id -un "$1") LOGNAME=$(id -un "$1")
mkdir -p /run/dbus /tmp/.X11-unix "$HOME/.config" "$XDG_RUNTIME_DIR"
chmod 1777 /tmp/.X11-unix
chown -R "$1:$1" "$HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
dbus-uuidgen --ensure
dbus-daemon --system --fork
python3 -m dbusmock --system --template logind &
cd "$HOME"
exec setpriv --reuid "$1" --regid "$1" --clear-groups dbus-run-session -- bash -c "$2"
"""


class Root:
    """`folder` is where it is built."""

    def __init__(self, folder, suite, packages):
        self.folder, self._suite, self._packages = folder, suite, sorted({*packages})

    def build(self):
        """Does nothing when all of it is there."""
        done = os.path.join(self.folder, ".packages")
        wanted = "\n".join(self._packages)
        if os.path.exists(done) and open(done).read() == wanted:
            return
        os.makedirs(self.folder, exist_ok=True)
        subprocess.run(["unshare", "--mount", "--pid", "--fork", "bash", "-c", _BUILD, "build", self.folder,
                        self._suite, *self._packages], check=True)
        with open(done, "w") as file:
            file.write(wanted)


def build_velto(folder, suite):
    """Builds it in a root of its own, and returns what stands there for build."""
    root, build = Root(os.path.join(folder, "velto"), suite, ["ca-certificates"]), os.path.join(folder, "build")
    root.build()
    subprocess.run(["unshare", "--pid", "--fork", "--kill-child", "--mount", "bash", "-c", _ENTER, "enter",
                    root.folder, PROJECT, build, "0", _COMPILE, PROJECT], stdin=subprocess.DEVNULL, check=True)
    return build


class Session:
    """A desktop that runs. `start` is what starts it: it leaves its environment in $XDG_RUNTIME_DIR/session when it is
    up, and stays. `user` is a user id."""

    def __init__(self, root, build, start, user=0, log=os.devnull):
        self._user, self._log, self._inside = user, open(log, "w"), None
        self._process = subprocess.Popen(
            ["unshare", "--pid", "--fork", "--kill-child", "--net", "--ipc", "--uts", "--mount", "bash", "-c", _ENTER,
             "enter", root.folder, PROJECT, build, str(user), _INIT, start],
            stdin=subprocess.DEVNULL, stdout=self._log, stderr=subprocess.STDOUT)
        try:
            self._wait_for(self._up, "the desktop")
        except BaseException:
            self.close()
            raise

    def _wait_for(self, condition, what, timeout=90):
        end = time.monotonic() + timeout
        while not condition():
            if self._process.poll() is not None or time.monotonic() > end:
                raise RuntimeError(f"{what} did not come up")
            time.sleep(0.2)

    def _up(self):
        pid = self._process.pid
        with open(f"/proc/{pid}/task/{pid}/children") as file:
            children = file.read().split()
        if not children:
            return False
        self._inside = children[0]
        return subprocess.run(self._command("true"), capture_output=True).returncode == 0

    def _command(self, *command):
        return ["nsenter", "-t", self._inside, "-m", "-p", "-n", "-i", "-u", "-r", "-w",
                "setpriv", "--reuid", str(self._user), "--regid", str(self._user), "--clear-groups", "env", "-i",
                "bash", "-c", 'set -aeu; . /run/user/$0/session; set +a; exec "$@"', str(self._user), *command]

    def run(self, *command, **options):
        """Runs a command in it to its end, and returns what it printed."""
        return subprocess.run(self._command(*command), check=True, stdout=subprocess.PIPE, text=True, timeout=60,
                              **options).stdout

    def run_bytes(self, *command):
        return subprocess.run(self._command(*command), check=True, stdout=subprocess.PIPE, timeout=60).stdout

    def start(self, *command, **options):
        return subprocess.Popen(self._command(*command), stdout=self._log, stderr=self._log, text=True, **options)

    def close(self):
        if self._inside:  # The first process in it, with which all others go; it has forgotten whose child it is.
            with contextlib.suppress(ProcessLookupError):
                os.kill(int(self._inside), signal.SIGKILL)
        self._process.send_signal(signal.SIGKILL)
        self._process.wait()
        self._log.close()
