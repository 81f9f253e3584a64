# SPDX-License-Identifier: MIT
"""Reads the picture that Xvfb keeps in a file (its -fbdir option), and writes it as PNG."""
import os
import struct
import zlib


class Picture:
    """Pixels of the screen: `rgb` holds three bytes each, row by row from the top."""

    def __init__(self, width, height, rgb):
        self.width, self.height, self.rgb = width, height, rgb

    def __getitem__(self, position):
        x, y = position
        start = 3 * (y * self.width + x)
        return tuple(self.rgb[start:start + 3])

    def crop(self, x, y, width, height):
        x, y = max(0, x), max(0, y)
        width, height = min(width, self.width - x), min(height, self.height - y)
        rows = (self.rgb[3 * (row * self.width + x):3 * (row * self.width + x + width)]
                for row in range(y, y + height))
        return Picture(width, height, b"".join(rows))

    def save(self, path):
        """Replaces `path` in one step: a reader sees the old picture or the new one."""
        stride = 3 * self.width
        rows = b"".join(b"\0" + self.rgb[start:start + stride] for start in range(0, len(self.rgb), stride))

        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        png = (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0))
               + chunk(b"IDAT", zlib.compress(rows, 2)) + chunk(b"IEND", b""))
        with open(f"{path}.new", "wb") as file:
            file.write(png)
        os.replace(f"{path}.new", path)


def read_picture(xwd_file):
    """The 24-bit screen in an X window dump."""
    with open(xwd_file, "rb") as file:
        dump = file.read()
    header = struct.unpack(">25I", dump[:100])
    header_size, width, height, bytes_per_line, colours = header[0], header[4], header[5], header[12], header[19]
    start = header_size + 12 * colours
    bgrx = dump[start:start + bytes_per_line * height]
    rgb = bytearray(3 * width * height)
    rgb[0::3], rgb[1::3], rgb[2::3] = bgrx[2::4], bgrx[1::4], bgrx[0::4]
    return Picture(width, height, bytes(rgb))
