// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PanelWindow.h"

namespace velto {

class FakePanelWindow final : public PanelWindow {
public:
    bool isVisible() const override { return visible; }
    Rect currentFrame() const override { return frame; }
    void setFrame(const Rect& newFrame) override
    {
        frame = newFrame;
        ++placements;
    }
    void orderFrontRegardless() override
    {
        visible = true;
        ++fronts;
    }
    void orderOut() override
    {
        visible = false;
        ++outs;
    }
    void makeKey() override { ++keys; }
    void makeKeyIfNeeded() override { ++keysIfNeeded; }

    bool visible = false;
    Rect frame;
    int placements = 0;
    int fronts = 0;
    int outs = 0;
    int keys = 0;         ///< How often it was given the keyboard,
    int keysIfNeeded = 0; ///< and how often only if it needs it.
};

} // namespace velto
