// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusNotifierItem.h"
#include "FakeWatcher.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QImage>

#include <limits>
#include <utility>
#include <vector>

namespace velto {

namespace {

constexpr auto path = "/StatusNotifierItem";
constexpr auto interface = "org.kde.StatusNotifierItem";

class StatusNotifierItemTest : public testing::Test {
protected:
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("item"));
    std::vector<std::pair<ClickEvent::Kind, QPoint>> clicks;
    StatusNotifierItem item{bus, [this](ClickEvent::Kind kind, QPoint point) { clicks.emplace_back(kind, point); }};
    BusClient client{bus.baseService()};

    ~StatusNotifierItemTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("item")); }

    QVariant property(const char* name) { return client.property(path, interface, name); }

    QStringList signalNames()
    {
        QStringList names;
        for (const auto& heard : client.takeSignals())
            names.append(heard.member());
        return names;
    }

    static QImage picture(int side, QColor color)
    {
        QImage image(side, side, QImage::Format_ARGB32);
        image.fill(color);
        return image;
    }
};

TEST_F(StatusNotifierItemTest, SaysWhatItIs)
{
    item.setToolTip(QStringLiteral("Velto"));

    EXPECT_EQ(property("Id"), QStringLiteral("velto"));
    EXPECT_EQ(property("Title"), QStringLiteral("velto"));
    EXPECT_EQ(property("Category"), QStringLiteral("ApplicationStatus"));
    EXPECT_EQ(property("Status"), QStringLiteral("Active"));
    EXPECT_EQ(property("ItemIsMenu"), QVariant(false));
    EXPECT_EQ(property("IconName"), QString());
    EXPECT_EQ(property("IconAccessibleDesc"), QStringLiteral("Velto"));
    EXPECT_EQ(property("Menu").value<QDBusObjectPath>().path(), QStringLiteral("/MenuBar"));
    EXPECT_EQ(property("XAyatanaLabelGuide"), QStringLiteral("00:00"));
    EXPECT_EQ(qdbus_cast<DBusToolTip>(property("ToolTip")).title, QStringLiteral("Velto"));
}

TEST_F(StatusNotifierItemTest, IsDescribedByIntrospection)
{
    const auto xml
        = client.call(path, "org.freedesktop.DBus.Introspectable", "Introspect").arguments().value(0).toString();

    for (const auto* expected : {"<property name=\"IconPixmap\" type=\"a(iiay)\" access=\"read\">",
             "<property name=\"ToolTip\" type=\"(sa(iiay)ss)\" access=\"read\">",
             "<property name=\"Menu\" type=\"o\" access=\"read\"/>",
             "<property name=\"ItemIsMenu\" type=\"b\" access=\"read\"/>", "<method name=\"Activate\">",
             "<method name=\"SecondaryActivate\">", "<method name=\"ContextMenu\">", "<method name=\"Scroll\">",
             "<method name=\"ProvideXdgActivationToken\">", "<signal name=\"NewIcon\">", "<signal name=\"NewToolTip\">",
             "<signal name=\"XAyatanaNewLabel\">"})
        EXPECT_TRUE(xml.contains(QLatin1String(expected))) << expected << " in " << xml.toStdString();
}

TEST_F(StatusNotifierItemTest, AnnouncesALabelOnlyWhenItChanges)
{
    item.setLabel(QStringLiteral("24:59"), true);
    item.setLabel(QStringLiteral("24:59"), true);

    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].member(), QStringLiteral("XAyatanaNewLabel"));
    EXPECT_EQ(heard[0].arguments(), QVariantList({QStringLiteral("24:59"), QStringLiteral("00:00")}));
    EXPECT_EQ(property("XAyatanaLabel"), QStringLiteral("24:59"));
}

TEST_F(StatusNotifierItemTest, KeepsAnUnannouncedLabelReadable)
{
    item.setLabel(QStringLiteral("24:59"), false);

    EXPECT_EQ(signalNames(), QStringList());
    EXPECT_EQ(property("XAyatanaLabel"), QStringLiteral("24:59"));
}

TEST_F(StatusNotifierItemTest, AnnouncesAPictureOnlyWhenItsPixelsChange)
{
    item.setPictures({picture(4, Qt::red)});
    item.setPictures({picture(4, Qt::red)});
    EXPECT_EQ(signalNames(), QStringList({QStringLiteral("NewIcon")}));
    const auto pictures = qdbus_cast<DBusPictures>(property("IconPixmap"));
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0], dbusPicture(picture(4, Qt::red)));

    item.setPictures({picture(4, Qt::green)});
    EXPECT_EQ(signalNames(), QStringList({QStringLiteral("NewIcon")}));

    item.setPictures({});
    EXPECT_EQ(signalNames(), QStringList({QStringLiteral("NewIcon")}));
    EXPECT_TRUE(qdbus_cast<DBusPictures>(property("IconPixmap")).isEmpty());
}

TEST_F(StatusNotifierItemTest, AnnouncesAToolTipOnlyWhenItChanges)
{
    item.setToolTip(QStringLiteral("Velto"));
    item.setToolTip(QStringLiteral("Velto"));

    EXPECT_EQ(signalNames(), QStringList({QStringLiteral("NewToolTip")}));
}

TEST_F(StatusNotifierItemTest, ForwardsEachKindOfClick)
{
    client.call(path, interface, "Activate", {10, 20});
    client.call(path, interface, "SecondaryActivate", {11, 21});
    client.call(path, interface, "ContextMenu", {12, 22});
    client.call(path, interface, "Scroll", {120, QStringLiteral("vertical")});

    ASSERT_EQ(clicks.size(), 3U);
    EXPECT_EQ(clicks[0], std::pair(ClickEvent::Kind::leftMouseUp, QPoint(10, 20)));
    EXPECT_EQ(clicks[1], std::pair(ClickEvent::Kind::otherMouseUp, QPoint(11, 21)));
    EXPECT_EQ(clicks[2], std::pair(ClickEvent::Kind::rightMouseUp, QPoint(12, 22)));
}

TEST_F(StatusNotifierItemTest, RefusesATokenThatIsTooLong)
{
    EXPECT_EQ(client.call(path, interface, "ProvideXdgActivationToken", {QString(256, QLatin1Char('x'))}).type(),
        QDBusMessage::ReplyMessage);
    EXPECT_EQ(client.call(path, interface, "ProvideXdgActivationToken", {QString(257, QLatin1Char('x'))}).errorName(),
        QStringLiteral("org.freedesktop.DBus.Error.LimitsExceeded"));
}

TEST_F(StatusNotifierItemTest, RefusesCallsOfTheWrongShape)
{
    for (const auto& arguments : {QVariantList{}, QVariantList{QStringLiteral("here"), QStringLiteral("there")},
             QVariantList{1}, QVariantList{1.5, 2.5}})
        EXPECT_EQ(client.call(path, interface, "Activate", arguments).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(client.call(path, interface, "Explode").type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(client
                  .call(path, "org.freedesktop.DBus.Properties", "Get",
                      {QString::fromLatin1(interface), QStringLiteral("Nothing")})
                  .type(),
        QDBusMessage::ErrorMessage);

    EXPECT_TRUE(clicks.empty());
}

TEST_F(StatusNotifierItemTest, RegistersUnderItsOwnConnection)
{
    FakeWatcher watcher;

    item.registerWithWatcher();

    ASSERT_TRUE(QTest::qWaitFor([&] { return !watcher.items.isEmpty(); }, patience));
    EXPECT_EQ(watcher.items, QStringList({bus.baseService()}));
}

} // namespace

} // namespace velto
