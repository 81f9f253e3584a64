# SPDX-License-Identifier: MIT
"""Waiting for a condition, never for time."""
import time

from gi.repository import GLib


def wait_for(condition, timeout=30, what=None):
    """Asks `condition` until it answers something true, and returns that. A LookupError or a D-Bus
    error counts as "not yet". Fails with an AssertionError that names `what` after `timeout` seconds."""
    give_up = time.monotonic() + timeout
    last, pause = None, 0.02
    while True:
        try:
            last = condition()
            if last:
                return last
        except (LookupError, GLib.Error) as error:
            last = error
        if time.monotonic() > give_up:
            raise AssertionError(f"Not within {timeout} s: {what or condition.__name__}; last: {last!r}")
        time.sleep(pause)
        pause = min(1.2 * pause, 0.1)  # who waits long need not be told at once, and asking costs


def holds(condition, seconds, what=None):
    """Asks `condition` for `seconds`, and fails with an AssertionError as soon as it is not true."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            raise AssertionError(f"Does not hold: {what or condition.__name__}")
        time.sleep(0.02)
