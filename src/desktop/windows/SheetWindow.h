// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/windows/FloatingWindow.h"
#include "observation/Subscription.h"

namespace velto {

class Screens;

/// A sheet on the panel: a card that hangs from the panel's top edge and moves with it, within the usable area of the
/// screen. While it is shown the panel takes no clicks and no keys; other windows
/// do. Closed by the window manager it closes its content.
class SheetWindow final : public FloatingWindow {
    Q_OBJECT

public:
    /// `presenter` is any widget in the panel; this belongs to the panel's window too. The size wanted is the
    /// content's size hint. `screens` must outlive this.
    SheetWindow(std::unique_ptr<QWidget> content, QWidget& presenter, Screens& screens, std::function<void()> dismiss,
        Focus focus = sheetFocus());

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeOnPanel();

    QWidget& m_content;
    QWidget& m_panel;
    const Screens& m_screens;
    QSize m_wantedSize;
    Subscription m_screenChanges;
};

} // namespace velto
