// SPDX-License-Identifier: MIT
#include "help_about/ApplicationIcon.h"

#include "style/ContinuousRect.h"

#include <QPainter>

namespace velto {

ApplicationIcon::ApplicationIcon(int side, double cornerRadius) :
    m_picture(QStringLiteral(":/icons/org.velto.Velto.svg")),
    m_cornerRadius(cornerRadius)
{
    if (!m_picture.isValid())
        qFatal("The application icon is missing");
    setFixedSize(side, side);
}

void ApplicationIcon::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(continuousRoundedRect(rect(), m_cornerRadius));
    m_picture.render(&painter, rect());
}

} // namespace velto
