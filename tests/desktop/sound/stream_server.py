# SPDX-License-Identifier: MIT
"""stream_server.py MATERIAL HOST: a web radio server, well behaved and otherwise, on ports of HOST of its own choice.

Writes one line of JSON for everything that happens to standard output: first the ports, then
{"opened": port}, {"request": path}, and {"closed": path} when the connection is gone. Ends when
standard input does.
"""
import json
import os
import random
import select
import socket
import ssl
import sys
import threading
import time

MATERIAL, HOST = sys.argv[1:]
BYTES_A_SECOND = 16000
BURST = 2 * BYTES_A_SECOND
SEGMENT = 2  # seconds
START = time.monotonic()
CERTIFICATES = ("good", "wrong-host", "expired", "unknown-authority")

output = threading.Lock()


def report(**event):
    with output:
        print(json.dumps(event), flush=True)


def material(name):
    with open(os.path.join(MATERIAL, name), "rb") as file:
        return file.read()


TONE = material("tone.mp3")


class Gone(Exception):
    """The client has closed the connection."""


class Connection:
    def __init__(self, stream, ports):
        self.stream, self.ports = stream, ports

    def wait(self, seconds=1e9):
        """Waits, but not for a client that is gone."""
        end = time.monotonic() + seconds
        while (left := end - time.monotonic()) > 0:
            if select.select([self.stream], [], [], min(left, 1))[0] and not self.stream.recv(4096):
                raise Gone

    def head(self, status="200 OK", kind="audio/mpeg", **fields):
        lines = [f"HTTP/1.1 {status}", f"Content-Type: {kind}", "Connection: close"]
        lines += [f"{name.replace('_', '-')}: {value}" for name, value in fields.items()]
        self.stream.sendall(("\r\n".join(lines) + "\r\n\r\n").encode("latin-1"))

    def body(self, status, kind, text):
        self.head(status, kind, Content_Length=len(text))
        self.stream.sendall(text.encode())

    def redirect(self, target):
        self.head("302 Found", "text/plain", Location=target, Content_Length=0)

    def pour(self, data, seconds=1e9):
        """Sends `data` over and over, as fast as it is to be heard but for a burst at the start."""
        start, sent = time.monotonic(), 0
        while (elapsed := time.monotonic() - start) < seconds:
            due = BURST + int(elapsed * BYTES_A_SECOND)
            while sent < due:
                at = sent % len(data)
                piece = data[at:at + min(4096, due - sent)]
                self.stream.sendall(piece)
                sent += len(piece)
            self.wait(0.05)

    def answer(self, path):
        name, _, rest = path.partition("?")[0].lstrip("/").partition("/")
        match name:
            case "tone.mp3":
                self.head()
                self.pour(TONE)
            case "tone.aac":
                self.head(kind="audio/aac")
                self.pour(material(name))
            case "tone.ogg":
                self.head(kind="audio/ogg")
                self.pour(material(name))
            case "shoutcast":
                self.stream.sendall(b"ICY 200 OK\r\nicy-name:Radio\r\nContent-Type:audio/mpeg\r\n\r\n")
                self.pour(TONE)
            case "relative":
                self.redirect("../tone.mp3")
            case "to-secure":
                self.redirect(f"https://127.0.0.1:{self.ports['good']}/tone.mp3")
            case "live.m3u8":
                first = int((time.monotonic() - START) / SEGMENT)
                self.body("200 OK", "application/vnd.apple.mpegurl",
                          f"#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:{SEGMENT}\n"
                          f"#EXT-X-MEDIA-SEQUENCE:{first}\n"
                          + "".join(f"#EXTINF:{SEGMENT},\nsegment/{number}\n" for number in range(first, first + 4)))
            case "segment":
                size = SEGMENT * BYTES_A_SECOND
                start = int(rest) * size % (len(TONE) - size)
                self.head(Content_Length=size)
                self.stream.sendall(TONE[start:start + size])
            case "redirect":
                self.redirect(rest.replace("/", "://", 1))
            case "segments":
                self.body("200 OK", "application/vnd.apple.mpegurl",
                          "#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:60\n"
                          f"#EXTINF:60,\n{rest.replace('/', '://', 1)}\n#EXT-X-ENDLIST\n")
            case "forbidden":
                self.head()
                self.pour(TONE)
            case "tag":  # of 256 MiB
                self.head()
                self.stream.sendall(b"ID3\x04\0\0\x7f\x7f\x7f\x7f")
                while True:
                    self.stream.sendall(bytes(1 << 20))
            case "endless.m3u8":
                self.head(kind="application/vnd.apple.mpegurl")
                self.stream.sendall(b"#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:2\n")
                while True:
                    self.stream.sendall(b"#EXTINF:2,\nsegment/1\n" * 50000)
            case "silent":
                self.wait()
            case "missing":
                self.body("404 Not Found", "text/html", "<html>Not here</html>")
            case "broken":
                self.body("500 Internal Server Error", "text/html", "<html>Oops</html>")
            case "page":
                self.body("200 OK", "text/html", "<!DOCTYPE html><html><body>" + "Welcome! " * 2000 + "</body></html>")
            case "garbage":
                self.head()
                self.pour(random.Random(1).randbytes(1 << 18))
            case "loop":
                hops = int(rest)
                if hops < 50:
                    self.redirect(f"/loop/{hops + 1}")
                else:
                    self.head()
                    self.pour(TONE)
            case "to-plain":
                self.redirect(f"http://127.0.0.1:{self.ports['plain']}/tone.mp3")
            case "to-file":
                self.redirect(f"file://{os.path.abspath(MATERIAL)}/tone.mp3")
            case "dropping":
                self.head()
                self.pour(TONE, 3)
            case "stalling":
                self.head()
                self.pour(TONE, 3)
                self.wait()
            case "trickle":
                self.head()
                for byte in TONE:
                    self.stream.sendall(bytes([byte]))
                    self.wait(1)
            case "titles":
                title = "StreamTitle='" + "Über " * 810 + "';"
                block = b"\xff" + title.encode("latin-1")[:255 * 16].ljust(255 * 16, b"\0")
                interval = 4096
                self.head(icy_metaint=interval, icy_name="é" * 4096)
                pieces = [TONE[i:i + interval] + block for i in range(0, len(TONE) - interval, interval)]
                self.pour(b"".join(pieces))
            case "long-name":
                self.head(icy_name="é" * (1 << 20))
                self.pour(TONE)
            case "playlist.m3u":
                self.body("200 OK", "audio/x-mpegurl", f"#EXTM3U\n#EXTINF:60,Tone\nfile://{MATERIAL}/tone.mp3\n")
            case "playlist.pls":
                self.body("200 OK", "audio/x-scpls", "[playlist]\nNumberOfEntries=1\nFile1=file:///etc/passwd\n")
            case "playlist.m3u8":
                target = f"file://{os.path.abspath(MATERIAL)}/tone.mp3" if rest == "tone" else "file:///etc/passwd"
                self.body("200 OK", "application/vnd.apple.mpegurl",
                          "#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:60\n"
                          f"#EXTINF:60,\n{target}\n#EXT-X-ENDLIST\n")
            case _:
                self.body("404 Not Found", "text/plain", "")


