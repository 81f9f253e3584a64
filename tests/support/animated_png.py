# SPDX-License-Identifier: MIT
"""Writes pictures of the screen as a PNG that moves."""
import struct
import zlib


class AnimatedPng:
    """Frames of one size. What does not differ from the frame before costs nothing."""

    def __init__(self):
        self._frames = []  # [milliseconds, picture]

    def add(self, picture, milliseconds):
        """`picture` stays for so long; longer when the next is the same."""
        if self._frames and self._frames[-1][1].rgb == picture.rgb:
            self._frames[-1][0] += milliseconds
        else:
            self._frames.append([milliseconds, picture])

    def save(self, path):
        width, height = self._frames[0][1].width, self._frames[0][1].height
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            _write(file, b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            _write(file, b"acTL", struct.pack(">II", len(self._frames), 0))  # 0: for ever
            number, before = 0, None
            for milliseconds, picture in self._frames:
                x, y, part = (0, 0, picture) if before is None else _difference(before, picture)
                _write(file, b"fcTL", struct.pack(
                    ">IIIIIHHBB", number, part.width, part.height, x, y, min(milliseconds, 65535), 1000, 0, 0))
                data = zlib.compress(_filtered(part), 9)
                if before is None:
                    _write(file, b"IDAT", data)
                    number += 1
                else:
                    _write(file, b"fdAT", struct.pack(">I", number + 1) + data)
                    number += 2
                before = picture
            _write(file, b"IEND", b"")


def _write(file, kind, data):
    file.write(struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data)))


def _difference(before, after):
    """(x, y, picture): the rectangle of `after` that is not as `before`."""
    stride = 3 * after.width
    rows = [y for y in range(after.height)
            if before.rgb[y * stride:(y + 1) * stride] != after.rgb[y * stride:(y + 1) * stride]]
    left, right = after.width, 0
    for y in rows:
        old, new = before.rgb[y * stride:(y + 1) * stride], after.rgb[y * stride:(y + 1) * stride]
        columns = [x for x in range(after.width) if old[3 * x:3 * x + 3] != new[3 * x:3 * x + 3]]
        left, right = min(left, columns[0]), max(right, columns[-1])
    return left, rows[0], after.crop(left, rows[0], right - left + 1, rows[-1] - rows[0] + 1)


def _filtered(picture):
    """Each row as its difference from the one above, which suits faces of one colour and gradients downwards."""
    stride = 3 * picture.width
    above, rows = bytes(stride), []
    for start in range(0, len(picture.rgb), stride):
        row = picture.rgb[start:start + stride]
        if row == above:
            rows.append(b"\2" + bytes(stride))
        else:
            rows.append(b"\2" + bytes((new - old) & 255 for new, old in zip(row, above)))
        above = row
    return b"".join(rows)
