// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"

#include <functional>
#include <memory>

namespace velto {

class AppSettings;
class PomodoroTimer;
class StatusBarController;
struct Platform;

/// Puts the program on the desktop once launching has finished. Main thread only.
class AppDelegate {
public:
    /// `platform` must outlive this.
    explicit AppDelegate(Platform& platform);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    std::function<PomodoroTimer&()> timerProvider;
    std::function<AppSettings&()> settingsProvider;
    std::shared_ptr<StatusBarController> statusBarController; ///< Null until launched.

    /// Installs the status item and schedules the panel and the welcome. Does nothing while
    /// either provider is missing.
    void applicationDidFinishLaunching();

private:
    Platform& m_platform;
    Subscription m_showPanel;
    Subscription m_showWelcome;
};

} // namespace velto