def serve(stream, context, ports):
    path = ""
    try:
        stream.settimeout(60)
        if context:
            stream = context.wrap_socket(stream, server_side=True)
        request = b""
        while b"\r\n\r\n" not in request:
            piece = stream.recv(4096)
            if not piece:
                return
            request += piece
        path = request.split()[1].decode()
        report(request=path)
        Connection(stream, ports).answer(path)
    except (Gone, OSError):
        pass
    finally:
        stream.close()
        report(closed=path)


def listen(name, listener, context, ports):
    while True:
        stream, _ = listener.accept()
        report(opened=name)
        threading.Thread(target=serve, args=(stream, context, ports), daemon=True).start()


def main():
    listeners = {name: socket.create_server((HOST, 0)) for name in ("plain", *CERTIFICATES)}
    ports = {name: listener.getsockname()[1] for name, listener in listeners.items()}
    with socket.create_server(("127.0.0.1", 0)) as nobody:
        ports["refused"] = nobody.getsockname()[1]
    for name, listener in listeners.items():
        context = None
        if name in CERTIFICATES:
            context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
            context.load_cert_chain(f"{MATERIAL}/{name}.pem", f"{MATERIAL}/{name}.key")
        threading.Thread(target=listen, args=(name, listener, context, ports), daemon=True).start()
    report(ports=ports)
    sys.stdin.read()


main()
