# SPDX-License-Identifier: MIT
"""What is done to velto inside a session.

    inside.py start KEY=MINUTES...     # with these settings and no others
    inside.py choose LABEL...          # an entry of its menu
    inside.py label                    # the time of its item
"""
import os
import plistlib
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
PROJECT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(PROJECT, "tests", "support"))

from gi.repository import Gio  # noqa: E402
from status_item import StatusItem  # noqa: E402
from waiting import wait_for  # noqa: E402


def start(*settings):
    folder = os.path.expanduser("~/.config/velto")
    os.makedirs(folder, mode=0o700, exist_ok=True)
    values = {key: int(value) for key, value in (setting.split("=") for setting in settings)}
    with open(folder + "/defaults.plist", "wb") as file:
        plistlib.dump(values | {"hasLaunchedBefore": True}, file)
    subprocess.Popen([PROJECT + "/build/release/bin/velto"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                     stderr=subprocess.DEVNULL, start_new_session=True)
    item()


def item():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return wait_for(lambda: StatusItem(bus, int(subprocess.check_output(["pgrep", "-nx", "velto"]) or 0)),
                    what="velto's item")


if sys.argv[1] == "start":
    start(*sys.argv[2:])
elif sys.argv[1] == "choose":
    item().choose(*sys.argv[2:])
elif sys.argv[1] == "label":
    print(item().label)
