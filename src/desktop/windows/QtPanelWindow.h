// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/windows/FloatingWindow.h"
#include "platform/PanelWindow.h"

#include <functional>
#include <memory>

namespace velto {

/// The panel as a floating window.
class QtPanelWindow final : public PanelWindow {
public:
    struct Handlers {
        /// For Escape, unless the content has used it, and for the loss of a taken focus.
        std::function<void()> dismiss;
        /// For the menu key and Shift+F10.
        std::function<void()> openMenu;
    };

    QtPanelWindow(std::unique_ptr<QWidget> content, Handlers handlers, Focus focus = cardFocus());
    ~QtPanelWindow() override;

    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] Rect currentFrame() const override;
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    void makeKey() override;
    void makeKeyIfNeeded() override;

private:
    std::unique_ptr<FloatingWindow> m_window;
};

} // namespace velto
