// SPDX-License-Identifier: MIT
#include "desktop/x11/Activation.h"

#include "desktop/x11/X11Desktop.h"

#include <QWindow>

namespace velto {

void bringToFront(QWindow& window)
{
    window.raise();
    if (x11::connection())
        x11::activate(static_cast<xcb_window_t>(window.winId()));
    else
        window.requestActivate();
}

} // namespace velto
