// SPDX-License-Identifier: MIT
#include "desktop/session/StartEnvironment.h"

#include <QtGlobal>

namespace velto {

StartEnvironment::StartEnvironment()
{
    // Panels are placed, and presses elsewhere are seen, only on X11; Wayland desktops serve it too.
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        provide("QT_QPA_PLATFORM", "xcb");
    // With shared memory Qt waits for the X server before each frame: three wake-ups where one will do.
    provide("QT_XCB_NO_MITSHM", "1");
}

StartEnvironment::~StartEnvironment()
{
    for (const auto& [name, value] : m_before) {
        if (value)
            qputenv(name, *value);
        else
            qunsetenv(name);
    }
}

void StartEnvironment::provide(const char* name, const char* value)
{
    if (!qEnvironmentVariableIsEmpty(name))
        return;
    m_before.emplace_back(
        name, qEnvironmentVariableIsSet(name) ? std::optional(QByteArray(qgetenv(name))) : std::nullopt);
    qputenv(name, value);
}

} // namespace velto
