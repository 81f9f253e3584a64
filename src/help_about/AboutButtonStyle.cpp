// SPDX-License-Identifier: MIT
#include "help_about/AboutButtonStyle.h"

#include "style/Colors.h"
#include "style/ContinuousRect.h"
#include "style/Drawing.h"
#include "style/TextStyle.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QWidget>

#include <cmath>

namespace velto {

namespace {

constexpr double cornerRadius = 12;
constexpr double horizontalPadding = 22;
constexpr double verticalPadding = 8;
constexpr double pressedOpacity = 0.8;
constexpr double pressedScale = 0.98;

} // namespace

QSize AboutButtonStyle::size(const QString& title)
{
    const QFontMetricsF metrics(textFont(TextStyle::headline));
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(title) + 2 * horizontalPadding)),
        static_cast<int>(std::ceil(metrics.height() + 2 * verticalPadding))};
}

void AboutButtonStyle::draw(QPainter& painter, const QWidget& button, const QString& title, bool isPressed)
{
    const QRectF rect = button.rect();
    auto face = color(ColorName::accent, button);
    if (isPressed) {
        face.setAlphaF(pressedOpacity);
        painter.translate(rect.center());
        painter.scale(pressedScale, pressedScale);
        painter.translate(-rect.center());
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(face);
    painter.drawPath(continuousRoundedRect(rect, cornerRadius));
    painter.setPen(Qt::white);
    painter.setFont(textFont(TextStyle::headline));
    drawLine(painter, rect, Qt::AlignHCenter, title);
    if (showsFocus(button))
        drawFocusRing(painter, rect.adjusted(2, 2, -2, -2), cornerRadius - 2, Qt::white);
}

} // namespace velto
