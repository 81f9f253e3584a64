// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Menu.h"

#include <QObject>
#include <QRect>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QWindow;

namespace velto {

class CardMenu;

/// A menu drawn by the program itself.
///
/// Follows the values of the menu while it is open. Takes the keyboard without a window that has the
/// focus, where the X server is the one that gives it. Main thread only.
class PopUpMenu : public QObject {
    Q_OBJECT

public:
    struct Handlers {
        std::function<QWindow*()> opened; ///< Returns the window that has the keyboard meanwhile, if there is one.
        std::function<void()> closed;
    };

    explicit PopUpMenu(Handlers handlers);
    ~PopUpMenu() override;

    void setMenu(std::shared_ptr<Menu> menu) { m_menu = std::move(menu); }
    /// Values in the menu may have changed; an open menu follows.
    void menuDidChange();

    /// Opens the menu, or does nothing while it is open: below `anchor`, above it where the screen ends.
    /// Returns at once. As long as a mouse button is held the menu waits, since the press belongs to
    /// somebody else. `anchor` is in Qt's coordinates.
    void popUp(const QRect& anchor);
    void close();
    [[nodiscard]] bool isOpen() const { return m_shown != nullptr; }

private:
    struct Entry {
        std::shared_ptr<MenuItem> item;
        QAction* action;
    };

    void show();
    void fill(CardMenu& shown, const Menu& menu);
    void chosen(const MenuItem& item);
    void dismiss();

    Handlers m_handlers;
    std::shared_ptr<Menu> m_menu;
    std::unique_ptr<CardMenu> m_shown;
    std::vector<Entry> m_entries;
    QRect m_anchor;
    QTimer m_awaitRelease;
};

} // namespace velto
