// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Geometry.h"

#include <QRectF>

namespace velto {

// Between Qt's screen coordinates (y downwards) and the program's (y upwards). The bottom left corner of
// the primary screen is the origin of the latter; x is the same in both.

[[nodiscard]] Rect rectFromQt(const QRectF& rect);
[[nodiscard]] QRectF rectToQt(const Rect& rect);

} // namespace velto
