# SPDX-License-Identifier: MIT
"""What a busy machine does to the times that a story measures."""
import glob
import os
import threading


def time_queued(pids):
    """For how long, in seconds, the threads of these processes were ready to go on but had no processor, or others had
    the processors of a virtual machine."""
    nanoseconds = 0
    for pid in pids:
        for path in glob.glob(f"/proc/{pid}/task/*/schedstat"):
            try:
                with open(path, encoding="ascii") as file:
                    nanoseconds += int(file.read().split()[1])
            except OSError:
                pass  # the thread has ended
    return nanoseconds / 1e9 + _time_stolen()


def _time_stolen():
    with open("/proc/stat", encoding="ascii") as file:
        return int(file.readline().split()[8]) / os.sysconf("SC_CLK_TCK")


def time_worked(pid):
    """How much of a processor the process has used so far, in seconds. 0 when it has ended."""
    return sum(_stat(pid, 11, 13)) / os.sysconf("SC_CLK_TCK")


def time_for_disk(pids):
    """How long the main threads of these processes have waited for the disk so far, in seconds. 0 where the system does
    not count it: `sysctl kernel.task_delayacct=1`."""
    return sum(sum(_stat(pid, 39, 40)) for pid in pids) / os.sysconf("SC_CLK_TCK")


def system_call(pid):
    """The number of the system call in which the process waits; "running" when it does not, "-1" when it waits outside
    of one, as for a page of its memory. Empty when it has ended or may not be asked."""
    try:
        with open(f"/proc/{pid}/syscall", encoding="ascii") as file:
            return file.read().split()[0]
    except OSError:
        return ""


def _stat(pid, first, end):
    try:
        with open(f"/proc/{pid}/stat", encoding="ascii") as file:
            return [int(field) for field in file.read().rpartition(")")[2].split()[first:end]]
    except OSError:
        return []


class Hindrance:
    """For how long processes, this one among them, had to wait for a processor at the worst moment of the `with`:
    `seconds`. By that much a limit on what they do together has to be wider; what goes beyond is their own fault."""

    _moment = 0.5  # s

    def __init__(self, processes):
        self._pids = [os.getpid(), *(process.pid for process in processes)]
        self._samples, self._end = [], threading.Event()
        self._watch = threading.Thread(target=self._sample, daemon=True)

    def __enter__(self):
        self._watch.start()
        return self

    def __exit__(self, *_):
        self._end.set()
        self._watch.join()

    def _sample(self):
        while not self._end.wait(self._moment / 5):
            self._samples.append(time_queued(self._pids))

    @property
    def seconds(self):
        samples = list(self._samples)
        return max((later - earlier for earlier, later in zip(samples, samples[5:])), default=0)
