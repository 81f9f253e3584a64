// SPDX-License-Identifier: MIT
#include "panel/ClockGlyphs.h"

#include "style/TextStyle.h"

#include <QFont>
#include <QString>

#include <algorithm>

namespace velto {

namespace {

/// Between two characters that fill their cells, in parts of the font's size.
constexpr double gapPerSize = 0.09;

} // namespace

ClockGlyphs::ClockGlyphs(double fontSize) : m_gap(gapPerSize * fontSize)
{
    const auto font = clockFont(fontSize);
    const auto outlineOf = [&font](QChar character) {
        QPainterPath outline;
        outline.addText({}, font, character);
        return outline;
    };
    const double digitMiddle = outlineOf(u'0').boundingRect().center().y();
    for (const QChar character : QStringLiteral("0123456789:-")) {
        auto outline = outlineOf(character);
        const auto ink = outline.boundingRect();
        outline.translate(-ink.center().x(), character.isDigit() ? -digitMiddle : -ink.center().y());
        m_outlines[character] = outline;
        if (character.isDigit())
            m_digitWidth = std::max(m_digitWidth, ink.width());
    }
}

double ClockGlyphs::cellWidth(QChar character) const
{
    // What is no digit stands in air on both sides.
    return character.isDigit() ? m_digitWidth + m_gap : outline(character).boundingRect().width() + 2 * m_gap;
}

} // namespace velto
