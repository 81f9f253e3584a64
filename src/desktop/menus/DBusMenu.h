// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/menus/DBusMenuTypes.h"
#include "desktop/menus/Throttle.h"
#include "platform/Menu.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>

#include <functional>
#include <map>
#include <memory>

namespace velto {

inline const QString statusMenuPath = QStringLiteral("/MenuBar");

/// A menu as an object on the bus, for panel hosts that draw menus themselves.
///
/// Keeps a picture of the menu as the hosts know it, and tells them the difference when it changes.
/// Entries keep their number for as long as they are in the menu; 0 is the menu itself. However many
/// calls come, the rest of the program gets its turn between the answers. Main thread only.
class DBusMenu : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")

    Q_PROPERTY(uint Version READ version)
    Q_PROPERTY(QString TextDirection READ textDirection)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

public:
    /// What hosts report; not every host reports everything.
    struct Handlers {
        std::function<void()> requested; ///< It may be about to show the menu.
        std::function<void()> opened;
        std::function<void()> closed;
    };

    DBusMenu(QDBusConnection bus, Handlers handlers);
    ~DBusMenu() override;

    void setMenu(std::shared_ptr<Menu> menu);
    /// One more entry above those of the menu; null for none.
    void setLeadingItem(std::shared_ptr<MenuItem> item);
    /// Values in the menu may have changed; hosts hear of those that have.
    void menuDidChange();

    // Calls with lists of more than 1,000 items or texts of more than 256 characters are answered with LimitsExceeded.
public Q_SLOTS:
    Q_SCRIPTABLE uint GetLayout(
        int parentId, int recursionDepth, const QStringList& propertyNames, velto::DBusMenuLayout& layout);
    Q_SCRIPTABLE velto::DBusMenuItems GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& eventId, const QDBusVariant& data, uint timestamp);
    Q_SCRIPTABLE QList<int> EventGroup(const velto::DBusMenuEvents& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors);

Q_SIGNALS:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(
        const velto::DBusMenuItems& updatedProps, const velto::DBusMenuItemKeysList& removedProps);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    struct Node {
        std::shared_ptr<MenuItem> item; ///< Null for the menu itself.
        QVariantMap properties;
        QList<int> children;
    };
    using Nodes = std::map<int, Node>;

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

    QList<int> addNodes(Nodes& nodes, const std::vector<std::shared_ptr<MenuItem>>& items);
    [[nodiscard]] int idOf(const std::shared_ptr<MenuItem>& item);
    void announce(const Nodes& before);
    /// Sends `reply` to the question being handled, perhaps later; the slot's return value is not sent.
    void answer(std::function<QDBusMessage(const QDBusMessage&)> reply);
    [[nodiscard]] DBusMenuLayout layoutOf(int id, int depth, const QStringList& propertyNames) const;
    bool handleEvent(int id, const QString& name);
    bool handleAboutToShow(int id);
    void refuseUnknown(int id);
    /// Answers the call being handled with an error if `isTooMuch`, and says whether it was.
    bool refuse(bool isTooMuch);

    QDBusConnection m_bus;
    Handlers m_handlers;
    std::shared_ptr<Menu> m_menu = std::make_shared<Menu>();
    std::shared_ptr<MenuItem> m_leadingItem;
    Throttle m_answers;
    Nodes m_nodes;
    std::map<std::shared_ptr<MenuItem>, int> m_ids;
    int m_lastId = 0;
    uint m_revision = 1;
};

} // namespace velto
