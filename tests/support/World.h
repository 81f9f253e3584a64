// SPDX-License-Identifier: MIT
#pragma once

#include "app/Platform.h"
#include "core/PomodoroTimer.h"
#include "settings/AppSettings.h"
#include "support/FakeApplication.h"
#include "support/FakeEventMonitor.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakePanelWindow.h"
#include "support/FakeRunLoop.h"
#include "support/FakeScreens.h"
#include "support/FakeSoundLibrary.h"
#include "support/FakeStatusItem.h"
#include "support/FakeStreamPlayerFactory.h"
#include "support/FakeWindow.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velto {

/// The outside world made of fakes, with settings and timer in it, and time that passes when a test says so.
///
///     class CountingTest : public testing::Test, protected World { };
///     settings.focusMinutes.set(1);
///     timer().start();
///     tick(60);
///
/// What it makes for the program belongs to the program; the pointers here are to the latest of each kind.
class World {
public:
    World() = default;
    World(const World&) = delete;
    World& operator=(const World&) = delete;
    /// The last player goes later than what a test has put here.
    ~World() { players.onCall = nullptr; }

    /// Made on first use, so that a test can change the settings before.
    PomodoroTimer& timer()
    {
        if (!m_timer)
            m_timer.emplace(settings, runLoop, players);
        return *m_timer;
    }

    void tick(std::int64_t seconds) { runLoop.advance(std::chrono::seconds(seconds)); }

    /// A click on the status item, as the desktop delivers it.
    void click(ClickEvent event)
    {
        application.event = event;
        statusItem->button()->action();
        application.event.reset();
    }

    FakeRunLoop runLoop;
    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
    FakeStreamPlayerFactory players;
    FakeScreens screens;
    FakeEventMonitor eventMonitor;
    FakeApplication application;

    bool statusItemHasButton = true;
    FakeStatusItem* statusItem = nullptr;
    FakePanelWindow* panel = nullptr;
    int statusItemsMade = 0;
    int panelsMade = 0;
    std::vector<std::string> windowsMade;  ///< "help" or "about".
    std::vector<std::string> windowsShown; ///< In the order they came to the front.

    Platform platform{
        .runLoop = runLoop,
        .defaults = store,
        .sounds = sounds,
        .streamPlayers = players,
        .screens = screens,
        .eventMonitor = eventMonitor,
        .application = application,
        .makeStatusItem =
            [this] {
                auto made = std::make_unique<FakeStatusItem>(statusItemHasButton);
                statusItem = made.get();
                ++statusItemsMade;
                return made;
            },
        .makePanel =
            [this](PomodoroTimer&, AppSettings&, Size) {
                auto made = std::make_unique<FakePanelWindow>();
                panel = made.get();
                ++panelsMade;
                return made;
            },
        .makeHelpWindow = [this] { return makeWindow("help"); },
        .makeAboutWindow = [this] { return makeWindow("about"); },
    };

    AppSettings settings{store, sounds};

protected:
    std::optional<PomodoroTimer> m_timer;

private:
    std::unique_ptr<Window> makeWindow(const std::string& name)
    {
        windowsMade.push_back(name);
        return std::make_unique<FakeWindow>([this, name] { windowsShown.push_back(name); });
    }
};

} // namespace velto
