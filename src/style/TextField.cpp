// SPDX-License-Identifier: MIT
#include "style/TextField.h"

#include "style/Colors.h"
#include "style/Drawing.h"
#include "style/TextStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>

namespace velto {

namespace {

constexpr double cornerRadius = 7;
constexpr int textMargin = 6;

/// Hides the caret beside selected text, which it would turn into the opposite of its colour.
class FieldStyle final : public QProxyStyle {
public:
    FieldStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        const auto* field = qobject_cast<const QLineEdit*>(widget);
        return metric == PM_TextCursorWidth && field && field->hasSelectedText()
            ? 0
            : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

TextField::TextField(const QString& placeholder)
{
    auto* style = new FieldStyle;
    style->setParent(this);
    setStyle(style);
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    followFont(*this, [] { return textFont(TextStyle::body); });
    setFrame(false);
    setTextMargins(textMargin, 0, textMargin, 0);
    auto clear = palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    setPalette(clear);
}

QSize TextField::sizeHint() const
{
    return {QLineEdit::sizeHint().width(), controlHeight(*this)};
}

QSize TextField::minimumSizeHint() const
{
    return {QLineEdit::minimumSizeHint().width(), controlHeight(*this)};
}

void TextField::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!isEnabled())
            painter.setOpacity(disabledOpacity);
        drawBezel(
            painter, rect(), cornerRadius, color(ColorName::field, *this), color(ColorName::controlOutline, *this));
        if (hasFocus())
            drawFocusRing(painter, rect(), cornerRadius, color(ColorName::teal, *this));
    }
    QLineEdit::paintEvent(event);
}

void TextField::keyPressEvent(QKeyEvent* event)
{
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

} // namespace velto
