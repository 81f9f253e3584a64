# SPDX-License-Identifier: MIT
"""What running programs have cost so far, from /proc."""
import glob
import os
import re
import time


def with_children(pid):
    """The process and everything it has started that still runs."""
    found = [pid]
    for parent in found:
        for path in glob.glob(f"/proc/{parent}/task/*/children"):
            try:
                with open(path, encoding="ascii") as file:
                    found += [int(child) for child in file.read().split()]
            except OSError:
                pass  # the thread has ended
    return found


def cost(pids):
    """CPU time in seconds and the number of wake-ups so far, of all threads of these processes."""
    seconds = wake_ups = 0
    for pid in pids:
        for task in glob.glob(f"/proc/{pid}/task/*"):
            try:
                with open(f"{task}/schedstat", encoding="ascii") as file:
                    seconds += int(file.read().split()[0]) / 1e9
                with open(f"{task}/status", encoding="ascii") as file:
                    wake_ups += int(re.search(r"\nvoluntary_ctxt_switches:\s+(\d+)", file.read())[1])
            except OSError:
                pass  # the thread has ended
    return seconds, wake_ups


def cost_a_second(groups, duration):
    """The share of a core and the wake-ups a second of each group of processes, over `duration` seconds."""
    begin = time.monotonic()
    before = [cost(pids) for pids in groups]
    time.sleep(duration)
    duration = time.monotonic() - begin
    return [tuple((now - then) / duration for now, then in zip(cost(pids), start))
            for pids, start in zip(groups, before)]


def memory(pids):
    """(PSS, private) in MiB: with shared pages counted in part, and without them."""
    pss = private = 0
    for pid in pids:
        with open(f"/proc/{pid}/smaps_rollup", encoding="ascii") as file:
            rollup = {name: int(size) for name, size in re.findall(r"\n(\w+):\s+(\d+) kB", file.read())}
        pss += rollup["Pss"]
        private += rollup["Private_Clean"] + rollup["Private_Dirty"]
    return pss / 1024, private / 1024


def size_of_tree(folder):
    """In MiB, as `du` counts it."""
    return sum(os.lstat(os.path.join(path, name)).st_blocks * 512
               for path, _, names in os.walk(folder) for name in names) / 2**20
