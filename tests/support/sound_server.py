#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Becomes a sound server that speaks PulseAudio's protocol on a socket: PulseAudio or, where that is missing, PipeWire.

Its one sink, `void`, plays to nobody, but can be recorded. One process answers the clients, so that it can be frozen.
Keeps what it needs beside the socket. Set HOME and the XDG folders to places of its own before.

    sound_server.py SOCKET
"""
import os
import shutil
import subprocess
import sys

from waiting import wait_for

RATE = 48000

_LIBRARIES = """
context.spa-libs = {
    audio.convert.* = audioconvert/libspa-audioconvert
    support.* = support/libspa-support
}
"""

# The right to be served first, as every desktop gives it to PipeWire; without it the sound breaks up on a busy machine.
_IN_TIME = "{ name = libpipewire-module-rt args = { nice.level = -11 rtportal.enabled = false } flags = [ ifexists nofail ] }"

_DAEMON = _LIBRARIES + f"""
context.properties = {{
    core.daemon = true
    core.name = pipewire-0
    default.clock.rate = {RATE}
    support.dbus = false
}}
context.modules = [
    {_IN_TIME}
    {{ name = libpipewire-module-protocol-native }}
    {{ name = libpipewire-module-access }}
    {{ name = libpipewire-module-metadata }}
    {{ name = libpipewire-module-spa-node-factory }}
    {{ name = libpipewire-module-client-node }}
    {{ name = libpipewire-module-adapter }}
    {{ name = libpipewire-module-link-factory }}
    {{ name = libpipewire-module-session-manager }}
]
context.objects = [
    {{ factory = adapter args = {{
        factory.name = support.null-audio-sink node.name = void media.class = Audio/Sink
        audio.position = [ FL FR ] monitor.channel-volumes = true object.linger = true
    }} }}
]
"""

_PULSE_SERVER = _LIBRARIES + f"""
context.properties = {{ support.dbus = false }}
context.modules = [
    {_IN_TIME}
    {{ name = libpipewire-module-protocol-native }}
    {{ name = libpipewire-module-client-node }}
    {{ name = libpipewire-module-adapter }}
    {{ name = libpipewire-module-metadata }}
    {{ name = libpipewire-module-protocol-pulse args = {{ server.address = [ "unix:SOCKET" ] }} }}
]
"""

# WirePlumber links what plays to the sink. It is to see no devices and remember no volumes.
_WIREPLUMBER = {
    "main.lua.d/51-alone.lua": """
alsa_monitor.enabled = false
v4l2_monitor.enabled = false
libcamera_monitor.enabled = false
stream_defaults.enabled = false
default_access.properties["enable-flatpak-portal"] = false
""",
    "bluetooth.lua.d/51-alone.lua": "bluez_monitor.enabled = false",
    # since 0.5
    "wireplumber.conf.d/alone.conf": """
wireplumber.profiles = { main = {
    hardware.audio = disabled
    hardware.bluetooth = disabled
    hardware.video-capture = disabled
} }
wireplumber.settings = {
    node.stream.restore-props = false
    node.stream.restore-target = false
}
""",
}


def write(path, text):
    os.makedirs(os.path.dirname(path), 0o700, exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def become_pulseaudio(socket):
    os.execvp("pulseaudio", [
        "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
        "--high-priority=no", "--disable-shm=yes", "--log-level=error", "--log-target=stderr",
        "-L", f"module-null-sink sink_name=void rate={RATE}",
        "-L", f"module-native-protocol-unix auth-anonymous=1 socket={socket}"])


def become_pipewire(socket):
    """The server of the protocol is a client of the daemon, which passes the sound on. Daemon and WirePlumber end with
    the server."""
    folder = os.path.join(os.path.dirname(socket), "pipewire")
    shutil.rmtree(folder, ignore_errors=True)
    write(f"{folder}/daemon.conf", _DAEMON)
    write(f"{folder}/server.conf", _PULSE_SERVER.replace("SOCKET", socket))
    for name, text in _WIREPLUMBER.items():
        write(os.path.join(os.environ["XDG_CONFIG_HOME"], "wireplumber", name), text)
    os.environ["PIPEWIRE_RUNTIME_DIR"] = folder
    subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "pipewire", "-c", f"{folder}/daemon.conf"])
    wait_for(lambda: os.path.exists(f"{folder}/pipewire-0"), what="PipeWire")
    subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "wireplumber"])
    os.execvp("pipewire", ["pipewire", "-c", f"{folder}/server.conf"])


if __name__ == "__main__":
    os.makedirs(os.path.dirname(sys.argv[1]), 0o700, exist_ok=True)
    if os.path.exists(sys.argv[1]):
        os.remove(sys.argv[1])  # of a server that was killed
    (become_pulseaudio if shutil.which("pulseaudio") else become_pipewire)(sys.argv[1])
