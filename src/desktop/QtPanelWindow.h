// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PanelWindow.h"

#include <functional>
#include <memory>

class QWidget;

namespace velto {

/// Floats a widget above all other windows, on every workspace and in no task bar.
///
/// The keyboard stays with the window that has it. Only while a text field of the content is being edited
/// does the panel take it, and gives it back after. Without a compositing manager the window is opaque and
/// cut to its shape.
class QtPanelWindow final : public PanelWindow {
public:
    enum class Focus {
        leftAlone,
        taken, ///< By showing. Losing it dismisses the panel: for desktops where presses elsewhere can't be seen.
    };

    /// `dismiss` runs for Escape, unless the content has used it, and for the loss of a taken focus.
    QtPanelWindow(std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus = Focus::leftAlone);
    ~QtPanelWindow() override;

    [[nodiscard]] bool isVisible() const override;
    void setFrame(const Rect& frame) override;
    void orderFrontRegardless() override;
    void orderOut() override;

private:
    class Surface;

    std::unique_ptr<Surface> m_surface;
};

} // namespace velto
