// SPDX-License-Identifier: MIT
#include "desktop/windows/SheetPlacement.h"

#include <algorithm>

namespace velto {

Rect placeSheet(const Rect& panel, const Rect& usableArea, Size sheetSize)
{
    const double width = std::min(sheetSize.width, usableArea.width);
    const double height = std::min(sheetSize.height, usableArea.height);
    return {
        std::clamp(panel.midX() - width / 2, usableArea.minX(), usableArea.maxX() - width),
        std::clamp(panel.maxY() - height, usableArea.minY(), usableArea.maxY() - height),
        width,
        height,
    };
}

} // namespace velto
