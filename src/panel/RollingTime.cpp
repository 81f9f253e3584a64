// SPDX-License-Identifier: MIT
#include "panel/RollingTime.h"

#include "style/Colors.h"
#include "style/TextStyle.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

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
        m_line = lineOf(m_line.text);
        m_previous = lineOf(m_previous.text);
        m_rolling = rect();
        update();
    });
    connect(&m_roll, &QVariantAnimation::valueChanged, this, &RollingTime::redrawRolling);
}

void RollingTime::setTime(const QString& text, double fontSize)
{
    if (text == m_line.text && fontSize == m_fontSize)
        return;
    const bool isSameShape = text.size() == m_line.text.size() && fontSize == m_fontSize;
    if (fontSize != m_fontSize) {
        m_fontSize = fontSize;
        m_glyphs = ClockGlyphs(clockFont(fontSize), gap);
    }
    m_previous = isSameShape ? m_line : Line();
    m_line = lineOf(text);
    update(std::exchange(m_rolling, rollingCells())); // A digit that still rolls need not change now.
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
    for (int i = 0; i < m_line.text.size(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const auto character = m_line.text[i];
        const double middle = m_line.middles[at];
        if (rolled == 1 || m_previous.text.isEmpty()) {
            result.push_back({character, {middle, 0}, 1});
            continue;
        }
        const double before = m_previous.middles[at];
        if (character == m_previous.text[i]) {
            result.push_back({character, {before + (middle - before) * rolled, 0}, 1});
        } else {
            result.push_back({m_previous.text[i], {before, -distance * rolled}, 1 - rolled});
            result.push_back({character, {middle, distance * (1 - rolled)}, rolled});
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

RollingTime::Line RollingTime::lineOf(const QString& text) const
{
    std::vector<double> middles;
    double x = 0;
    for (const auto character : text) {
        const double cell = m_glyphs.cellWidth(character);
        middles.push_back(x + cell / 2);
        x += cell;
    }
    if (middles.empty())
        return {};

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
    return {text, middles};
}

QRegion RollingTime::rollingCells() const
{
    QRegion cells;
    for (std::size_t i = 0; i < m_previous.middles.size(); ++i) {
        const auto character = m_line.text[static_cast<int>(i)];
        const auto [left, right] = std::minmax(m_line.middles[i], m_previous.middles[i]);
        if (character == m_previous.text[static_cast<int>(i)] && left == right)
            continue;
        const double reach = m_glyphs.cellWidth(character) / 2;
        cells += QRectF(width() / 2.0 + (left - reach) * scale(), 0, (right - left + 2 * reach) * scale(), height())
                     .toAlignedRect()
                     .adjusted(-2, 0, 2, 0);
    }
    return cells;
}

void RollingTime::redrawRolling()
{
    // Where the motion is slow, most of its frames move the digits by less than can be seen.
    constexpr double seen = 0.25;
    const double way = std::abs(m_roll.value() - m_redrawn) * rollDistance * m_fontSize;
    if (m_roll.value() < 1 && way < seen)
        return;
    m_redrawn = m_roll.value();
    update(m_rolling);
    if (m_redrawn == 1)
        m_rolling = {};
}

} // namespace velto
