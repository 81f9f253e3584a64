// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace velto {

/// Has the application speak the first of these languages ("pt-BR", "de") that it can, and read in its direction.
/// Without one it stays English. Before the first text is shown.
void speak(const QStringList& languages);

} // namespace velto
