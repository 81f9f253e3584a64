// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

namespace velto {

/// The status to leave with at once, before there is an application: 0 after `--help` or `--version` alone, which are
/// answered on standard output; 1 where there is no display, or a session bus that hangs for 25 s, which one line on
/// standard error says. Absent when the program should start.
[[nodiscard]] std::optional<int> answerBeforeStart(int argc, char* argv[]);

/// 2, after a line on standard error, when Qt has left one of the `arguments` over. The first is the program itself.
[[nodiscard]] std::optional<int> refuseUnknown(const QStringList& arguments);

} // namespace velto
