// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

#include <xcb/xcb.h>

class QWidget;

namespace velto {

/// When a window of the card has the keyboard. Showing it by itself takes it from nobody.
enum class Focus {
    leftAlone, ///< While a text field of the content is being edited.
    whenUsed,  ///< From the use of a control of the content to a press beside the controls.
    taken,     ///< When it is asked for. Losing it to another program dismisses the window: for desktops where
               ///< presses elsewhere can't be seen.
};

/// Of the card itself, on this desktop.
[[nodiscard]] Focus cardFocus();
/// Of a sheet on the card, on this desktop.
[[nodiscard]] Focus sheetFocus();

/// Fetches the keyboard for a window that may have it now, and gives it back to what had it before.
class WindowKeyboard final : public QObject {
    Q_OBJECT

public:
    /// `window` has been created to show without activating. It stands on that of `below`, if there is one, and must
    /// outlive this. `dismiss` runs for the loss of a taken focus.
    WindowKeyboard(QWidget& window, Focus focus, const WindowKeyboard* below, std::function<void()> dismiss);

    /// For the window's first control, or for the one that had it last, until the window is left or hidden.
    void take();
    /// For an open window that the user wants to see. No effect unless its focus is one that is taken.
    void takeAsAskedFor();
    /// Takes it back after another window of the program may have got it. No effect unless its focus is one that is
    /// taken.
    void keep();
    /// Before the window is hidden.
    void leave();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchUse();
    void watchLoss();
    [[nodiscard]] bool isNeededFor(const QWidget* widget) const;
    void setAccepted(bool isAccepted);
    void fetch();
    void claim();
    void activateWidgets();
    void giveBack();
    void leaveToWindowBelow();
    [[nodiscard]] xcb_window_t id() const;

    QWidget& m_window;
    Focus m_focus;
    const WindowKeyboard* m_below;
    std::function<void()> m_dismiss;
    bool m_isAccepted = false;
    xcb_window_t m_previouslyFocused = XCB_WINDOW_NONE;
};

} // namespace velto
