// SPDX-License-Identifier: MIT
#pragma once

#include "app/Platform.h"
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

#include <memory>
#include <string>
#include <vector>

namespace velto {

/// The outside world, made of fakes. What it makes for the program belongs to the program; the
/// pointers here are to the latest of each kind.
class FakePlatform {
public:
    FakePlatform() = default;
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    /// A click on the status item, as the desktop delivers it.
    void click(ClickEvent event)
    {
        application.event = event;
        statusItem->button()->action();
        application.event.reset();
    }

    FakeRunLoop runLoop;
    FakeKeyValueStore defaults;
    FakeSoundLibrary sounds;
    FakeStreamPlayerFactory streamPlayers;
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
        .defaults = defaults,
        .sounds = sounds,
        .streamPlayers = streamPlayers,
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

private:
    std::unique_ptr<Window> makeWindow(const std::string& name)
    {
        windowsMade.push_back(name);
        return std::make_unique<FakeWindow>([this, name] { windowsShown.push_back(name); });
    }
};

} // namespace velto
