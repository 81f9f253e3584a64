// SPDX-License-Identifier: MIT
#include "panel/RollingTime.h"

#include "style/Colors.h"
#include "style/TextStyle.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velto {

namespace {

constexpr int viewHeight = 68;
/// Between two digits that fill their cells, in parts of the font's size.
constexpr double gap = 0.06;
/// How far a digit rolls, in parts of the font's size: past the one that follows it.
constexpr double rollDistance = 0.8;
/// The part of the view next to its upper and lower edge where digits that roll fade.
constexpr double fadingEdge = 10;

/// The card's colour at the upper and lower edge of the view, and nothing between them.
QBrush fadeToCard(const QColor& card)
{
    auto nothing = card;
    nothing.setAlpha(0);
    QLinearGradient gradient(0, 0, 0, viewHeight);
    gradient.setStops(
        {{0, card}, {fadingEdge / viewHeight, nothing}, {1 - fadingEdge / viewHeight, nothing}, {1, card}});
    return gradient;
}

} // namespace

RollingTime::RollingTime(int width) : m_glyphs(clockFont(m_fontSize), gap)
{
    setFixedSize(width, viewHeight);
    setAttribute(Qt::WA_OpaquePaintEvent); // Nothing behind it is drawn again for a frame.
    onFontChange(*this, [this] {
        m_glyphs = ClockGlyphs(clockFont(m_fontSize), gap);
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
        m_glyphs = ClockGlyphs(clockFont(fontSize), gap);
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
    const auto middles = middlesOf(m_text);
    const auto previous = middlesOf(m_previous);
    for (int i = 0; i < m_text.size(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (rolled == 1 || m_previous.isEmpty()) {
            result.push_back({m_text[i], {middles[at], 0}, 1});
        } else if (m_text[i] == m_previous[i]) {
            result.push_back({m_text[i], {previous[at] + (middles[at] - previous[at]) * rolled, 0}, 1});
        } else {
            result.push_back({m_previous[i], {previous[at], -distance * rolled}, 1 - rolled});
            result.push_back({m_text[i], {middles[at], distance * (1 - rolled)}, rolled});
        }
    }
    return result;
}

void RollingTime::paintEvent(QPaintEvent* event)
{
    const auto label = color(ColorName::label, *this);
    const auto card = color(ColorName::windowBackground, *this);
    QPainter painter(this);
    painter.fillRect(event->rect(), card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(scale(), scale());
    painter.setPen(Qt::NoPen);
    const auto exposed = painter.worldTransform().inverted().mapRect(QRectF(event->rect()));
    for (const auto& glyph : glyphs()) {
        const auto& outline = m_glyphs.outline(glyph.character);
        if (!outline.boundingRect().translated(glyph.center).intersects(exposed))
            continue;
        // An opaque colour, since Qt fills a translucent one with several threads, which cost more than the filling.
        painter.setBrush(mixed(card, label, glyph.opacity));
        painter.drawPath(outline.translated(glyph.center));
    }
    if (m_roll.value() == 1)
        return;
    painter.resetTransform();
    const auto fade = fadeToCard(card);
    for (const double top : {0.0, viewHeight - fadingEdge})
        painter.fillRect(QRectF(0, top, width(), fadingEdge), fade);
}

double RollingTime::scale() const
{
    return std::min(1.0, width() / std::max(textWidth(), 1.0));
}

std::vector<double> RollingTime::middlesOf(const QString& text) const
{
    std::vector<double> middles;
    double x = 0;
    for (const auto character : text) {
        const double cell = m_glyphs.cellWidth(character);
        middles.push_back(x + cell / 2);
        x += cell;
    }
    if (middles.empty())
        return middles;

    const auto halfInk = [this](QChar character) { return m_glyphs.outline(character).boundingRect().width() / 2; };
    // The last digit, which changes most, ends where the widest would, so that the others need not move for it. A "1"
    // would then stand too far off: it goes half of the way, the digit before it comes towards it, and all move the
    // rest.
    const double room = m_glyphs.digitWidth() / 2 - halfInk(text.back());
    if (room > gap * m_fontSize && text.size() > 1) {
        middles.back() += room / 2;
        middles[middles.size() - 2] += room / 4;
    } else {
        middles.back() += room;
    }
    const double left = middles.front() - halfInk(text.front());
    const double right = middles.back() + halfInk(text.back());
    for (auto& middle : middles)
        middle -= (left + right) / 2;
    return middles;
}

void RollingTime::redrawRolling()
{
    // Where the motion is slow, most of its frames move the digits by less than can be seen.
    constexpr double seen = 0.25;
    const double way = std::abs(m_roll.value() - m_redrawn) * rollDistance * m_fontSize;
    if (m_roll.value() < 1 && way < seen)
        return;
    m_redrawn = m_roll.value();

    const auto middles = middlesOf(m_text);
    const auto previous = middlesOf(m_previous);
    for (std::size_t i = 0; i < previous.size(); ++i) {
        const auto at = static_cast<int>(i);
        if (m_text[at] == m_previous[at] && middles[i] == previous[i])
            continue;
        const double reach = m_glyphs.cellWidth(m_text[at]) / 2;
        const QRectF cell(QPointF(std::min(middles[i], previous[i]) - reach, 0),
            QPointF(std::max(middles[i], previous[i]) + reach, 0));
        update(QRectF(width() / 2.0 + cell.left() * scale(), 0, cell.width() * scale(), height())
                   .toAlignedRect()
                   .adjusted(-2, 0, 2, 0));
    }
}

} // namespace velto
