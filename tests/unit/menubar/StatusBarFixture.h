// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroTimer.h"
#include "help_about/AboutWindowController.h"
#include "help_about/HelpWindowController.h"
#include "menubar/StatusBarController.h"
#include "panel/TimerPanelController.h"
#include "settings/AppSettings.h"
#include "support/FakePlatform.h"
#include "support/MenuText.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace velto {

/// A status bar controller in a world of fakes. Made on first use, so that a test can change the world before.
class StatusBarFixture : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    StatusBarController& controller()
    {
        if (!m_controller) {
            m_timer = std::make_unique<PomodoroTimer>(settings, world.runLoop, world.streamPlayers);
            const auto& platform = world.platform;
            m_controller = std::make_unique<StatusBarController>(*m_timer, settings,
                std::make_unique<TimerPanelController>(
                    *m_timer, settings, platform.screens, platform.eventMonitor, platform.makePanel),
                StatusBarController::Desktop{
                    .runLoop = platform.runLoop,
                    .application = platform.application,
                    .statusItem = platform.makeStatusItem(),
                    .aboutController = std::make_unique<AboutWindowController>(platform.makeAboutWindow),
                    .helpController = std::make_unique<HelpWindowController>(platform.makeHelpWindow),
                });
        }
        return *m_controller;
    }

    PomodoroTimer& timer()
    {
        controller();
        return *m_timer;
    }

    FakeStatusItemButton& button()
    {
        controller();
        return *world.statusItem->button();
    }

    Lines menu() { return menuText(*controller().statusMenu().menu()); }

    /// What the user reads once everything waiting has been delivered.
    Lines settledMenu()
    {
        controller();
        world.runLoop.runTurns();
        return menu();
    }

    void choose(const std::string& path)
    {
        const auto* item = menuItem(*controller().statusMenu().menu(), path);
        ASSERT_NE(item, nullptr) << path;
        ASSERT_TRUE(item->action) << path;
        item->action(*item);
        world.runLoop.runTurns();
    }

    void tick(std::int64_t seconds) { world.runLoop.advance(std::chrono::seconds(seconds)); }

    FakePlatform world;
    AppSettings settings{world.defaults, world.sounds};
    std::unique_ptr<PomodoroTimer> m_timer;
    std::unique_ptr<StatusBarController> m_controller;
};

} // namespace velto
