// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

#include <memory>

namespace velto {

class Bundle;
class Calendar;
class RunLoop;
class Screens;
class Workspace;

// The arguments must outlive the window, even one that is dropped while it is on the screen.

[[nodiscard]] std::unique_ptr<Window> makeHelpWindow(const Screens& screens);
[[nodiscard]] std::unique_ptr<Window> makeAboutWindow(
    const Screens& screens, const Bundle& bundle, const Calendar& calendar, Workspace& workspace, RunLoop& runLoop);

} // namespace velto
