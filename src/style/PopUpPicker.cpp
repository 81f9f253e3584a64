// SPDX-License-Identifier: MIT
#include "style/PopUpPicker.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/PickerList.h"
#include "style/TextStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <limits>

namespace velto {

namespace {

constexpr double cornerRadius = 7;
constexpr double textMargin = 10;
constexpr double arrowsWidth = 24;

/// Two arrow heads, one up and one down.
void drawArrows(QPainter& painter, QPointF center)
{
    for (const double direction : {-1.0, 1.0}) {
        const double base = center.y() + direction * 2;
        painter.drawPolyline(
            QPolygonF{{center.x() - 3, base}, {center.x(), base + direction * 3}, {center.x() + 3, base}});
    }
}

} // namespace

PopUpPicker::PopUpPicker(const QString& title)
{
    setAccessibleDescription(title);
    followFont(*this, [] { return textFont(TextStyle::body); });
    setAttribute(Qt::WA_Hover);
    // As long as the screen allows, which Qt sees to.
    setMaxVisibleItems(std::numeric_limits<int>::max());
    m_list = new PickerList(*this);
}

QSize PopUpPicker::sizeHint() const
{
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, lineWidth(*this, itemText(i)));
    return {widest + static_cast<int>(textMargin + arrowsWidth), controlHeight(*this)};
}

QSize PopUpPicker::minimumSizeHint() const
{
    return {static_cast<int>(2 * textMargin + arrowsWidth), controlHeight(*this)};
}

void PopUpPicker::paintEvent(QPaintEvent*)
{
    const bool isRightToLeft = layoutDirection() == Qt::RightToLeft;
    const auto label = color(ColorName::label, *this);
    const auto face = mixed(color(ColorName::control, *this), label, underMouse() && isEnabled() ? 0.04 : 0);
    const QRectF frame = rect();
    const auto textRect = isRightToLeft ? frame.adjusted(arrowsWidth, 0, -textMargin, 0)
                                        : frame.adjusted(textMargin, 0, -arrowsWidth, 0);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(disabledOpacity);
    drawBezel(painter, frame, cornerRadius, face, isHighContrast(palette()) ? label : QColor());
    painter.setPen(label);
    drawLine(painter, textRect, isRightToLeft ? Qt::AlignRight : Qt::AlignLeft, currentText());

    painter.setPen(QPen(color(ColorName::secondaryLabel, *this), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawArrows(painter, {isRightToLeft ? arrowsWidth / 2 : frame.right() - arrowsWidth / 2, frame.center().y()});

    if (showsFocus(*this))
        drawFocusRing(painter, frame, cornerRadius, color(ColorName::teal, *this));
}

void PopUpPicker::keyPressEvent(QKeyEvent* event)
{
    const int before = currentIndex();
    QComboBox::keyPressEvent(event);
    if (currentIndex() != before)
        m_list->tellChoice();
}

void PopUpPicker::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace velto
