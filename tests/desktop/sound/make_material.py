# SPDX-License-Identifier: MIT
"""make_material.py FOLDER: makes what the audio tests play and trust.

A minute of 440 Hz at half of full scale as MP3 (128 kbit/s), AAC and Ogg Opus, and the certificates of
web servers: good, for another host, expired, and of an authority that nobody trusts.
"""
import os
import subprocess
import sys

LENGTH = 60
CODECS = {
    "tone.mp3": "volume volume=1.0526 ! lamemp3enc target=bitrate cbr=true bitrate=128",  # LAME takes 5 % off
    "tone.aac": "avenc_aac bitrate=128000 ! aacparse ! audio/mpeg,stream-format=adts",
    "tone.ogg": "opusenc bitrate=96000 ! oggmux",
}


def run(command, **options):
    subprocess.run(command.split(), check=True, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, **options)


def encode(folder):
    for name, encoder in CODECS.items():
        rate = 48000 if name.endswith("ogg") else 44100
        run(f"gst-launch-1.0 -q audiotestsrc freq=440 volume=0.5 samplesperbuffer={rate // 10} "
            f"num-buffers={LENGTH * 10} ! audio/x-raw,rate={rate},channels=2 ! audioconvert ! {encoder} "
            f"! filesink location={folder}/{name}")


def authority(folder, name):
    run(f"openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 7 -subj /CN={name} "
        f"-addext basicConstraints=critical,CA:TRUE -keyout {folder}/{name}.key -out {folder}/{name}.pem")


def certificate(folder, name, issuer, host, days=7):
    run(f"openssl req -new -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN={name} "
        f"-keyout {folder}/{name}.key -out {folder}/{name}.csr")
    with open(f"{folder}/{name}.ext", "w", encoding="ascii") as file:
        file.write(f"subjectAltName={host}\n")
    run(f"openssl x509 -req -in {folder}/{name}.csr -CA {folder}/{issuer}.pem -CAkey {folder}/{issuer}.key "
        f"-CAcreateserial -days {days} -extfile {folder}/{name}.ext -out {folder}/{name}.pem")


def main(folder):
    os.makedirs(folder, exist_ok=True)
    encode(folder)
    authority(folder, "authority")
    authority(folder, "stranger")
    here = "IP:127.0.0.1,DNS:localhost"
    certificate(folder, "good", "authority", here)
    certificate(folder, "wrong-host", "authority", "DNS:elsewhere.example")
    certificate(folder, "expired", "authority", here, days=0)
    certificate(folder, "unknown-authority", "stranger", here)


main(sys.argv[1])
