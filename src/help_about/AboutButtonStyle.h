// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;
class QString;
class QWidget;

namespace velto {

/// How the link buttons of the about window are drawn.
struct AboutButtonStyle {
    [[nodiscard]] static QSize size(const QString& title);

    /// Fills `button`, dimmed and a little smaller while `isPressed`.
    static void draw(QPainter& painter, const QWidget& button, const QString& title, bool isPressed);
};

} // namespace velto
