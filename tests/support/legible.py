# SPDX-License-Identifier: MIT
"""How well the time in a bar can be read, in the picture of it that is on the screen."""
import statistics


def luminance(colour):
    def linear(channel):
        part = channel / 255
        return part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = map(linear, colour)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def _colours(picture):
    return [tuple(picture.rgb[start:start + 3]) for start in range(0, len(picture.rgb), 3)]


def background(picture):
    """The colour of the bar in the picture of an item."""
    return tuple(statistics.median(colour[channel] for colour in _colours(picture)) for channel in range(3))


def contrast_of_digits(picture):
    """Of the strokes in the picture of an item, against the bar around them."""
    bar = background(picture)
    strokes = sorted((contrast(colour, bar) for colour in _colours(picture)), reverse=True)
    return strokes[len(strokes) // 40]
