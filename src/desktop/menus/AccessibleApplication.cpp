// SPDX-License-Identifier: MIT
#include "desktop/menus/AccessibleApplication.h"

#include <QApplication>
#include <QMenu>

namespace velto {

namespace {

QMenu* openMenu()
{
    for (auto* window : QApplication::topLevelWidgets())
        if (auto* menu = qobject_cast<QMenu*>(window); menu && menu->isVisible() && !menu->parentWidget())
            return menu;
    return nullptr;
}

QAccessibleInterface* make(const QString& /*className*/, QObject* object)
{
    return object && object == qApp ? new AccessibleApplication : nullptr;
}

} // namespace

void AccessibleApplication::install()
{
    QAccessible::installFactory(make);
}

int AccessibleApplication::childCount() const
{
    return QAccessibleApplication::childCount() + (openMenu() ? 1 : 0);
}

QAccessibleInterface* AccessibleApplication::child(int index) const
{
    auto* menu = openMenu();
    return menu && index == QAccessibleApplication::childCount() ? QAccessible::queryAccessibleInterface(menu)
                                                                 : QAccessibleApplication::child(index);
}

int AccessibleApplication::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* menu = openMenu();
    return menu && child && child->object() == menu ? QAccessibleApplication::childCount()
                                                    : QAccessibleApplication::indexOfChild(child);
}

} // namespace velto
