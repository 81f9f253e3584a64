// SPDX-License-Identifier: MIT
#include "help_about/HelpWindowController.h"

#include "platform/Application.h"
#include "platform/KeyValueStore.h"

namespace velto {

namespace {
constexpr auto launchedBeforeKey = "hasLaunchedBefore";
}

void HelpWindowController::showWelcomeIfNeeded(
    KeyValueStore& store, Application& application, const WindowFactory& makeWindow)
{
    if (store.value<bool>(launchedBeforeKey).value_or(false))
        return;
    // Before anything is shown: a process that ends while the window is open has still welcomed.
    store.set(launchedBeforeKey, true);

    HelpWindowController welcome{makeWindow};
    application.activate();
    welcome.panel().makeKeyAndOrderFront();
}

} // namespace velto
