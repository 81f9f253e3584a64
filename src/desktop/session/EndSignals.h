// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>

namespace velto {

/// Lets the program end cleanly when it is told to: the first SIGTERM, SIGINT or SIGHUP calls a handler
/// on the main thread, a second one of its kind ends the process at once. Ignored ones stay ignored.
///
/// One per process. A signal that comes after this is gone counts as part of the shutdown under way.
class EndSignals {
public:
    explicit EndSignals(const std::function<void()>& handler);

private:
    QSocketNotifier m_notifier;
};

} // namespace velto
