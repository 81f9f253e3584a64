// SPDX-License-Identifier: MIT
#include "desktop/menus/DBusMenu.h"
#include "desktop/status_item/StatusNotifierItem.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusServer>
#include <QElapsedTimer>
#include <QEventLoop>

#include <cstdlib>
#include <iostream>
#include <limits>
#include <memory>

namespace {

using namespace velto;

constexpr int patience = 5000; // ms

void require(bool isTrue, const char* what)
{
    if (isTrue)
        return;
    std::cerr << what << std::endl;
    std::abort();
}

void waitUntil(const auto& condition, const char* what)
{
    QElapsedTimer time;
    time.start();
    while (!condition()) {
        require(time.elapsed() < patience, what);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    }
}

std::shared_ptr<MenuItem> makeItem(const char* title)
{
    auto item = std::make_shared<MenuItem>();
    item->title = title;
    item->action = [](const MenuItem&) {};
    return item;
}

/// A menu and an item, and a host that calls them over a connection of its own.
class Neighbours {
public:
    Neighbours()
    {
        QDBusConnection ours{QString()};
        bool isConnected = false;
        m_server.setAnonymousAuthenticationAllowed(true);
        QObject::connect(&m_server, &QDBusServer::newConnection, [&](const QDBusConnection& connection) {
            ours = connection;
            isConnected = true;
        });
        m_host = std::make_unique<QDBusConnection>(
            QDBusConnection::connectToPeer(m_server.address(), QStringLiteral("host")));
        waitUntil([&] { return isConnected; }, "no connection");

        m_menu = std::make_unique<DBusMenu>(ours, DBusMenu::Handlers{[] {}, [] {}, [] {}});
        m_item = std::make_unique<StatusNotifierItem>(ours, [](ClickEvent::Kind, QPoint) {});
        auto menu = std::make_shared<Menu>();
        auto parent = makeItem("Durations");
        parent->submenu = std::make_shared<Menu>();
        parent->submenu->items = {makeItem("15 minutes"), makeItem("20 minutes")};
        menu->items = {makeItem("Start"), parent, std::make_shared<MenuItem>()};
        menu->items.back()->isSeparator = true;
        m_menu->setMenu(menu);
    }

    QDBusMessage call(const char* path, const char* interface, const char* method, const QVariantList& arguments)
    {
        auto message = QDBusMessage::createMethodCall(
            QString(), QString::fromLatin1(path), QString::fromLatin1(interface), QString::fromLatin1(method));
        message.setArguments(arguments);
        const QDBusPendingReply<> answer = m_host->asyncCall(message);
        waitUntil([&] { return answer.isFinished(); }, "no answer");
        return answer.reply();
    }

    QDBusMessage menu(const char* method, const QVariantList& arguments)
    {
        return call("/MenuBar", "com.canonical.dbusmenu", method, arguments);
    }

private:
    QDBusServer m_server{QStringLiteral("unix:tmpdir=/tmp")};
    std::unique_ptr<QDBusConnection> m_host;
    std::unique_ptr<DBusMenu> m_menu;
    std::unique_ptr<StatusNotifierItem> m_item;
};

/// Arguments of calls, of any size.
class Arguments {
public:
    Arguments(const std::uint8_t* data, std::size_t size) : m_data(data, size) { }

    bool isEmpty() { return m_data.remaining_bytes() == 0; }
    int choice(int most) { return m_data.ConsumeIntegralInRange(0, most); }

    int id()
    {
        constexpr int least = std::numeric_limits<int>::min();
        return m_data.ConsumeBool() ? choice(8) : m_data.PickValueInArray({least, -1, 1'000, -least - 1, least + 1});
    }

    QString text()
    {
        const auto piece = m_data.ConsumeRandomLengthString(16);
        auto text = m_data.ConsumeBool() ? QString::fromLatin1(m_data.PickValueInArray(
                        {"clicked", "opened", "closed", "hovered", "label", "visible", "icon-data"}))
                                         : QString::fromStdString(piece).remove(QChar(0));
        if (m_data.ConsumeProbability<double>() > 0.8)
            text = text.repeated(choice(2'000));
        isTooMuch |= text.size() > 256;
        return text;
    }

    template <class T>
    QList<T> list(T (Arguments::*next)())
    {
        QList<T> some;
        for (int count = choice(4); count > 0; --count)
            some.append((this->*next)());
        QList<T> list = some;
        if (!some.isEmpty() && m_data.ConsumeProbability<double>() > 0.8)
            for (int count = choice(600); count > 0; --count)
                list += some;
        isTooMuch |= list.size() > 1'000;
        return list;
    }

    QVariant data()
    {
        QVariant value = choice(1) ? QVariant(id()) : QVariant(QString(choice(100'000), QLatin1Char('a')));
        for (int depth = choice(20); depth > 0; --depth)
            value = QVariant::fromValue(QDBusVariant(value));
        return QVariant::fromValue(QDBusVariant(value));
    }

    DBusMenuEvent event()
    {
        const int number = id();
        return {number, text(), data().value<QDBusVariant>(), static_cast<uint>(id())};
    }

    bool isTooMuch = false; ///< One of those so far was larger than any host has reason to send.

private:
    FuzzedDataProvider m_data;
};

Neighbours& neighbours()
{
    static int count = 1;
    static char name[] = "fuzzer";
    static char* names[] = {name, nullptr};
    static QApplication application(count, names);
    static Neighbours theOnes;
    return theOnes;
}

QDBusMessage callMenu(int method, Arguments& arguments)
{
    auto& menu = neighbours();
    QVariantList list;
    switch (method) {
    case 0:
        list << arguments.id() << arguments.id() << QStringList(arguments.list(&Arguments::text));
        return menu.menu("GetLayout", list);
    case 1:
        list << QVariant::fromValue(arguments.list(&Arguments::id)) << QStringList(arguments.list(&Arguments::text));
        return menu.menu("GetGroupProperties", list);
    case 2:
        list << arguments.id() << arguments.text();
        return menu.menu("GetProperty", list);
    case 3:
        list << arguments.id() << arguments.text() << arguments.data() << static_cast<uint>(arguments.id());
        return menu.menu("Event", list);
    case 4:
        return menu.menu("EventGroup", {QVariant::fromValue(arguments.list(&Arguments::event))});
    case 5:
        return menu.menu("AboutToShowGroup", {QVariant::fromValue(arguments.list(&Arguments::id))});
    default:
        return menu.call(
            "/StatusNotifierItem", "org.kde.StatusNotifierItem", "ProvideXdgActivationToken", {arguments.text()});
    }
}

} // namespace

/// Every call is answered, an oversized one by an error, and the menu is what it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto& menu = neighbours();
    static const auto wholeMenu = menu.menu("GetLayout", {0, -1, QStringList()}).arguments().value(1);
    const auto expected = qdbus_cast<DBusMenuLayout>(wholeMenu);

    Arguments arguments{data, size};
    while (!arguments.isEmpty()) {
        arguments.isTooMuch = false;
        const auto answer = callMenu(arguments.choice(6), arguments);
        const bool isRefused = answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.LimitsExceeded");
        require(isRefused == arguments.isTooMuch, "the size of a call is judged wrongly");
    }

    const auto now = qdbus_cast<DBusMenuLayout>(menu.menu("GetLayout", {0, -1, QStringList()}).arguments().value(1));
    require(now.children.size() == 3 && now.children[1].children.size() == 2
            && now.children[1].id == expected.children[1].id,
        "the menu has changed");
    return 0;
}
