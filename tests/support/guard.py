#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Ends every process of one virtual desktop and removes its folder.

Waits until its standard input closes: at the latest when the process that started it is gone, however
that ended. A process belongs to the desktop when its environment says VELTO_DESKTOP=<folder>, so that
those which put themselves in the background are found as well, and nobody else's are touched.

    guard.py FOLDER
"""
import os
import shutil
import signal
import sys
import time


def processes_with(variable):
    """Every process but this one that has "NAME=value" in its environment, from its start on."""
    for entry in os.listdir("/proc"):
        if not entry.isdigit() or int(entry) == os.getpid():
            continue
        try:
            with open(f"/proc/{entry}/environ", "rb") as environ:
                if os.fsencode(variable) in environ.read().split(b"\0"):
                    yield int(entry)
        except OSError:
            pass  # gone, or not ours


def processes_of(folder):
    return processes_with(f"VELTO_DESKTOP={folder}")


def end_all(folder):
    # Politely first: an X server that is asked removes its lock and its socket.
    for chosen_signal, seconds in ((signal.SIGTERM, 2), (signal.SIGKILL, 10)):
        give_up = time.monotonic() + seconds
        while time.monotonic() < give_up:
            alive = list(processes_of(folder))
            if not alive:
                return
            for pid in alive:
                try:
                    os.kill(pid, chosen_signal)
                    os.kill(pid, signal.SIGCONT)
                except ProcessLookupError:
                    pass
            time.sleep(0.05)


if __name__ == "__main__":
    if os.fork():
        os._exit(0)  # leave the family, so that whoever ends the test with its children spares us
    os.setsid()
    for ignored in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(ignored, signal.SIG_IGN)
    sys.stdin.buffer.read()
    end_all(sys.argv[1])
    shutil.rmtree(sys.argv[1], ignore_errors=True)
