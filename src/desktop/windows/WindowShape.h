// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

class QWidget;

namespace velto {

/// Gives a window round corners: translucent ones with a compositing manager; without one the window is opaque and
/// cut to its shape.
class WindowShape final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// `window` has been created with a translucent background. It must outlive this.
    explicit WindowShape(QWidget& window);

    /// The corners of the content and the colour of its edge, unless they are those of a card. Pixels that the
    /// edge covers in part get its colour where they can't be translucent.
    void setCorners(double radius, ColorName edge);

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    void watchCompositing();
    void followCompositing();
    void cut();

    QWidget& m_window;
    double m_cornerRadius = 18;
    ColorName m_edge = ColorName::windowBackground;
    bool m_isComposited = true;
    int m_selectionEvent = -1;
};

} // namespace velto
