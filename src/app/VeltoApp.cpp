// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"

#include "app/Platform.h"

namespace velto {

VeltoApp::VeltoApp(Platform& platform) :
    m_settings(platform.defaults, platform.sounds),
    m_timer(m_settings, platform.runLoop, platform.streamPlayers),
    m_appDelegate(platform)
{
    m_appDelegate.timerProvider = [this]() -> PomodoroTimer& { return m_timer; };
    m_appDelegate.settingsProvider = [this]() -> AppSettings& { return m_settings; };
}

} // namespace velto
