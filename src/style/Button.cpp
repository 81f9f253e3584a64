// SPDX-License-Identifier: MIT
#include "style/Button.h"

#include "style/Drawing.h"
#include "style/Symbols.h"
#include "style/TextStyle.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace velto {

namespace {

constexpr double cornerRadius = 8;
constexpr double symbolGap = 6;

QFont titleFont()
{
    auto font = textFont(TextStyle::body);
    font.setWeight(QFont::Medium);
    return font;
}

} // namespace

Button::Button(ButtonKind kind, const QString& title, const QString& symbol, ColorName tint) :
    QPushButton(title),
    m_kind(kind),
    m_symbol(symbol),
    m_tint(tint)
{
    followFont(*this, titleFont);
    setAttribute(Qt::WA_Hover);
}

QSize Button::sizeHint() const
{
    if (m_kind == ButtonKind::borderless) {
        const int side = controlHeight(*this);
        return {std::max(side, static_cast<int>(std::ceil(contentWidth())) + 8), side};
    }
    return {static_cast<int>(std::ceil(contentWidth())) + 32, controlHeight(*this) + 2};
}

void Button::paintEvent(QPaintEvent*)
{
    const auto label = color(ColorName::label, *this);
    auto face = color(m_kind == ButtonKind::prominent ? m_tint : ColorName::control, *this);
    auto content = label;
    if (m_kind == ButtonKind::prominent)
        content = m_tint == ColorName::accent ? QColor(Qt::white) : color(ColorName::tintedLabel, *this);
    else if (m_kind == ButtonKind::destructive)
        content = color(ColorName::red, *this);
    else if (m_kind == ButtonKind::borderless && isEnabled())
        content = color(m_tint, *this);
    const double emphasis = isDown() ? 0.12 : underMouse() && isEnabled() ? 0.05 : 0;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    if (m_kind == ButtonKind::borderless) {
        content = mixed(content, label, emphasis * 2);
    } else {
        // Away from the text on it, so that pressing never costs contrast.
        const auto away = content.lightness() < 128 ? Qt::white : Qt::black;
        face = mixed(face, m_kind == ButtonKind::prominent ? QColor(away) : label, emphasis);
        drawBezel(painter, rect(), cornerRadius, face, isHighContrast(palette()) ? label : QColor());
    }

    const double size = m_symbol.isEmpty() ? 0 : symbolSize();
    double x = std::floor((width() - contentWidth()) / 2);
    if (size > 0) {
        const auto pixmap = symbolPixmap(m_symbol, size, content, devicePixelRatioF());
        painter.drawPixmap(QPointF(x, std::round((height() - size) / 2)), pixmap);
        x += size + symbolGap;
    }
    painter.setPen(content);
    drawLine(painter, QRectF(x, 0, width() - x, height()), Qt::AlignLeft, text());

    if (showsFocus(*this)) {
        const bool isOnTint = m_kind == ButtonKind::prominent;
        const auto inset = isOnTint ? 2 : 0;
        drawFocusRing(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
            isOnTint ? content : color(ColorName::accent, *this));
    }
}

void Button::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat())
            click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

double Button::symbolSize() const
{
    return std::round((m_kind == ButtonKind::borderless ? 20 : 14) * textScale(QGuiApplication::font()));
}

double Button::contentWidth() const
{
    double width = lineWidth(*this, text());
    if (!m_symbol.isEmpty())
        width += symbolSize() + (text().isEmpty() ? 0 : symbolGap);
    return width;
}

} // namespace velto
