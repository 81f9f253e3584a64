// SPDX-License-Identifier: MIT
#include "desktop/sound/AudioLog.h"

namespace velto {

Q_LOGGING_CATEGORY(audioLog, "velto.audio", QtFatalMsg)

} // namespace velto
