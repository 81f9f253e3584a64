// SPDX-License-Identifier: MIT
#include "desktop/windows/WindowShape.h"

#include "desktop/x11/X11Desktop.h"
#include "style/ContinuousRect.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

#include <xcb/xfixes.h>

namespace velto {

WindowShape::WindowShape(QWidget& window) : m_window(window)
{
    window.installEventFilter(this);
    if (x11::connection())
        watchCompositing();
}

void WindowShape::setCorners(double radius, ColorName edge)
{
    m_cornerRadius = radius;
    m_edge = edge;
    cut();
}

bool WindowShape::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        cut();
    else if (event->type() == QEvent::Paint && !m_isComposited
        && !isBetweenCorners(static_cast<QPaintEvent*>(event)->region(), m_window.rect(), m_cornerRadius))
        QPainter(&m_window).fillRect(m_window.rect(), color(m_edge, m_window));
    return false;
}

bool WindowShape::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/)
{
    if ((static_cast<const xcb_generic_event_t*>(message)->response_type & 0x7f) == m_selectionEvent)
        followCompositing();
    return false;
}

void WindowShape::watchCompositing()
{
    xcb_connection_t* connection = x11::connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (extension && extension->present) {
        m_selectionEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(connection, static_cast<xcb_window_t>(m_window.winId()),
            x11::atom("_NET_WM_CM_S0"),
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
        qApp->installNativeEventFilter(this);
    }
    followCompositing();
}

void WindowShape::followCompositing()
{
    const bool isComposited = x11::hasCompositingManager();
    if (std::exchange(m_isComposited, isComposited) == isComposited)
        return;
    cut();
    m_window.update();
}

void WindowShape::cut()
{
    if (m_isComposited)
        m_window.clearMask();
    else
        m_window.setMask(QRegion(continuousRoundedRect(m_window.rect(), m_cornerRadius).toFillPolygon().toPolygon()));
}

} // namespace velto
