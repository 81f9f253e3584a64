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
    /// `font` has its size in pixels; `gap`, between two characters that fill their cells, is in parts of that.
    explicit ClockGlyphs(const QFont& font, double gap = 0.09);

    /// What is seen of the widest digit.
    [[nodiscard]] double digitWidth() const { return m_digitWidth; }
    [[nodiscard]] double cellWidth(QChar character) const;
    [[nodiscard]] double width(const QString& text) const;
    [[nodiscard]] double digitHeight() const { return m_digitHeight; }

    /// Centred about the origin: digits on a common base line, others each by what is seen of them.
    [[nodiscard]] const QPainterPath& outline(QChar character) const { return m_outlines.at(character); }
    /// From x = 0 on, the digits' middle at y = 0.
    [[nodiscard]] QPainterPath outline(const QString& text) const;

private:
    double m_digitWidth = 0;
    double m_digitHeight;
    double m_gap;
    std::map<QChar, QPainterPath> m_outlines;
};

} // namespace velto
