# SPDX-License-Identifier: MIT
"""The countdown as a bar hears it, while session buses come and go."""
import re
import subprocess
import threading
import time
from bisect import bisect

from machine import system_call, time_for_disk, time_queued, time_worked

_SIGNAL = re.compile(r"signal time=(\S+) ")
_LABEL = re.compile(r'   string "(\d+):(\d\d)"')
_MOMENT = 0.5  # s, in which one who waits for a processor holds up a tick


class Countdown:
    """Every second that an item announces: (when on the wall clock, seconds left). One is `speed` times as short as
    elsewhere."""

    def __init__(self, desktop, speed):
        self._desktop, self._speed = desktop, speed
        self.heard, self.phases = [], 0
        self._breaks = []  # (from, to) on the wall clock: whatever was done then may have stopped the countdown
        self._samples = []  # (when on the wall clock, how long programs had waited for a processor, velto's costs)
        self._calls = []  # (when on the wall clock, the system call in which each program was)

    def listen(self):
        """To the session bus there is now, until it goes."""
        self._listener = process = subprocess.Popen(
            ["dbus-monitor", "--session", "type='signal',interface='org.kde.StatusNotifierItem',member='XAyatanaNewLabel'"],
            env=self._desktop.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
        threading.Thread(target=self._read, args=(process,), daemon=True).start()

    def _read(self, process):
        when = None
        with process:
            for line in process.stdout:
                if found := _SIGNAL.match(line):
                    when = float(found[1])
                elif (found := _LABEL.fullmatch(line.rstrip())) and when:
                    left = 60 * int(found[1]) + int(found[2])
                    self.phases += left == 0
                    self.heard.append((when, left))
                    when = None  # what follows is the guide

    @property
    def goes_on(self):
        return bool(self.heard) and time.time() - self.heard[-1][0] < 0.5

    def touched(self, begin):
        """What has been done from `begin` to now may have stopped or changed the countdown."""
        self._breaks.append((begin, time.time() + 0.1))

    def watch(self, velto, others):
        """Notes how much a busy machine holds up velto and `others()`, {name: pid}, how much velto works and what they
        wait for, until the end of this process."""
        def sample():
            while True:
                processes = {"velto": velto, "listener": self._listener.pid, **others()}
                pids = list(processes.values())
                self._samples.append((time.time(), time_queued(pids), (time_worked(velto), time_for_disk(pids))))
                self._calls.append((time.time(), {name: system_call(pid) for name, pid in processes.items()}))
                time.sleep(_MOMENT / 5)
        threading.Thread(target=sample, daemon=True).start()

    def lateness(self):
        """How late each second came that continues the one before, on the wall clock: (without the time for which a
        processor was missing, with it, when, the seconds that velto worked and that all waited for the disk in the half
        second before it was due and until then). Seconds that were left out since are due as much later: each lateness
        is that of one."""
        heard, breaks, samples = list(self.heard), sorted(self._breaks), list(self._samples)
        result, base, at, interval = [], None, 0, 1 / self._speed
        for (before, more), (when, left) in zip(heard, heard[1:]):
            while at < len(breaks) and breaks[at][1] < before:
                at += 1
            is_touched = at < len(breaks) and breaks[at][0] <= when
            if is_touched or left >= more or when - before > 1:
                base = None
                continue
            if base is None:
                base = before + more * interval
            due = base - left * interval
            late = when - due
            base += late if late < 0 else late // interval * interval  # the earliest was in time
            (_, queued, costs), (_, queued_then, costs_then) = (
                samples[min(bisect(samples, moment, key=lambda sample: sample[0]), len(samples) - 1)]
                for moment in (due - _MOMENT, when))
            # less when a thread has ended
            result.append((late - max(0, queued_then - queued), late, when,
                           *(then - before for before, then in zip(costs, costs_then))))
        return result

    def calls_before(self, moment):
        """The system calls in which each process was during the last half second."""
        return [calls for when, calls in list(self._calls) if moment - _MOMENT <= when <= moment]
