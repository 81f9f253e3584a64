// SPDX-License-Identifier: MIT
#pragma once

#include "menubar/StatusMenu.h"
#include "observation/Subscription.h"
#include "platform/OncePerTurn.h"
#include "platform/StatusItem.h"

#include <memory>
#include <vector>

namespace velto {

class TimerPanelController;

/// Posted when the program is launched again: the timer is shown, to be used with the keyboard; no object.
inline constexpr auto statusBarShowTimer = "StatusBarShowTimer";
/// Posted to have the menu opened without a click on the status item; no object.
inline constexpr auto statusBarOpenMenu = "StatusBarOpenMenu";

/// The program's presence in the panel bar: the time as the status item's title, its clicks, its menu.
///
/// Caches nothing: whenever the timer changes, everything is read again in the next turn. Main thread only.
class StatusBarController {
public:
    struct Desktop {
        RunLoop& runLoop;
        Application& application;
        std::unique_ptr<StatusItem> statusItem;
        std::unique_ptr<WindowController> aboutController;
        std::unique_ptr<WindowController> helpController;
    };

    /// Puts the title and the menu in place. All references must outlive this.
    StatusBarController(PomodoroTimer& timer, AppSettings& settings,
        std::unique_ptr<TimerPanelController> panelController, Desktop desktop);
    StatusBarController(const StatusBarController&) = delete;
    StatusBarController& operator=(const StatusBarController&) = delete;
    ~StatusBarController();

    /// The status item was clicked; the application's current event says how.
    void handleStatusItemClick();

    void showTimer();
    void hideTimer();

private:
    void bind();
    void updateTitle();
    void togglePanel();
    void openMenu();
    void openSettings();

    Application& m_application;
    std::unique_ptr<StatusItem> m_statusItem;
    PomodoroTimer& m_timer;
    std::unique_ptr<TimerPanelController> m_panelController;
    StatusMenu m_statusMenu;
    OncePerTurn m_refresh;
    OncePerTurn m_showAtPhaseEnd;
    std::vector<Subscription> m_subscriptions;
};

} // namespace velto
