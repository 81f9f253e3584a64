// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QTest>

#include <chrono>
#include <memory>

namespace velto {

/// A program that dies with this object, and with the test.
[[nodiscard]] std::unique_ptr<QProcess> startProcess(const QString& program, const QStringList& arguments);

/// Lets the event loop run until `condition` holds. False if that takes longer than any machine should.
template <class Condition>
[[nodiscard]] bool eventually(Condition condition, std::chrono::milliseconds timeout = std::chrono::seconds(40))
{
    return QTest::qWaitFor(condition, static_cast<int>(timeout.count()));
}

} // namespace velto
