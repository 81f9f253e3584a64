# SPDX-License-Identifier: MIT
"""What a process holds: memory, descriptors, threads, children, and what the X server keeps for it."""
import collections
import ctypes
import functools
import os
import re
import statistics


class _Client(ctypes.Structure):
    _fields_ = [("client", ctypes.c_ulong), ("mask", ctypes.c_uint)]


class _Identity(ctypes.Structure):
    _fields_ = [("client", _Client), ("length", ctypes.c_long), ("value", ctypes.c_void_p)]


class _Type(ctypes.Structure):
    _fields_ = [("atom", ctypes.c_ulong), ("count", ctypes.c_uint)]


class XResources:
    """Asks an X server how many windows, pixmaps and the like it keeps for a process."""

    _pid_mask = 2

    def __init__(self, display):
        self._xlib, self._xres = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXRes.so.1")
        self._xlib.XOpenDisplay.restype = ctypes.c_void_p
        self._xlib.XGetAtomName.restype = ctypes.c_void_p
        self._xres.XResGetClientPid.argtypes = [ctypes.POINTER(_Identity)]
        self._display = ctypes.c_void_p(self._xlib.XOpenDisplay(display.encode()))

    def count(self, pid):
        """{type: how many}."""
        number, identities = ctypes.c_long(), ctypes.POINTER(_Identity)()
        self._xres.XResQueryClientIds(self._display, ctypes.c_long(1), ctypes.byref(_Client(0, self._pid_mask)),
                                      ctypes.byref(number), ctypes.byref(identities))
        counts = collections.Counter()
        for index in range(number.value):
            if self._xres.XResGetClientPid(ctypes.byref(identities[index])) == pid:
                types, found = ctypes.c_int(), ctypes.POINTER(_Type)()
                self._xres.XResQueryClientResources(self._display, ctypes.c_ulong(identities[index].client.client),
                                                    ctypes.byref(types), ctypes.byref(found))
                for kind in range(types.value):
                    counts[self._name(found[kind].atom)] += found[kind].count
                self._xlib.XFree(found)
        self._xres.XResClientIdsDestroy(number, identities)
        return counts

    @functools.cache
    def _name(self, atom):
        name = ctypes.c_void_p(self._xlib.XGetAtomName(self._display, ctypes.c_ulong(atom)))
        try:
            return ctypes.string_at(name).decode()
        finally:
            self._xlib.XFree(name)


def _read(path):
    with open(path, encoding="ascii") as file:
        return file.read()


class Usage:
    """Samples of what a process holds, told apart by a number that grows, such as that of the phase."""

    def __init__(self, pid, display):
        self._pid, self._x = pid, XResources(display)
        self._samples = []  # (number, {what: how much})

    def sample(self, number):
        pid = self._pid
        self._samples.append((number, {
            "KiB of memory": int(re.search(r"\nAnonymous:\s+(\d+) kB", _read(f"/proc/{pid}/smaps_rollup"))[1]),
            "descriptors": len(os.listdir(f"/proc/{pid}/fd")),
            "threads": len(os.listdir(f"/proc/{pid}/task")),
            "children": len(_read(f"/proc/{pid}/task/{pid}/children").split()),
            **{f"X {kind}": count for kind, count in self._x.count(pid).items()}}))

    def within(self, first, last, choose=statistics.median):
        """Of each kind, what `choose` makes of the samples with these numbers."""
        chosen = [usage for number, usage in self._samples if first <= number <= last]
        kinds = dict.fromkeys(kind for _, usage in self._samples for kind in usage)
        return {kind: choose([usage.get(kind, 0) for usage in chosen]) for kind in kinds}
