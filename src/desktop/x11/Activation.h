// SPDX-License-Identifier: MIT
#pragma once

class QWindow;

namespace velto {

/// Shows a window of this program in front of the others and gives it the keyboard: the user has just asked for it.
void bringToFront(QWindow& window);

} // namespace velto
