// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QPainterPath>

#include <map>

class QFont;
class QString;

namespace velto {

/// The characters of a time in one font, measured once. Every digit has a cell of the same width, so that nothing
/// moves while they change.
class ClockGlyphs {
public:
    /// `gap` is between two characters that fill their cells, in parts of the font's size.
    explicit ClockGlyphs(const QFont& font, double gap = 0.09);

    /// What is seen of the widest digit.
    [[nodiscard]] double digitWidth() const { return m_digitWidth; }
    [[nodiscard]] double cellWidth(QChar character) const;
    [[nodiscard]] double width(const QString& text) const;
    [[nodiscard]] double digitHeight() const { return m_digitHeight; }

    /// Centred about the origin: digits on a common base line, others each by what is seen of them.
    [[nodiscard]] const QPainterPath& outline(QChar character) const { return m_outlines.at(character); }

    /// A text whose digits are `digitHeight` high, from the origin on to the right and down. Whole numbers keep it
    /// crisp: every cell is a whole number wide.
    [[nodiscard]] QPainterPath crispOutline(const QString& text, int digitHeight) const;
    [[nodiscard]] int crispWidth(const QString& text, int digitHeight) const;

private:
    [[nodiscard]] int crispCell(QChar character, double scale) const;

    double m_digitWidth = 0;
    double m_digitHeight;
    double m_gap;
    std::map<QChar, QPainterPath> m_outlines;
};

} // namespace velto
