// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>

#include <xcb/xcb.h>

class QWidget;

namespace velto {

/// Asks the window manager to keep a window above all others, on every workspace and out of task bars.
///
/// No effect where there is no X11.
class WindowManagerHints final : public QAbstractNativeEventFilter {
public:
    /// `window` must outlive this.
    explicit WindowManagerHints(const QWidget& window);

    /// Before each showing: a window manager forgets what a hidden window was.
    void announce();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    [[nodiscard]] xcb_window_t id() const;
    void demand();
    void followWorkspace(const xcb_property_notify_event_t& change);

    const QWidget& m_window;
    int m_moves = 0; ///< To one workspace, by others, since it was shown.
};

} // namespace velto
