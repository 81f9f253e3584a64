// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Geometry.h"

namespace velto {

/// The floating card: above other windows, on every workspace. Showing it never takes the keyboard.
class PanelWindow {
public:
    virtual ~PanelWindow() = default;

    [[nodiscard]] virtual bool isVisible() const = 0;
    /// Where it stands, however the screens have changed since it was put there.
    [[nodiscard]] virtual Rect currentFrame() const = 0;
    virtual void setFrame(const Rect& frame) = 0;
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    /// Gives it the keyboard, or the sheet on it while there is one, until it is left or hidden. What had the
    /// keyboard then has it again. No effect while hidden.
    virtual void makeKey() = 0;
    /// The user asks to see it. Gives the keyboard to the sheet on it while there is one, and to itself where only the
    /// loss of that says that the user has gone elsewhere.
    virtual void makeKeyIfNeeded() = 0;
};

} // namespace velto
