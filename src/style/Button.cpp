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

constexpr double symbolGap = 6;
constexpr double pressedLinkOpacity = 0.8;
constexpr double pressedLinkScale = 0.98;

QFont titleFont()
{
    auto font = textFont(TextStyle::body);
    font.setWeight(QFont::Medium);
    return font;
}

QFont linkFont()
{
    return textFont(TextStyle::headline);
}

} // namespace

Button::Button(ButtonKind kind, const QString& title, const QString& symbol, ColorName tint) :
    QPushButton(title),
    m_kind(kind),
    m_symbol(symbol),
    m_tint(tint)
{
    followFont(*this, kind == ButtonKind::link ? linkFont : titleFont);
    setAttribute(Qt::WA_Hover);
    if (kind == ButtonKind::link)
        setCursor(Qt::PointingHandCursor);
}

QSize Button::sizeHint() const
{
    const int width = static_cast<int>(std::ceil(contentWidth()));
    const int height = controlHeight(*this);
    switch (m_kind) {
    case ButtonKind::link:
        return {width + 44, height + 4};
    case ButtonKind::borderless:
        return {std::max(height, width + 8), height};
    default:
        return {width + 32, height + 2};
    }
}

void Button::paintEvent(QPaintEvent*)
{
    const bool isLink = m_kind == ButtonKind::link;
    const bool isOnTint = isLink || m_kind == ButtonKind::prominent;
    const double radius = isLink ? 12 : 8;
    const auto label = color(ColorName::label, *this);
    auto face = color(isOnTint ? m_tint : ColorName::control, *this);
    auto content = label;
    if (isOnTint)
        content = m_tint == ColorName::accent ? QColor(Qt::white) : color(ColorName::tintedLabel, *this);
    else if (m_kind == ButtonKind::destructive)
        content = color(ColorName::red, *this);
    else if (m_kind == ButtonKind::borderless && isEnabled())
        content = color(m_tint, *this);
    const double emphasis = isLink ? 0 : isDown() ? 0.12 : underMouse() && isEnabled() ? 0.05 : 0;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    if (isLink && isDown()) {
        const QPointF center = QRectF(rect()).center();
        painter.translate(center);
        painter.scale(pressedLinkScale, pressedLinkScale);
        painter.translate(-center);
        face.setAlphaF(pressedLinkOpacity);
    }
    if (m_kind == ButtonKind::borderless) {
        content = mixed(content, label, emphasis * 2);
    } else {
        // Away from the text on it, so that pressing never costs contrast.
        const auto away = content.lightness() < 128 ? Qt::white : Qt::black;
        face = mixed(face, isOnTint ? QColor(away) : label, emphasis);
        drawBezel(painter, rect(), radius, face, isHighContrast(palette()) ? label : QColor());
    }

    const double size = m_symbol.isEmpty() ? 0 : symbolSize();
    const bool isRightToLeft = layoutDirection() == Qt::RightToLeft;
    const double side = std::floor((width() - contentWidth()) / 2);
    double beforeText = side;
    if (size > 0) {
        const auto pixmap = symbolPixmap(m_symbol, size, content, devicePixelRatioF());
        const double x = isRightToLeft ? width() - side - size : side;
        painter.drawPixmap(QPointF(x, std::round((height() - size) / 2)), pixmap);
        beforeText += size + symbolGap;
    }
    painter.setPen(content);
    drawLine(painter, QRectF(isRightToLeft ? 0 : beforeText, 0, width() - beforeText, height()),
        isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, text());

    if (showsFocus(*this)) {
        const auto inset = isOnTint ? 2 : 0;
        drawFocusRing(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius - inset,
            isOnTint ? content : color(ColorName::teal, *this));
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
