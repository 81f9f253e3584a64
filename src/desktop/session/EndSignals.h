// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>

namespace velto {

/// Lets the program end well when the system tells it to: the first SIGTERM, SIGINT or SIGHUP calls a handler
/// on the main thread, a second one of its kind ends the process at once. Ignored ones stay ignored.
///
/// Once in a process. What comes after this has gone is taken for a part of the end that goes on.
class EndSignals {
public:
    explicit EndSignals(const std::function<void()>& handler);

private:
    QSocketNotifier m_notifier;
};

} // namespace velto
