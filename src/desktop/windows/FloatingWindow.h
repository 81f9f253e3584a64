// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"

#include <QAbstractNativeEventFilter>
#include <QWidget>

#include <functional>
#include <memory>

#include <xcb/xcb.h>

namespace velto {

/// Floats a widget above all other windows, on every workspace and in no task bar.
///
/// Without a compositing manager the window is opaque and cut to its shape.
class FloatingWindow : public QWidget, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// When it has the keyboard without `takeKeyboard()`. Showing it by itself takes it from nobody.
    enum class Focus {
        leftAlone, ///< While a text field of the content is being edited.
        whenUsed,  ///< From the use of a control of the content to a press beside the controls.
        taken,     ///< When it is asked for. Losing it to another program dismisses the window: for desktops where
                   ///< presses elsewhere can't be seen.
    };

    /// `dismiss` runs for Escape, unless the content has used it, and for the loss of a taken focus.
    FloatingWindow(
        std::unique_ptr<QWidget> content, std::function<void()> dismiss, Focus focus, QWidget* parent = nullptr);

    /// The corners of the content and the colour of its edge, unless they are those of a card. Pixels that the
    /// edge covers in part get its colour where they can't be translucent.
    void setCorners(double radius, ColorName edge);
    /// `isAskedFor`: the user wants to see it now; else it is shown by itself.
    void orderFront(bool isAskedFor);

    /// Fetches the keyboard for the content's first control, or for the one that had it last; with another
    /// floating window on this one, for that. It goes back as it does after use. No effect while hidden.
    void takeKeyboard();

    void setVisible(bool visible) override;
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

signals:
    /// By a key, and the content had no menu to show.
    void menuRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchUse();
    void watchLoss();
    [[nodiscard]] FloatingWindow* shownSheet() const;
    [[nodiscard]] bool needsKeyboard(const QWidget* widget) const;
    void setAcceptsFocus(bool accepts);
    void fetchFocus();
    void claimFocus();
    void activateWidgets();
    void returnFocus();
    void leaveFocusToParent();
    void announceState();
    void demandState();
    void followWorkspace(const xcb_property_notify_event_t& change);
    void watchCompositing();
    void followCompositing();
    void followShape();

    std::function<void()> m_dismiss;
    Focus m_focus;
    double m_cornerRadius = 18;
    ColorName m_edge = ColorName::windowBackground;
    bool m_acceptsFocus = false;
    bool m_isComposited = true;
    int m_selectionEvent = -1;
    int m_moves = 0; ///< To one workspace, by others, since it was shown.
    xcb_window_t m_previouslyFocused = XCB_WINDOW_NONE;
};

} // namespace velto
