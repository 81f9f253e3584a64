// SPDX-License-Identifier: MIT
#include "panel/RollingTime.h"

#include "style/Colors.h"
#include "style/TextStyle.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace velto {

namespace {

constexpr int viewHeight = 68;
/// How far a digit rolls, in parts of the font's size: past the one that follows it.
constexpr double rollDistance = 0.8;
/// The part of the view next to its upper and lower edge where digits that roll fade.
constexpr double fadingEdge = 10;

/// For a painter whose origin is the middle of the view.
QBrush fadingAtTheEdges(const QColor& color)
{
    auto nothing = color;
    nothing.setAlpha(0);
    QLinearGradient gradient(0, -viewHeight / 2.0, 0, viewHeight / 2.0);
    gradient.setStops(
        {{0, nothing}, {fadingEdge / viewHeight, color}, {1 - fadingEdge / viewHeight, color}, {1, nothing}});
    return gradient;
}

} // namespace

RollingTime::RollingTime(int width)
{
    setFixedSize(width, viewHeight);
    onFontChange(*this, [this] {
        m_glyphs = ClockGlyphs(clockFont(m_fontSize));
        update();
    });
    connect(&m_roll, &QVariantAnimation::valueChanged, this, &RollingTime::redrawRolling);
}

void RollingTime::setTime(const QString& text, double fontSize)
{
    if (text == m_text && fontSize == m_fontSize)
        return;
    const bool isSameShape = text.size() == m_text.size() && fontSize == m_fontSize;
    m_previous = isSameShape ? m_text : QString();
    m_text = text;
    if (fontSize != m_fontSize) {
        m_fontSize = fontSize;
        m_glyphs = ClockGlyphs(clockFont(fontSize));
    }
    if (isSameShape) {
        run(m_roll);
        redrawRolling();
    } else {
        m_roll.stop();
        m_roll.finish();
        update();
    }
}

std::vector<RollingTime::Glyph> RollingTime::glyphs() const
{
    std::vector<Glyph> result;
    const double rolled = m_roll.value();
    const double distance = rollDistance * m_fontSize;
    double x = -textWidth() / 2;
    for (int i = 0; i < m_text.size(); ++i) {
        const double width = m_glyphs.cellWidth(m_text[i]);
        const double middle = x + width / 2;
        x += width;
        if (rolled < 1 && rolls(i)) {
            result.push_back({m_previous[i], {middle, -distance * rolled}, 1 - rolled});
            result.push_back({m_text[i], {middle, distance * (1 - rolled)}, rolled});
        } else {
            result.push_back({m_text[i], {middle, 0}, 1});
        }
    }
    return result;
}

void RollingTime::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(scale(), scale());
    painter.setPen(Qt::NoPen);
    const auto resting = color(ColorName::label, *this);
    const auto rolling = fadingAtTheEdges(resting);
    for (const auto& glyph : glyphs()) {
        painter.setBrush(glyph.center.y() == 0 ? QBrush(resting) : rolling);
        painter.setOpacity(glyph.opacity);
        painter.drawPath(m_glyphs.outline(glyph.character).translated(glyph.center));
    }
}

double RollingTime::scale() const
{
    return std::min(1.0, width() / std::max(textWidth(), 1.0));
}

bool RollingTime::rolls(int index) const
{
    return index < m_previous.size() && m_previous[index] != m_text[index];
}

void RollingTime::redrawRolling()
{
    double x = width() / 2.0 - textWidth() / 2 * scale();
    for (int i = 0; i < m_text.size(); ++i) {
        const double cell = m_glyphs.cellWidth(m_text[i]) * scale();
        if (rolls(i))
            update(QRectF(x, 0, cell, height()).toAlignedRect().adjusted(-2, 0, 2, 0));
        x += cell;
    }
}

} // namespace velto
