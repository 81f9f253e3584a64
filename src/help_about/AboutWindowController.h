// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Window.h"

namespace velto {

/// Owns the window that says what the program is.
class AboutWindowController final : public WindowController {
public:
    using WindowController::WindowController;
};

} // namespace velto
