// SPDX-License-Identifier: MIT
#include "desktop/menus/DBusMenu.h"

#include "style/Symbols.h"
#include "style/Translation.h"

#include <QBuffer>
#include <QDBusError>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace velto {

namespace {

/// Hosts choose the background, light or dark; this shows on both.
const QColor symbolColor(0x80, 0x80, 0x80);
constexpr double symbolSide = 16;
constexpr double symbolRatio = 2;

/// An underscore would mark the letter behind it as an access key.
QString hostLabel(const std::string& title)
{
    return translated("Menu", title).replace(QLatin1Char('_'), QLatin1String("__"));
}

QByteArray png(const Symbol& symbol)
{
    static std::map<std::string, QByteArray> rendered;
    auto& bytes = rendered[symbol.name];
    if (bytes.isEmpty()) {
        QBuffer buffer(&bytes);
        symbolPixmap(QString::fromStdString(symbol.name), symbolSide, symbolColor, symbolRatio).save(&buffer, "PNG");
    }
    return bytes;
}

QVariantMap propertiesOf(const MenuItem& item)
{
    QVariantMap properties{{QStringLiteral("visible"), !item.isHidden}};
    if (item.isSeparator) {
        properties[QStringLiteral("type")] = QStringLiteral("separator");
        return properties;
    }
    properties[QStringLiteral("label")] = hostLabel(item.title);
    properties[QStringLiteral("enabled")] = item.isEnabled;
    if (item.isCheckable || item.isOn) {
        properties[QStringLiteral("toggle-type")] = QStringLiteral("checkmark");
        properties[QStringLiteral("toggle-state")] = item.isOn ? 1 : 0;
    }
    if (item.submenu)
        properties[QStringLiteral("children-display")] = QStringLiteral("submenu");
    if (item.symbol)
        properties[QStringLiteral("icon-data")] = png(*item.symbol);
    return properties;
}

QVariantMap chosen(const QVariantMap& properties, const QStringList& names)
{
    if (names.isEmpty())
        return properties;
    QVariantMap result;
    for (auto property = properties.begin(); property != properties.end(); ++property)
        if (names.contains(property.key()))
            result.insert(property.key(), property.value());
    return result;
}

constexpr qsizetype mostItems = 1'000;
constexpr qsizetype mostCharacters = 256;

bool isTooMuch(const QString& text)
{
    return text.size() > mostCharacters;
}

bool isTooMuch(const QStringList& texts)
{
    return texts.size() > mostItems || std::ranges::any_of(texts, [](const auto& text) { return isTooMuch(text); });
}

bool isTooMuch(const QList<int>& numbers)
{
    return numbers.size() > mostItems;
}

bool isTooMuch(const DBusMenuEvents& events)
{
    return events.size() > mostItems
        || std::ranges::any_of(events, [](const auto& event) { return isTooMuch(event.name); });
}

QString noEntry(int id)
{
    return QStringLiteral("The menu has no entry %1").arg(id);
}

} // namespace

DBusMenu::DBusMenu(QDBusConnection bus, Handlers handlers) : m_bus(std::move(bus)), m_handlers(std::move(handlers))
{
    registerDBusMenuTypes();
    menuDidChange();
    m_bus.registerObject(statusMenuPath, this, QDBusConnection::ExportScriptableContents);
}

DBusMenu::~DBusMenu()
{
    m_bus.unregisterObject(statusMenuPath);
}

void DBusMenu::setMenu(std::shared_ptr<Menu> menu)
{
    m_menu = menu ? std::move(menu) : std::make_shared<Menu>();
    menuDidChange();
}

void DBusMenu::setLeadingItem(std::shared_ptr<MenuItem> item)
{
    m_leadingItem = std::move(item);
    menuDidChange();
}

