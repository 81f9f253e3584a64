// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace velto {

/// "velto.audio": what happens to sounds and streams. Silent unless the user asks for it, for
/// example with QT_LOGGING_RULES="velto.audio=true".
Q_DECLARE_LOGGING_CATEGORY(audioLog)

} // namespace velto
