// SPDX-License-Identifier: MIT
#include "desktop/menus/PopUpMenu.h"

#include "desktop/menus/AccessibleApplication.h"
#include "desktop/x11/Pixels.h"
#include "desktop/x11/X11Desktop.h"
#include "style/CardMenu.h"
#include "style/Symbols.h"
#include "style/Translation.h"

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <utility>

namespace velto {

using namespace std::chrono_literals;

namespace {

void apply(QAction& action, const MenuItem& item)
{
    action.setVisible(!item.isHidden);
    if (item.isSeparator)
        return;
    action.setText(translated("Menu", item.title).replace(QLatin1Char('&'), QLatin1String("&&")));
    action.setEnabled(item.isEnabled);
    action.setCheckable(item.isCheckable || item.isOn);
    action.setChecked(item.isOn);
}

QPoint placeMenu(const QSize& size, const QRect& anchor)
{
    const auto* screen = screenAt(anchor.center());
    const auto usable = screen ? screen->availableGeometry() : QRect(QPoint(), size);
    const int below = anchor.bottom() + 1;
    const int y = below + size.height() <= usable.bottom() + 1 ? below : anchor.top() - size.height();
    const int x = QGuiApplication::isRightToLeft() ? anchor.right() + 1 - size.width() : anchor.left();
    return {std::max(std::min(x, usable.right() + 1 - size.width()), usable.left()), std::max(y, usable.top())};
}

} // namespace

PopUpMenu::PopUpMenu(Handlers handlers) : m_handlers(std::move(handlers))
{
    AccessibleApplication::install();
    m_awaitRelease.setInterval(10ms);
    connect(&m_awaitRelease, &QTimer::timeout, this, [this] {
        if (!x11::mouseIsPressed())
            show();
    });
}

PopUpMenu::~PopUpMenu() = default;

void PopUpMenu::menuDidChange()
{
    for (const auto& entry : m_entries)
        apply(*entry.action, *entry.item);
}

void PopUpMenu::popUp(const QRect& anchor)
{
    if (isOpen() || !m_menu)
        return;
    m_anchor = anchor;
    if (x11::mouseIsPressed())
        m_awaitRelease.start();
    else
        show();
}

void PopUpMenu::close()
{
    if (m_shown)
        m_shown->close();
}

void PopUpMenu::show()
{
    m_awaitRelease.stop();
    if (m_menu->willOpen)
        m_menu->willOpen();
    const bool isCut = x11::connection() && !x11::hasCompositingManager();
    m_shown = std::make_unique<CardMenu>(isCut);
    fill(*m_shown, *m_menu);
    connect(m_shown.get(), &QMenu::aboutToHide, this, &PopUpMenu::dismiss);
    // Without one, Qt names a window that window managers do not know.
    m_shown->winId();
    m_shown->windowHandle()->setTransientParent(m_handlers.opened());
    m_shown->popup(placeMenu(m_shown->sizeHint(), m_anchor));
}

void PopUpMenu::fill(CardMenu& shown, const Menu& menu)
{
    for (const auto& item : menu.items) {
        QAction* action = nullptr;
        if (item->submenu) {
            auto* submenu = shown.makeSubmenu();
            fill(*submenu, *item->submenu);
            action = shown.addMenu(submenu);
        } else {
            action = shown.addAction(QString());
            action->setSeparator(item->isSeparator);
            // Later: the menu is still on its way out.
            connect(
                action, &QAction::triggered, this, [this, item] { chosen(*item); }, Qt::QueuedConnection);
        }
        if (item->symbol)
            action->setIcon(symbolIcon(QString::fromStdString(item->symbol->name)));
        apply(*action, *item);
        m_entries.push_back({item, action});
    }
}

void PopUpMenu::chosen(const MenuItem& item)
{
    close(); // Chosen by assistive technology, it is still open.
    if (item.action)
        item.action(item);
}

void PopUpMenu::dismiss()
{
    if (!m_shown)
        return;
    m_entries.clear();
    m_shown.release()->deleteLater();
    m_handlers.closed();
}

} // namespace velto
