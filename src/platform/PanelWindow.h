// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Geometry.h"

namespace velto {

/// The floating card: above other windows, on every workspace, never taking the focus by being shown.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setFrame(const Rect& frame) = 0;
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
};

} // namespace velto
