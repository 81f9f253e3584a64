// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

namespace velto {

class Application;
class KeyValueStore;

/// Owns a window with the usage notes.
class HelpWindowController final : public WindowController {
public:
    using WindowController::WindowController;

    /// Shows the usage notes in a window of their own unless an earlier call did, in this run or
    /// in any before it.
    static void showWelcomeIfNeeded(KeyValueStore& store, Application& application, const WindowFactory& makeWindow);
};

} // namespace velto
