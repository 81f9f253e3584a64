// SPDX-License-Identifier: MIT
#include "style/Motion.h"

#include <QApplication>
#include <QWidget>

namespace velto {

Motion::Motion(QEasingCurve::Type curve, QObject* parent) : QVariantAnimation(parent)
{
    setDuration(usualDuration);
    setEasingCurve(curve);
    setStartValue(0.0);
    setEndValue(1.0);
    finish();
}

bool mayAnimate(const QWidget& widget)
{
    return widget.isVisible() && QApplication::isEffectEnabled(Qt::UI_General);
}

} // namespace velto
