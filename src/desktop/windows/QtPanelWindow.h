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
    using Focus = FloatingWindow::Focus;

    struct Handlers {
        /// For Escape, unless the content has used it, and for the loss of a taken focus.
        std::function<void()> dismiss;
        /// For the menu key and Shift+F10.
        std::function<void()> openMenu;
        /// Whether it is shown for a click of the user.
        std::function<bool()> isAskedFor = [] { return false; };
    };

    QtPanelWindow(std::unique_ptr<QWidget> content, Handlers handlers, Focus focus = Focus::leftAlone);
    ~QtPanelWindow() override;

    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] Rect currentFrame() const override;
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    void makeKey() override;

private:
    std::function<bool()> m_isAskedFor;
    std::unique_ptr<FloatingWindow> m_window;
};

} // namespace velto
