// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"

namespace velto {

struct Platform;

/// The program: its settings, its timer, its delegate, for the life of the process. Main thread only.
class VeltoApp {
public:
    /// `platform` must outlive this.
    explicit VeltoApp(Platform& platform);

    [[nodiscard]] AppDelegate& appDelegate() { return m_appDelegate; }

private:
    AppSettings m_settings;
    PomodoroTimer m_timer;
    AppDelegate m_appDelegate;
};

} // namespace velto
