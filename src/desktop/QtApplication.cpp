// SPDX-License-Identifier: MIT
#include "desktop/QtApplication.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

namespace velto {

void QtApplication::activate()
{
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
