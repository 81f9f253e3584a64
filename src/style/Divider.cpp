// SPDX-License-Identifier: MIT
#include "style/Divider.h"

#include "style/Colors.h"

#include <QPainter>

namespace velto {

Divider::Divider()
{
    setFixedHeight(1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), color(ColorName::separator, *this));
}

} // namespace velto