QString DBusMenu::textDirection() const
{
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

void DBusMenu::menuDidChange()
{
    Nodes nodes;
    auto& root = nodes[0];
    root.properties = {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    if (m_leadingItem)
        root.children += addNodes(nodes, {m_leadingItem});
    root.children += addNodes(nodes, m_menu->items);
    std::erase_if(m_ids, [&](const auto& known) { return !nodes.contains(known.second); });
    nodes.swap(m_nodes);
    announce(nodes);
}

QList<int> DBusMenu::addNodes(Nodes& nodes, const std::vector<std::shared_ptr<MenuItem>>& items)
{
    QList<int> ids;
    for (const auto& item : items) {
        const int id = idOf(item);
        ids.append(id);
        auto& node = nodes[id];
        node.item = item;
        node.properties = propertiesOf(*item);
        if (item->submenu)
            node.children = addNodes(nodes, item->submenu->items);
    }
    return ids;
}

int DBusMenu::idOf(const std::shared_ptr<MenuItem>& item)
{
    auto& id = m_ids[item];
    if (id == 0)
        id = ++m_lastId;
    return id;
}

void DBusMenu::announce(const Nodes& before)
{
    DBusMenuItems updated;
    DBusMenuItemKeysList removed;
    bool sameLayout = before.size() == m_nodes.size();
    for (const auto& [id, now] : m_nodes) {
        const auto known = before.find(id);
        if (known == before.end()) {
            sameLayout = false;
            continue;
        }
        sameLayout = sameLayout && known->second.children == now.children;
        const auto& old = known->second.properties;
        DBusMenuItem changes{id, {}};
        for (auto property = now.properties.begin(); property != now.properties.end(); ++property)
            if (old.value(property.key()) != property.value())
                changes.properties.insert(property.key(), property.value());
        if (!changes.properties.isEmpty())
            updated.append(changes);
        DBusMenuItemKeys gone{id, {}};
        for (auto property = old.begin(); property != old.end(); ++property)
            if (!now.properties.contains(property.key()))
                gone.properties.append(property.key());
        if (!gone.properties.isEmpty())
            removed.append(gone);
    }
    if (!updated.isEmpty() || !removed.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(updated, removed);
    if (!sameLayout)
        Q_EMIT LayoutUpdated(++m_revision, 0);
}

DBusMenuLayout DBusMenu::layoutOf(int id, int depth, const QStringList& propertyNames) const
{
    const auto& node = m_nodes.at(id);
    DBusMenuLayout layout{id, chosen(node.properties, propertyNames), {}};
    if (depth != 0)
        for (const int child : node.children)
            layout.children.append(layoutOf(child, std::max(depth, 0) - 1, propertyNames));
    return layout;
}

void DBusMenu::answer(std::function<QDBusMessage(const QDBusMessage&)> reply)
{
    setDelayedReply(true);
    const bool isTaken
        = m_answers.run([this, question = message(), reply = std::move(reply)] { m_bus.send(reply(question)); });
    refuse(!isTaken);
}

uint DBusMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames, DBusMenuLayout& /*layout*/)
{
    if (refuse(isTooMuch(propertyNames)))
        return {};
    answer([this, parentId, recursionDepth, propertyNames](const QDBusMessage& question) {
        if (!m_nodes.contains(parentId))
            return question.createErrorReply(QDBusError::InvalidArgs, noEntry(parentId));
        return question.createReply(
            {m_revision, QVariant::fromValue(layoutOf(parentId, recursionDepth, propertyNames))});
    });
    return {};
}

DBusMenuItems DBusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames)
{
    if (refuse(isTooMuch(ids) || isTooMuch(propertyNames)))
        return {};
    answer([this, ids, propertyNames](const QDBusMessage& question) {
        DBusMenuItems items;
        const auto add = [&](int id) {
            if (const auto node = m_nodes.find(id); node != m_nodes.end())
                items.append({id, chosen(node->second.properties, propertyNames)});
        };
        if (ids.isEmpty())
            for (const auto& [id, node] : m_nodes)
                add(id);
        else
            std::ranges::for_each(ids, add);
        return question.createReply(QVariant::fromValue(items));
    });
    return {};
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name)
{
    if (refuse(isTooMuch(name)))
        return {};
    const auto node = m_nodes.find(id);
    if (node == m_nodes.end()) {
        refuseUnknown(id);
        return {};
    }
    const auto value = node->second.properties.value(name);
    if (!value.isValid()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("Entry %1 has no property \"%2\"").arg(id).arg(name));
        return {};
    }
    return QDBusVariant(value);
}

void DBusMenu::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/)
{
    if (!refuse(isTooMuch(eventId)) && !handleEvent(id, eventId))
        refuseUnknown(id);
}

QList<int> DBusMenu::EventGroup(const DBusMenuEvents& events)
{
    if (refuse(isTooMuch(events)))
        return {};
    QList<int> unknown;
    for (const auto& event : events)
        if (!handleEvent(event.id, event.name))
            unknown.append(event.id);
    if (!events.isEmpty() && unknown.size() == events.size())
        refuseUnknown(unknown.first());
    return unknown;
}

bool DBusMenu::AboutToShow(int id)
{
    if (!m_nodes.contains(id)) {
        refuseUnknown(id);
        return false;
    }
    return handleAboutToShow(id);
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors)
{
    if (refuse(isTooMuch(ids)))
        return {};
    QList<int> needUpdate;
    for (const int id : ids) {
        if (!m_nodes.contains(id))
            idErrors.append(id);
        else if (handleAboutToShow(id))
            needUpdate.append(id);
    }
    if (!ids.isEmpty() && idErrors.size() == ids.size())
        refuseUnknown(idErrors.first());
    return needUpdate;
}

bool DBusMenu::handleEvent(int id, const QString& name)
{
    const auto node = m_nodes.find(id);
    if (node == m_nodes.end())
        return false;
    if (id == 0) {
        if (name == QLatin1String("opened"))
            m_handlers.opened();
        else if (name == QLatin1String("closed"))
            m_handlers.closed();
    } else if (name == QLatin1String("clicked")) {
        // Later: the host waits for the reply, and the action may take a while.
        QTimer::singleShot(0, this, [item = node->second.item] {
            if (item->action && item->isEnabled && !item->isHidden)
                item->action(*item);
        });
        m_handlers.closed();
    }
    return true;
}

bool DBusMenu::handleAboutToShow(int id)
{
    const auto revision = m_revision;
    if (id == 0) {
        m_handlers.requested();
        if (m_menu->willOpen)
            m_menu->willOpen();
    }
    menuDidChange();
    return m_revision != revision;
}

bool DBusMenu::refuse(bool isTooMuch)
{
    if (isTooMuch)
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("That is more than a menu has a use for"));
    return isTooMuch;
}

void DBusMenu::refuseUnknown(int id)
{
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, noEntry(id));
}

} // namespace velto
