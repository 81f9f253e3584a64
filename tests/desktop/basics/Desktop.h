// SPDX-License-Identifier: MIT
#pragma once

#include "TemporaryFolder.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QProcess;

namespace velto {

class OtherWindow;

/// An X server, a session bus and a home for this process alone. To be made before the application.
class Desktop {
public:
    Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop();

    /// The one of this process.
    [[nodiscard]] static Desktop& current();

    [[nodiscard]] const std::filesystem::path& home() const { return m_home.path(); }

    /// Starts a program that ends with this process. Null when there is none of that name.
    QProcess* start(const QString& program, const QStringList& arguments = {});
    /// Runs a program to its end; false when it failed.
    static bool run(const QString& program, const QStringList& arguments);
    void startWindowManager(const QString& program = QStringLiteral("xfwm4"));

    static bool movePointer(int x, int y);
    /// At a place of the root window, in pixels.
    static bool click(int x, int y, int button = 1);

private:
    TemporaryFolder m_home;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    std::vector<std::unique_ptr<OtherWindow>> m_probes;
};

/// Lets events be handled until `condition` holds; false when it never does.
[[nodiscard]] bool eventually(const std::function<bool()>& condition);
/// Lets events be handled for a moment; false when `condition` is broken in it.
[[nodiscard]] bool stays(const std::function<bool()>& condition);

} // namespace velto
