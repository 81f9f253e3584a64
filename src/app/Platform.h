// SPDX-License-Identifier: MIT
#pragma once

#include "panel/TimerPanelController.h"
#include "platform/StatusItem.h"
#include "platform/Window.h"

#include <functional>
#include <memory>

namespace velto {

class Application;
class KeyValueStore;
class RunLoop;
class SoundLibrary;
class StreamPlayerFactory;

/// Everything the program needs of the outside world, chosen once at start-up.
struct Platform {
    RunLoop& runLoop;
    KeyValueStore& defaults;
    SoundLibrary& sounds;
    StreamPlayerFactory& streamPlayers;
    Screens& screens;
    EventMonitor& eventMonitor;
    Application& application;
    std::function<std::unique_ptr<StatusItem>()> makeStatusItem;
    TimerPanelController::PanelFactory makePanel;
    std::function<std::unique_ptr<Window>()> makeHelpWindow;
    std::function<std::unique_ptr<Window>()> makeAboutWindow;
};

} // namespace velto
