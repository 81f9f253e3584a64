// SPDX-License-Identifier: MIT
#include "style/Motion.h"

#include <QApplication>
#include <QWidget>

namespace velto {

bool mayAnimate(const QWidget& widget)
{
    return widget.isVisible() && QApplication::isEffectEnabled(Qt::UI_General);
}

} // namespace velto
