// SPDX-License-Identifier: MIT
#include "help_about/AboutWindowController.h"

#include <utility>

namespace velto {

AboutWindowController::AboutWindowController(WindowFactory makeWindow) : m_makeWindow(std::move(makeWindow)) { }

Window& AboutWindowController::panel()
{
    if (!m_panel)
        m_panel = m_makeWindow();
    return *m_panel;
}

} // namespace velto
