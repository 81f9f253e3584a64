// SPDX-License-Identifier: MIT
#include "style/ClockGlyphs.h"

#include <QFont>
#include <QFontInfo>
#include <QString>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace velto {

ClockGlyphs::ClockGlyphs(const QFont& font, double gap) : m_gap(gap * QFontInfo(font).pixelSize())
{
    const auto outlineOf = [&font](QChar character) {
        QPainterPath outline;
        outline.addText({}, font, character);
        return outline;
    };
    const auto zero = outlineOf(u'0').boundingRect();
    m_digitHeight = zero.height();
    for (const QChar character : QStringLiteral("0123456789:-")) {
        auto outline = outlineOf(character);
        const auto ink = outline.boundingRect();
        outline.translate(-ink.center().x(), character.isDigit() ? -zero.center().y() : -ink.center().y());
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

double ClockGlyphs::width(const QString& text) const
{
    double width = 0;
    for (const auto character : text)
        width += cellWidth(character);
    return width;
}

QPainterPath ClockGlyphs::crispOutline(const QString& text, int digitHeight) const
{
    const double scale = digitHeight / m_digitHeight;
    QPainterPath result;
    int x = 0;
    for (const auto character : text) {
        const int cell = crispCell(character, scale);
        const auto place = QTransform::fromTranslate(x + cell / 2.0, digitHeight / 2.0).scale(scale, scale);
        result.addPath(place.map(outline(character)));
        x += cell;
    }
    return result;
}

int ClockGlyphs::crispWidth(const QString& text, int digitHeight) const
{
    int width = 0;
    for (const auto character : text)
        width += crispCell(character, digitHeight / m_digitHeight);
    return width;
}

int ClockGlyphs::crispCell(QChar character, double scale) const
{
    return static_cast<int>(std::lround(cellWidth(character) * scale));
}

} // namespace velto
