// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <QTimer>

#include <functional>

#include <xcb/xcb.h>

class QWidget;

namespace velto {

/// When a window of the card has the keyboard. Merely showing it takes the keyboard from nobody.
enum class Focus {
    leftAlone, ///< While a text field of the content is being edited.
    whenUsed,  ///< From the use of a control of the content to a press beside the controls.
    taken,     ///< From when it is asked for or pressed to when it is hidden. Losing it to another program dismisses
               ///< the window: for desktops where presses elsewhere can't be seen.
};

/// Of the card itself, on this desktop.
[[nodiscard]] Focus cardFocus();
/// Of a sheet on the card, on this desktop.
[[nodiscard]] Focus sheetFocus();

/// Fetches the keyboard for a window when it may have it, and gives it back to whatever had it before.
class WindowKeyboard final : public QObject {
    Q_OBJECT

public:
    /// `window` has been created to show without activating. It stands on that of `below`, if there is one, and must
    /// outlive this. `dismiss` runs for the loss of a taken focus.
    WindowKeyboard(QWidget& window, Focus focus, WindowKeyboard* below, std::function<void()> dismiss);

    /// For the window's first control, or for the one that had it last, until the window is left or hidden.
    void take();
    /// The user wants to see the window. No effect unless its focus is one that is taken.
    void takeAsAskedFor();
    /// Takes it back after another window of the program may have got it. No effect unless its focus is one that is
    /// taken.
    void keep();
    /// The window is on the screen now and can get the keyboard.
    void arrive();
    /// Before the window is hidden.
    void leave();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchUse();
    void watchLoss();
    void judgeLoss();
    [[nodiscard]] bool isNeededFor(const QWidget* widget) const;
    void setAccepted(bool isAccepted);
    void announce();
    void fetch();
    void claim();
    void giveBack();
    [[nodiscard]] xcb_window_t id() const;

    QWidget& m_window;
    Focus m_focus;
    WindowKeyboard* m_below;
    std::function<void()> m_dismiss;
    bool m_isAccepted = false;
    bool m_isOnScreen = false;
    bool m_isWanted = false;    ///< As soon as the window is on the screen.
    QTimer m_judgement;         ///< Of a loss that may only be a moment between two windows.
    QDeadlineTimer m_givenBack; ///< By a window above. Until then it may be passed on.
    xcb_window_t m_previouslyFocused = XCB_WINDOW_NONE;
};

} // namespace velto
