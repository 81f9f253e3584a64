// SPDX-License-Identifier: MIT
#include "help_about/AboutButton.h"

#include "help_about/AboutButtonStyle.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

namespace velto {

AboutButton::AboutButton(const QString& title)
{
    setText(title);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize AboutButton::sizeHint() const
{
    return AboutButtonStyle::size(text());
}

bool AboutButton::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        updateGeometry();
    return QAbstractButton::event(event);
}

void AboutButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    AboutButtonStyle::draw(painter, *this, text(), isDown());
}

void AboutButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!event->isAutoRepeat())
            click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace velto
