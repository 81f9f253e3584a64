// SPDX-License-Identifier: MIT
#include "desktop/x11/StaleMapFilter.h"

#include "desktop/x11/X11Desktop.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace velto::x11 {

StaleMapFilter::StaleMapFilter()
{
    if (connection())
        qApp->installNativeEventFilter(this);
}

bool StaleMapFilter::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    const auto* event = static_cast<const xcb_map_notify_event_t*>(message);
    if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
        return false;
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [event](const QWindow* window) {
        return window->handle() && window->winId() == event->window && !window->isVisible();
    });
}

} // namespace velto::x11
