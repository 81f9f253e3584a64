// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QPainterPath>

#include <map>

namespace velto {

/// The characters of a time at one font size, measured once.
class ClockGlyphs {
public:
    explicit ClockGlyphs(double fontSize);

    /// The same for every digit.
    [[nodiscard]] double cellWidth(QChar character) const;
    /// Centred about the origin: digits on a common base line, others each by what is seen of them.
    [[nodiscard]] const QPainterPath& outline(QChar character) const { return m_outlines.at(character); }

private:
    double m_digitWidth = 0;
    double m_gap;
    std::map<QChar, QPainterPath> m_outlines;
};

} // namespace velto
