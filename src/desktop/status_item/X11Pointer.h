// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/StatusAnchor.h"

#include <QRectF>

namespace velto {

/// What the display tells of a click that is being handled.
struct ClickSurroundings {
    ClickPlace place;
    bool controlIsHeld = false;
};

/// `claimed` is what the host says of the place. On a display that is no X server, that is all there is.
[[nodiscard]] ClickSurroundings clickSurroundings(QPoint claimed);

/// A rectangle of the X screen in the toolkit's coordinates. The screen is the one that holds its centre,
/// else the main one.
[[nodiscard]] QRectF toLogical(const QRect& pixels);

} // namespace velto
