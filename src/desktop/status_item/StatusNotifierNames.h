// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velto {

inline const QString statusNotifierWatcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
inline const QString statusNotifierWatcherInterface = statusNotifierWatcherService;
inline const QString statusNotifierWatcherPath = QStringLiteral("/StatusNotifierWatcher");
inline const QString statusNotifierItemPath = QStringLiteral("/StatusNotifierItem");

} // namespace velto
