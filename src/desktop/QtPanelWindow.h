// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/FloatingWindow.h"
#include "platform/PanelWindow.h"

#include <functional>
#include <memory>

namespace velto {

/// The panel as a floating window.
class QtPanelWindow final : public PanelWindow {
public:
    using Focus = FloatingWindow::Focus;

    /// `dismiss` runs for Escape, unless the content has used it, and for the loss of a taken focus.
    QtPanelWindow(std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus = Focus::leftAlone);
    ~QtPanelWindow() override;

    [[nodiscard]] bool isVisible() const override;
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;

private:
    std::unique_ptr<FloatingWindow> m_window;
};

} // namespace velto
