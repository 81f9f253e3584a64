// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "app/Platform.h"
#include "help_about/AboutWindowController.h"
#include "help_about/HelpWindowController.h"
#include "menubar/StatusBarController.h"
#include "platform/RunLoop.h"

#include <chrono>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

AppDelegate::AppDelegate(Platform& platform) : m_platform(platform) { }

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    if (!timerProvider)
        return;
    auto& timer = timerProvider();
    if (!settingsProvider)
        return;
    auto& settings = settingsProvider();

    auto panelController = std::make_unique<TimerPanelController>(
        timer, settings, m_platform.screens, m_platform.eventMonitor, m_platform.makePanel);
    statusBarController = std::make_shared<StatusBarController>(timer, settings, std::move(panelController),
        StatusBarController::Desktop{
            .runLoop = m_platform.runLoop,
            .application = m_platform.application,
            .statusItem = m_platform.makeStatusItem(),
            .aboutController = std::make_unique<AboutWindowController>(m_platform.makeAboutWindow),
            .helpController = std::make_unique<HelpWindowController>(m_platform.makeHelpWindow),
        });

    m_showPanel = m_platform.runLoop.after(400ms, [controller = statusBarController] { controller->showTimer(); });
    m_showWelcome = m_platform.runLoop.after(600ms, [this] {
        HelpWindowController::showWelcomeIfNeeded(
            m_platform.defaults, m_platform.application, m_platform.makeHelpWindow);
    });
}

} // namespace velto
