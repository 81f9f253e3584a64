// SPDX-License-Identifier: MIT
#include "desktop/session/QtApplication.h"

#include "desktop/x11/X11Desktop.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QWidget>
#include <qpa/qplatformnativeinterface.h>

#include <cstdint>

namespace velto {

namespace {

/// A window manager lets a window to the front when the user acted in its program after acting in the one
/// that has the focus. A click on the status item and the launch itself arrive without their time, so this
/// takes the present one.
void noteUserAction()
{
    auto* screen = QGuiApplication::primaryScreen();
    if (!x11::connection() || !screen)
        return;
    auto* native = QGuiApplication::platformNativeInterface();
    using SetTime = void (*)(QScreen*, xcb_timestamp_t);
    const auto setTime = reinterpret_cast<SetTime>(
        reinterpret_cast<void (*)()>(native->nativeResourceFunctionForScreen("setapptime")));
    const auto now = reinterpret_cast<std::uintptr_t>(native->nativeResourceForScreen("gettimestamp", screen));
    if (setTime)
        setTime(screen, static_cast<xcb_timestamp_t>(now));
}

} // namespace

void QtApplication::activate()
{
    noteUserAction();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus))
            continue;
        window->raise();
        window->activateWindow();
    }
}

void QtApplication::terminate()
{
    QCoreApplication::exit(0);
}

std::optional<ClickEvent> QtApplication::currentEvent() const
{
    return m_currentEvent;
}

void QtApplication::dispatch(ClickEvent event, const std::function<void()>& action)
{
    const QScopedValueRollback rollback(m_currentEvent, std::optional{event});
    action();
}

} // namespace velto
