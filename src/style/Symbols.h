// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QPixmap>

class QColor;
class QString;

namespace velto {

/// The symbol `name` in one colour, on a transparent square of `points` a side, drawn anew for each
/// `devicePixelRatio`. Null when there is no symbol of that name.
[[nodiscard]] QPixmap symbolPixmap(
    const QString& name, double points, const QColor& color, double devicePixelRatio = 1);

/// The same for menus: any size, in the colour of text, pale while disabled, white while selected. Draws nothing when
/// there is no symbol of that name.
[[nodiscard]] QIcon symbolIcon(const QString& name);

} // namespace velto
