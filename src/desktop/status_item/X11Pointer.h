// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/StatusAnchor.h"
#include "desktop/x11/X11Desktop.h"

namespace velto {

/// The panel bar under the pointer, in pixels: a dock window, or the edge of the screen that is kept free of windows,
/// since some desktops draw their bars without a window. Absent elsewhere.
[[nodiscard]] std::optional<QRect> barAt(const x11::Pointer& pointer);

/// What the display tells of a click that is being handled.
struct ClickSurroundings {
    ClickPlace place;
    bool controlIsHeld = false;
};

/// `claimed` is what the host says of the place. Where there is no X server for the whole screen, that is all there is:
/// `hostTellsPlace` says what it is worth there.
[[nodiscard]] ClickSurroundings clickSurroundings(QPoint claimed, bool hostTellsPlace);

} // namespace velto
