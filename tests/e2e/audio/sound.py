# SPDX-License-Identifier: MIT
"""What is heard on a virtual desktop, and where its streams come from."""
import json
import os
import select
import signal
import subprocess
import sys
import time
import wave

import numpy

import sound_server
from waiting import wait_for

RATE = sound_server.RATE
BUILD = os.environ["VELTO_BUILD"]
MATERIAL = os.path.join(BUILD, "tests/desktop/sound/material")
TONE, TONE_AMPLITUDE = 440, 0.5
# What the program needs to know of this place.
ENVIRONMENT = {"GST_REGISTRY": f"{MATERIAL}/gst-registry.bin", "SSL_CERT_FILE": f"{MATERIAL}/authority.pem"}


def settings_for(url, **others):
    """Settings for music from `url` during focus, at full loudness."""
    return {"enableFocusMusic": True, "focusMusicPreset": b'"Custom URL"', "focusCustomURL": url,
            "musicVolume": 1.0} | others


class SoundServer:
    """The desktop's sound server. What is played goes nowhere, but can be recorded."""

    def __init__(self, desktop):
        self._desktop = desktop
        self.start()

    def start(self):
        self.process = self._desktop.run("/usr/bin/python3", "-B", sound_server.__file__,
                                         self._desktop.path("runtime/pulse/native"))
        wait_for(lambda: "Default Sink: void" in self._pactl("info"), what="a sound server")

    def kill(self):
        self.process.kill()
        self.process.wait()

    def freeze(self):
        self.process.send_signal(signal.SIGSTOP)

    def list(self, what):
        return self._pactl("list", what)

    def _pactl(self, *command):
        try:
            return self._desktop.ask("pactl", *command)
        except subprocess.CalledProcessError:
            return ""


class Recording:
    """All that is heard, from now on."""

    def __init__(self, desktop):
        self._path = desktop.path(f"log/recording-{time.monotonic()}.raw")
        # One of the two channels, since sound servers differ in how they mix both into one.
        self._process = desktop.run("parec", "--raw", "--format=s16le", f"--rate={RATE}", "--channels=1",
                                    "--channel-map=front-left", "--no-remix", "--device=void.monitor",
                                    "--latency-msec=10", output=self._path)
        wait_for(lambda: len(self.samples()) > RATE // 10, what="a recording")

    def stop(self):
        self._process.kill()
        self._process.wait()

    def samples(self, last=None):
        """What was recorded, or the last so many seconds of it; full scale is 1."""
        size = os.path.getsize(self._path) // 2
        count = size if last is None else min(size, int(last * RATE))
        with open(self._path, "rb") as file:
            file.seek((size - count) * 2)
            return numpy.frombuffer(file.read(count * 2), "<i2") / 32768

    def amplitude(self, frequency, last=0.2):
        """Of a frequency, during the last so many seconds."""
        samples = self.samples(last)
        wave_ = numpy.exp(-2j * numpy.pi * frequency / RATE * numpy.arange(len(samples)))
        return 2 * abs(numpy.mean(samples * wave_))

    def sound_since(self, start):
        """When the first and the last sound came after the first `start` samples, in seconds; LookupError without
        one."""
        loud = numpy.flatnonzero(numpy.abs(self.samples()[start:]) > 0.01)
        return loud[0] / RATE, loud[-1] / RATE

    @property
    def has_tone(self):
        return bool(self.amplitude(TONE) > 0.8 * TONE_AMPLITUDE)

    def has_tone_at(self, volume):
        return bool(abs(self.amplitude(TONE) / TONE_AMPLITUDE - volume) < 0.08 * volume)

    @property
    def has_nothing(self):
        return bool(numpy.abs(self.samples(0.2)).max() < 0.005)


def alert_sound(name):
    with wave.open(os.path.join(BUILD, f"share/velto/sounds/{name}.wav")) as file:
        return numpy.frombuffer(file.readframes(file.getnframes()), "<i2") / 32768


def find_all(sound, samples):
    """When `sound` begins in `samples`, in seconds: every place where it is told from anything else."""
    if len(samples) <= len(sound):
        return []
    size = 1 << (len(samples) + len(sound)).bit_length()
    match = numpy.fft.irfft(numpy.fft.rfft(samples, size) * numpy.conj(numpy.fft.rfft(sound, size)), size)
    energy = numpy.concatenate([[0], numpy.cumsum(samples ** 2)])
    places = len(samples) - len(sound)
    loudness = numpy.sqrt(numpy.maximum(energy[len(sound):len(sound) + places] - energy[:places], 1e-6))
    likeness = match[:places] / (loudness * numpy.linalg.norm(sound))
    found = []
    for place in numpy.flatnonzero(likeness > 0.8):
        if found and place - found[-1] < len(sound):
            if likeness[place] > likeness[found[-1]]:
                found[-1] = place
        else:
            found.append(place)
    return [float(place) / RATE for place in found]


class StreamServer:
    """A web radio server; see stream_server.py for what it has to offer."""

    def __init__(self):
        script = next(path for folder in sys.path
                      if os.path.exists(path := os.path.join(folder, "stream_server.py")))
        self._process = subprocess.Popen(["/usr/bin/python3", "-B", script, MATERIAL, "127.0.0.1"], stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE)
        self._pending, self._events = b"", []
        self._ports = wait_for(lambda: [event["ports"] for event in self.events if "ports" in event],
                               what="a stream server")[0]

    def close(self):
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()

    def url(self, path, port="plain"):
        scheme = "http" if port in ("plain", "refused") else "https"
        return f"{scheme}://127.0.0.1:{self._ports[port]}/{path}"

    @property
    def events(self):
        while select.select([self._process.stdout], [], [], 0)[0] and (
                piece := os.read(self._process.stdout.fileno(), 65536)):
            *lines, self._pending = (self._pending + piece).split(b"\n")
            self._events += [json.loads(line) for line in lines]
        return self._events

    @property
    def connections(self):
        """Ever opened."""
        return sum("opened" in event for event in self.events)

    @property
    def open_connections(self):
        return self.connections - sum("closed" in event for event in self.events)
