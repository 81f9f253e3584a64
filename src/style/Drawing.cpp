// SPDX-License-Identifier: MIT
#include "style/Drawing.h"

#include "style/ContinuousRect.h"

#include <QFontMetricsF>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace velto {

int controlHeight(const QWidget& widget)
{
    return widget.fontMetrics().height() + 12;
}

int lineWidth(const QWidget& widget, const QString& text)
{
    return static_cast<int>(std::ceil(QFontMetricsF(widget.font()).horizontalAdvance(text)));
}

bool showsFocus(const QWidget& widget)
{
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void drawFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& color)
{
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(continuousRoundedRect(rect.adjusted(1, 1, -1, -1), radius - 1));
}

void drawBezel(QPainter& painter, const QRectF& rect, double radius, const QColor& face, const QColor& outline)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(face);
    painter.drawPath(continuousRoundedRect(rect, radius));
    if (!outline.isValid())
        return;
    painter.setPen(QPen(outline, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(continuousRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5));
}

void drawCard(QWidget& widget, const QRegion& exposed, double radius, ColorName outline)
{
    const QRectF rect = widget.rect();
    const auto background = color(ColorName::windowBackground, widget);
    QPainter painter(&widget);
    if (isBetweenCorners(exposed, rect, radius)) {
        painter.fillRect(exposed.boundingRect(), background);
        return;
    }

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(background);
    painter.drawPath(continuousRoundedRect(rect, radius));

    // Inside the edge, where all of its width can be seen.
    painter.setPen(QPen(color(outline, widget), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(continuousRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5));
}

void drawLine(QPainter& painter, const QRectF& rect, Qt::Alignment horizontally, const QString& text)
{
    const QFontMetricsF metrics(painter.font());
    const auto shown = metrics.elidedText(text, Qt::ElideRight, rect.width());
    const double width = metrics.horizontalAdvance(shown);
    double x = rect.left();
    if (horizontally & Qt::AlignHCenter)
        x = rect.center().x() - width / 2;
    else if (horizontally & Qt::AlignRight)
        x = rect.right() - width;
    painter.drawText(QPointF(x, std::round(rect.center().y() + metrics.capHeight() / 2)), shown);
}

} // namespace velto
