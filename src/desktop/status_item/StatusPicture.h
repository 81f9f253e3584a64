// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>
#include <QList>

class QFont;
class QString;

namespace velto {

class ClockGlyphs;

/// Black or white, whichever stands out more from a bar of that colour: by 4.5 to 1 at least.
[[nodiscard]] QColor statusPictureInk(const QColor& bar, bool appearsDisabled);

// All pictures are ARGB32 with a transparent background. `height` is in pixels.

/// What `wideStatusPicture` and `squareStatusPictures` draw with: made once for a font, since that costs more than a
/// picture.
[[nodiscard]] ClockGlyphs wideStatusGlyphs(const QFont& font);
[[nodiscard]] ClockGlyphs squareStatusGlyphs(const QFont& font);

/// The whole text on one line, about as wide as it needs. The width depends on the number of
/// characters only, so that it holds still while digits change.
[[nodiscard]] QImage wideStatusPicture(const QString& text, const ClockGlyphs& glyphs, int height, const QColor& ink);

/// The part before the colon above the part behind it, with strokes like those of a bar's clock; a picture of its own
/// for each size that bars usually give an item, plain or doubled.
[[nodiscard]] QList<QImage> squareStatusPictures(const QString& text, const ClockGlyphs& glyphs, const QColor& ink);

/// A timer's face, to stand beside a text that somebody else draws.
[[nodiscard]] QImage timerStatusPicture(int height, const QColor& ink);

} // namespace velto
