# SPDX-License-Identifier: MIT
"""What running programs have cost so far, from /proc."""
import glob
import os
import re
import time

LOOKS_AT_BAR = 14  # seconds in which velto looks for the bar's colour, after a start or a change of its windows


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
    """CPU time in seconds and the number of wake-ups so far, of each thread of these processes."""
    costs = {}
    for pid in pids:
        for task in glob.glob(f"/proc/{pid}/task/*"):
            try:
                with open(f"{task}/schedstat", encoding="ascii") as file:
                    seconds = int(file.read().split()[0]) / 1e9
                with open(f"{task}/status", encoding="ascii") as file:
                    wake_ups = int(re.search(r"\nvoluntary_ctxt_switches:\s+(\d+)", file.read())[1])
            except OSError:
                continue  # the thread has ended
            costs[task] = seconds, wake_ups
    return costs


def cost_a_second(groups, duration):
    """The share of a core and the wake-ups a second of each group of processes, over `duration` seconds. Threads that
    end in that time do not count."""
    begin = time.monotonic()
    before = [cost(pids) for pids in groups]
    time.sleep(duration)
    duration = time.monotonic() - begin
    result = []
    for pids, start in zip(groups, before):
        now = cost(pids)
        result.append(tuple(sum(now[task][kind] - start.get(task, (0, 0))[kind] for task in now) / duration
                            for kind in range(2)))
    return result


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
