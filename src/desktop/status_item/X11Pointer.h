// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/StatusAnchor.h"
#include "desktop/x11/X11Desktop.h"

namespace velto {

/// The panel bar under the pointer, in pixels: a dock window, or the edge of the screen that is kept free of windows,
/// since some desktops draw their bars without a window. Absent elsewhere.
[[nodiscard]] std::optional<QRect> barAt(const x11::Pointer& pointer);

/// What the display knows about the click being handled.
struct ClickSurroundings {
    ClickPlace place;
    bool controlIsHeld = false;
};

/// `claimed` is the place that the host reports. Without an X server for the whole screen there is nothing else:
/// `hostTellsPlace` says whether it can be trusted there.
[[nodiscard]] ClickSurroundings clickSurroundings(QPoint claimed, bool hostTellsPlace);

} // namespace velto
