// SPDX-License-Identifier: MIT
#pragma once

#include "Process.h"

#include <QTemporaryDir>

namespace velto {

/// A sound server of the test's own, to which this process and its children talk from now on. What
/// is played goes nowhere, but can be recorded.
class SoundServer {
public:
    SoundServer();
    ~SoundServer() { kill(); }

    /// Returns once it takes connections.
    void start();
    void kill();
    /// Alive, but answering nobody.
    void freeze();
    void thaw();

    /// What `pactl list WHAT` says.
    [[nodiscard]] QString list(const QString& what) const;

private:
    [[nodiscard]] QString ask(const QString& command) const;

    QTemporaryDir m_folder;
    std::unique_ptr<QProcess> m_process;
};

} // namespace velto
