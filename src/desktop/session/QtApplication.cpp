// SPDX-License-Identifier: MIT
#include "desktop/session/QtApplication.h"

#include "desktop/x11/Activation.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QWindow>

namespace velto {

void QtApplication::activate()
{
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->isVisible() && !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus))
            bringToFront(*window);
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
