// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

namespace velto {

/// Says whether a window fills the main screen, so that what stands above others is in its way.
///
/// On X11 that is the window with the keyboard, if it is full screen there; it goes on to fill the main screen while
/// the keyboard is on another. GNOME on Wayland shows other programs' windows to nobody, but puts docks below ordinary
/// windows as long as the screen is filled: two unseen windows of ours tell by their order. Main thread only.
class FullScreenWatch final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    FullScreenWatch();
    ~FullScreenWatch() override;

    [[nodiscard]] bool isFilled() const { return m_isFilled; }

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

signals:
    void changed();

private:
    [[nodiscard]] bool dockIsLowered() const;
    [[nodiscard]] bool aWindowFillsTheMainScreen();
    void look();

    xcb_window_t m_dock = XCB_WINDOW_NONE; ///< Only on GNOME.
    xcb_window_t m_ordinary = XCB_WINDOW_NONE;
    xcb_window_t m_active = XCB_WINDOW_NONE;  ///< Of another program.
    xcb_window_t m_filling = XCB_WINDOW_NONE; ///< The last one there that filled the main screen.
    bool m_activeIsFullScreen = false;        ///< On whichever screen.
    bool m_isFilled = false;
};

} // namespace velto
