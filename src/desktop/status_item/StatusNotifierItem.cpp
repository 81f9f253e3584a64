// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusNotifierItem.h"

#include "desktop/menus/DBusMenu.h"
#include "desktop/status_item/StatusNotifierNames.h"
#include "desktop/x11/X11Desktop.h"

#include <QDBusMessage>
#include <QDBusMetaType>

#include <algorithm>
#include <iterator>
#include <utility>

namespace velto {

namespace {

constexpr qsizetype longestToken = 256;

} // namespace

StatusNotifierItem::StatusNotifierItem(QDBusConnection bus, ClickHandler onClick) :
    m_bus(std::move(bus)),
    m_onClick(std::move(onClick))
{
    qDBusRegisterMetaType<DBusPicture>();
    qDBusRegisterMetaType<DBusPictures>();
    qDBusRegisterMetaType<DBusToolTip>();
    m_bus.registerObject(statusNotifierItemPath, this, QDBusConnection::ExportScriptableContents);
}

StatusNotifierItem::~StatusNotifierItem()
{
    m_bus.unregisterObject(statusNotifierItemPath);
}

void StatusNotifierItem::registerWithWatcher()
{
    auto message = QDBusMessage::createMethodCall(statusNotifierWatcherService, statusNotifierWatcherPath,
        statusNotifierWatcherInterface, QStringLiteral("RegisterStatusNotifierItem"));
    message.setArguments({m_bus.baseService()});
    m_bus.send(message);
}

void StatusNotifierItem::setToolTip(const QString& text)
{
    if (m_toolTip.title == text)
        return;
    m_toolTip.title = text;
    Q_EMIT NewToolTip();
}

void StatusNotifierItem::setLabel(const QString& text, bool announced)
{
    if (m_label == text)
        return;
    m_label = text;
    if (announced)
        Q_EMIT XAyatanaNewLabel(m_label, labelGuide());
}

void StatusNotifierItem::setPictures(const QList<QImage>& pictures)
{
    DBusPictures sent;
    std::ranges::transform(pictures, std::back_inserter(sent), dbusPicture);
    if (sent == m_pictures)
        return;
    m_pictures = std::move(sent);
    Q_EMIT NewIcon();
}

void StatusNotifierItem::Activate(int x, int y)
{
    m_onClick(ClickEvent::Kind::leftMouseUp, {x, y});
}

void StatusNotifierItem::SecondaryActivate(int x, int y)
{
    m_onClick(ClickEvent::Kind::otherMouseUp, {x, y});
}

void StatusNotifierItem::ContextMenu(int x, int y)
{
    m_onClick(ClickEvent::Kind::rightMouseUp, {x, y});
}

void StatusNotifierItem::ProvideXdgActivationToken(const QString& token)
{
    if (token.size() > longestToken)
        sendErrorReply(QDBusError::LimitsExceeded, QStringLiteral("No token is that long"));
    else if (x11::connection())
        x11::endStartup(token.toStdString());
}

void StatusNotifierItem::Scroll(int /*delta*/, const QString& /*orientation*/) { }

QDBusObjectPath StatusNotifierItem::menu() const
{
    return QDBusObjectPath(statusMenuPath);
}

} // namespace velto
