// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Geometry.h"

namespace velto {

/// Where a sheet hangs on the panel: centred under its top edge, pulled inside the usable area and
/// made smaller where that is smaller. Points, origin bottom left.
[[nodiscard]] Rect placeSheet(const Rect& panel, const Rect& usableArea, Size sheetSize);

} // namespace velto
