# SPDX-License-Identifier: MIT
"""Menus on the screen, found by their pixels: their owner need not be accessible."""
from waiting import wait_for

_SMALLEST_SIDE = 60
_MARGIN = 26  # of a menu's left edge, where marks and symbols are
_CONTRAST = 90


class MenuOnScreen:
    """What has appeared on the screen since the picture `before`, outside the rectangles `known` and below
    the panel bar. Waits until it holds still; `rows` is the number of its entries, separators not counted
    (None: any)."""

    def __init__(self, desktop, before, known=(), rows=None, bar_height=40):
        self._desktop, self._before, self._known, self._bar_height = desktop, before, list(known), bar_height
        self.picture, self.box, self.rows = wait_for(lambda: self._look(before, rows),
                                                     what=f"a menu of {rows or 'some'} entries on the screen")

    def _look(self, before, rows):
        picture = self._desktop.picture()
        box = self._changed(before, picture)
        if box is None or box[2] < _SMALLEST_SIDE or box[3] < 20:
            return None
        found = _text_rows(picture.crop(*box))
        if not found or rows not in (None, len(found)):
            return None
        return picture, box, [box[1] + row for row in found]

    def _changed(self, before, after):
        """(x, y, width, height) around every pixel that differs."""
        left, right, top, bottom = after.width, -1, None, None
        stride = 3 * after.width
        for y in range(self._bar_height, after.height):
            old, new = before.rgb[y * stride:(y + 1) * stride], after.rgb[y * stride:(y + 1) * stride]
            if old == new:
                continue
            columns = [x for x in range(after.width) if old[3 * x:3 * x + 3] != new[3 * x:3 * x + 3]
                       and not any(kx <= x < kx + kw and ky <= y < ky + kh for kx, ky, kw, kh in self._known)]
            if columns:
                left, right = min(left, columns[0]), max(right, columns[-1])
                top, bottom = y if top is None else top, y
        return None if top is None else (left, top, right - left + 1, bottom - top + 1)

    def place(self, index):
        """Where to put the mouse for an entry, counted from 0."""
        return self.box[0] + 2 * _MARGIN, self.rows[index]

    def is_gone(self):
        return self._desktop.picture().crop(*self.box).rgb == self._before.crop(*self.box).rgb

    def open_submenu(self, index, rows):
        x, y = self.place(index)
        self._desktop.move(x, y - 2)  # a second movement, since some menus ignore the first
        self._desktop.move(x, y)
        return MenuOnScreen(self._desktop, self.picture, [*self._known, self.box], rows, self._bar_height)


def _text_rows(menu):
    """The middle of each line of text, from the menu's top."""
    rows, start, last = [], None, None
    for y in range(menu.height):
        if not _has_text(menu, y):
            continue
        if last is not None and y - last > 3:
            rows.append((start, last))
            start = None
        start, last = y if start is None else start, y
    if start is not None:
        rows.append((start, last))
    return [(top + bottom) // 2 for top, bottom in rows if bottom - top >= 5]


def _has_text(menu, y):
    """Whether in this row of pixels something stands out from the ground."""
    pixels = [menu[x, y] for x in range(_MARGIN, menu.width * 3 // 4)]
    ground = max(set(pixels), key=pixels.count)
    return any(sum(abs(a - b) for a, b in zip(pixel, ground)) > 3 * _CONTRAST for pixel in pixels)
