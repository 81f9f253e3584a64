// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

#include <functional>
#include <memory>

namespace velto {

class Application;
class KeyValueStore;

/// Owns a window with the usage notes.
class HelpWindowController final : public WindowController {
public:
    using WindowFactory = std::function<std::unique_ptr<Window>()>;

    explicit HelpWindowController(WindowFactory makeWindow);

    Window& panel() override;

    /// Shows the usage notes in a window of their own unless an earlier call did, in this run or
    /// in any before it.
    static void showWelcomeIfNeeded(KeyValueStore& store, Application& application, const WindowFactory& makeWindow);

private:
    WindowFactory m_makeWindow;
    std::unique_ptr<Window> m_panel;
};

} // namespace velto
