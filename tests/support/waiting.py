# SPDX-License-Identifier: MIT
"""Waiting for a condition, never for time."""
import time

from gi.repository import GLib


def wait_for(condition, timeout=30, what=None):
    """Asks `condition` until it answers something true, and returns that. A LookupError or a D-Bus
    error counts as "not yet". Fails with an AssertionError that names `what` after `timeout` seconds."""
    begin = time.monotonic()
    last = None
    while True:
        try:
            last = condition()
            if last:
                return last
        except (LookupError, GLib.Error) as error:
            last = error
        waited = time.monotonic() - begin
        if waited > timeout:
            raise AssertionError(f"Not within {timeout} s: {what or condition.__name__}; last: {last!r}")
        time.sleep(0.02 if waited < 2 else 0.1)  # long waits need no fine steps, and asking costs


def holds(condition, seconds, what=None):
    """Asks `condition` for `seconds`, and fails with an AssertionError as soon as it is not true."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            raise AssertionError(f"Does not hold: {what or condition.__name__}")
        time.sleep(0.02)
