// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

class QFont;
class QString;

namespace velto {

/// What a picture for a panel bar is drawn with.
struct StatusPictureInk {
    QColor text;
    QColor halo; ///< A soft rim around the strokes, for bars of an unexpected brightness.
    bool operator==(const StatusPictureInk&) const = default;
};

/// Ink for a dark or a light panel bar.
[[nodiscard]] StatusPictureInk statusPictureInk(bool onDark, bool appearsDisabled);

// All pictures are ARGB32 with a transparent ground. `height` is in pixels.

/// The whole text on one line, about as wide as it needs. The width depends on the number of
/// characters only, so that it holds still while digits change.
[[nodiscard]] QImage wideStatusPicture(const QString& text, const QFont& font, int height, const StatusPictureInk& ink);

/// The part before the colon above the part behind it, each filling half of the square.
[[nodiscard]] QImage squareStatusPicture(
    const QString& text, const QFont& font, int height, const StatusPictureInk& ink);

/// A timer's face, to stand beside a text that somebody else draws.
[[nodiscard]] QImage timerStatusPicture(int height, const StatusPictureInk& ink);

} // namespace velto
