// SPDX-License-Identifier: MIT
#include "help_about/AboutButton.h"

#include "help_about/AboutButtonStyle.h"
#include "style/TextStyle.h"

#include <QKeyEvent>
#include <QPainter>

namespace velto {

AboutButton::AboutButton(const QString& title)
{
    setText(title);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onFontChange(*this, [this] { updateGeometry(); });
}

QSize AboutButton::sizeHint() const
{
    return AboutButtonStyle::size(text());
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
