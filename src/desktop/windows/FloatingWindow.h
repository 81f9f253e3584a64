// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/windows/SwayPlacement.h"
#include "desktop/windows/WindowKeyboard.h"
#include "desktop/windows/WindowManagerHints.h"
#include "desktop/windows/WindowShape.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace velto {

/// Floats a widget above all other windows, without a frame.
///
/// With another floating window as its parent it stands on that one, and appears after it.
class FloatingWindow : public QWidget {
    Q_OBJECT

public:
    /// `dismiss` runs for Escape, unless the content has used it, for the loss of a taken focus, and when the window
    /// manager closes the window.
    FloatingWindow(
        std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus, QWidget* parent = nullptr);

    /// In points of the whole desktop. Where the compositor alone knows the bar, the window hangs under that.
    void place(const QRect& area);
    /// Does not take the keyboard.
    void orderFront();
    /// Fetches the keyboard for the content's first control, or for the one that had it last; with another
    /// floating window on this one, for that. It goes back as it does after use. No effect while hidden.
    void takeKeyboard();
    /// The user wants to see it now: fetches the keyboard if its focus is one that is taken, or for another
    /// floating window on this one.
    void takeKeyboardIfNeeded();

    void setVisible(bool visible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// By a key that the content has not used.
    void menuRequested();

protected:
    [[nodiscard]] WindowShape& shape() { return m_shape; }

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] FloatingWindow* below() const { return qobject_cast<FloatingWindow*>(parentWidget()); }
    [[nodiscard]] FloatingWindow* sheet() const;

    std::function<void()> m_dismiss;
    bool m_isWanted = false; ///< Visible now, or once the window below is on the screen.
    bool m_isOnScreen = false;
    WindowShape m_shape;
    WindowManagerHints m_hints;
    SwayPlacement m_sway;
    WindowKeyboard m_keyboard;
};

} // namespace velto
