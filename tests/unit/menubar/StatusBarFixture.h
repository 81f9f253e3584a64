// SPDX-License-Identifier: MIT
#pragma once

#include "help_about/AboutWindowController.h"
#include "help_about/HelpWindowController.h"
#include "menubar/StatusBarController.h"
#include "panel/TimerPanelController.h"
#include "support/MenuText.h"
#include "support/World.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace velto {

/// A status bar controller in a world of fakes. Made on first use, so that a test can change the world before.
class StatusBarFixture : public testing::Test, protected World {
protected:
    using Lines = std::vector<std::string>;

    StatusBarController& controller()
    {
        if (!m_controller) {
            m_controller = std::make_unique<StatusBarController>(World::timer(), settings,
                std::make_unique<TimerPanelController>(
                    World::timer(), settings, platform.screens, platform.eventMonitor, platform.makePanel),
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
        return World::timer();
    }

    FakeStatusItemButton& button()
    {
        controller();
        return *statusItem->button();
    }

    Menu& topMenu()
    {
        controller();
        return *statusItem->menu;
    }

    Lines menu() { return menuText(topMenu()); }

    /// What the user reads once everything waiting has been delivered.
    Lines settledMenu()
    {
        controller();
        runLoop.runTurns();
        return menu();
    }

    void choose(const std::string& path)
    {
        const auto* item = menuItem(topMenu(), path);
        ASSERT_NE(item, nullptr) << path;
        ASSERT_TRUE(item->action) << path;
        item->action(*item);
        runLoop.runTurns();
    }

    std::unique_ptr<StatusBarController> m_controller;
};

} // namespace velto
