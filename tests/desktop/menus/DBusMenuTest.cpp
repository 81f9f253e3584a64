// SPDX-License-Identifier: MIT
#include "desktop/menus/DBusMenu.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <QDBusMetaType>
#include <QImage>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace velto {

namespace {

constexpr auto path = "/MenuBar";
constexpr auto interface = "com.canonical.dbusmenu";

std::shared_ptr<MenuItem> makeItem(const std::string& title)
{
    auto item = std::make_shared<MenuItem>();
    item->title = title;
    return item;
}

class DBusMenuTest : public testing::Test {
protected:
    std::vector<std::string> log;
    std::shared_ptr<MenuItem> start = makeItem("Start_Focus");
    std::shared_ptr<MenuItem> separator = std::make_shared<MenuItem>();
    std::shared_ptr<MenuItem> durations = makeItem("Durations");
    std::shared_ptr<MenuItem> twenty = makeItem("20 minutes");
    std::shared_ptr<MenuItem> thirty = makeItem("30 minutes");
    std::shared_ptr<Menu> menu = std::make_shared<Menu>();

    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("menu"));
    DBusMenu exported{bus,
        {[this] { log.emplace_back("requested"); }, [this] { log.emplace_back("opened"); },
            [this] { log.emplace_back("closed"); }}};
    BusClient client{bus.baseService()};

    DBusMenuTest()
    {
        separator->isSeparator = true;
        start->action = [this](const MenuItem&) { log.emplace_back("start"); };
        twenty->isCheckable = thirty->isCheckable = true;
        twenty->isOn = true;
        durations->submenu = std::make_shared<Menu>();
        durations->submenu->items = {twenty, thirty};
        menu->items = {start, separator, durations};
        menu->willOpen = [this] { log.emplace_back("will open"); };
        exported.setMenu(menu);
        client.takeSignals();
    }
    ~DBusMenuTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("menu")); }

    QDBusMessage call(const char* method, const QVariantList& arguments = {})
    {
        return client.call(path, interface, method, arguments);
    }

    DBusMenuLayout layout(int parent = 0, int depth = -1, const QStringList& names = {})
    {
        return qdbus_cast<DBusMenuLayout>(call("GetLayout", {parent, depth, names}).arguments().value(1));
    }

    uint revision() { return call("GetLayout", {0, 0, QStringList()}).arguments().value(0).toUInt(); }

    QDBusMessage event(int id, const char* name)
    {
        return call("Event",
            {id, QString::fromLatin1(name), QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(uint(0))});
    }

    int idOf(const char* title)
    {
        for (const auto& child : layout().children) {
            if (child.properties.value(QStringLiteral("label")) == QLatin1String(title))
                return child.id;
            for (const auto& grandchild : child.children)
                if (grandchild.properties.value(QStringLiteral("label")) == QLatin1String(title))
                    return grandchild.id;
        }
        return -1;
    }
};

TEST_F(DBusMenuTest, SaysWhatItSpeaks)
{
    EXPECT_EQ(client.property(path, interface, "Version"), QVariant(3U));
    EXPECT_EQ(client.property(path, interface, "Status"), QStringLiteral("normal"));
    EXPECT_EQ(client.property(path, interface, "TextDirection"), QStringLiteral("ltr"));
    EXPECT_EQ(client.property(path, interface, "IconThemePath"), QStringList());
}

TEST_F(DBusMenuTest, IsDescribedByIntrospection)
{
    const auto xml
        = client.call(path, "org.freedesktop.DBus.Introspectable", "Introspect").arguments().value(0).toString();

    for (const auto* expected : {"<arg name=\"layout\" type=\"(ia{sv}av)\" direction=\"out\"/>",
             "type=\"a(ia{sv})\" direction=\"out\"/>", "type=\"a(isvu)\" direction=\"in\"/>",
             "<signal name=\"ItemsPropertiesUpdated\">", "type=\"a(ias)\"", "<signal name=\"LayoutUpdated\">"})
        EXPECT_TRUE(xml.contains(QLatin1String(expected))) << expected << " in " << xml.toStdString();
}

TEST_F(DBusMenuTest, LaysOutTheWholeMenu)
{
    start->isEnabled = false;
    durations->isHidden = true;
    exported.menuDidChange();

    const auto root = layout();

    EXPECT_EQ(root.id, 0);
    EXPECT_EQ(root.properties, QVariantMap({{"children-display", "submenu"}}));
    ASSERT_EQ(root.children.size(), 3);
    EXPECT_EQ(
        root.children[0].properties, QVariantMap({{"label", "Start__Focus"}, {"enabled", false}, {"visible", true}}));
    EXPECT_EQ(root.children[1].properties, QVariantMap({{"type", "separator"}, {"visible", true}}));
    EXPECT_EQ(root.children[2].properties,
        QVariantMap({{"label", "Durations"}, {"enabled", true}, {"visible", false}, {"children-display", "submenu"}}));
    ASSERT_EQ(root.children[2].children.size(), 2);
    EXPECT_EQ(root.children[2].children[0].properties,
        QVariantMap({{"label", "20 minutes"}, {"enabled", true}, {"visible", true}, {"toggle-type", "checkmark"},
            {"toggle-state", 1}}));
    EXPECT_EQ(root.children[2].children[1].properties.value("toggle-state"), QVariant(0));
}

TEST_F(DBusMenuTest, LaysOutToTheDepthAndWithThePropertiesAskedFor)
{
    EXPECT_TRUE(layout(0, 0).children.isEmpty());
    EXPECT_EQ(layout(0, 1).children.size(), 3);
    EXPECT_TRUE(layout(0, 1).children[2].children.isEmpty());
    EXPECT_EQ(layout(idOf("Durations"), 1).children.size(), 2);
    EXPECT_EQ(layout(0, 1, {"label"}).children[0].properties, QVariantMap({{"label", "Start__Focus"}}));
}

TEST_F(DBusMenuTest, GivesPropertiesOfSeveralOfAllAndOfOne)
{
    const auto several = qdbus_cast<DBusMenuItems>(
        call("GetGroupProperties", {QVariant::fromValue(QList<int>{idOf("20 minutes"), 4711}), QStringList{"label"}})
            .arguments()
            .value(0));
    ASSERT_EQ(several.size(), 1);
    EXPECT_EQ(several[0].properties, QVariantMap({{"label", "20 minutes"}}));

    const auto all = qdbus_cast<DBusMenuItems>(
        call("GetGroupProperties", {QVariant::fromValue(QList<int>{}), QStringList{}}).arguments().value(0));
    EXPECT_EQ(all.size(), 6);

    const auto one = call("GetProperty", {idOf("20 minutes"), QStringLiteral("toggle-state")});
    EXPECT_EQ(one.arguments().value(0).value<QDBusVariant>().variant(), QVariant(1));
}

TEST_F(DBusMenuTest, DrawsSymbolsAsPng)
{
    start->symbol = Symbol{"gearshape", "Settings"};
    exported.menuDidChange();

    const auto image = QImage::fromData(layout().children[0].properties.value("icon-data").toByteArray(), "PNG");

    EXPECT_EQ(image.size(), QSize(32, 32));
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            inked += image.pixelColor(x, y).alpha() > 128;
    EXPECT_GT(inked, 50);
}

TEST_F(DBusMenuTest, TellsWhatChangedAndNothingElse)
{
    const auto before = revision();

    twenty->isOn = false;
    thirty->isOn = true;
    exported.menuDidChange();

    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].member(), QStringLiteral("ItemsPropertiesUpdated"));
    const auto updated = qdbus_cast<DBusMenuItems>(heard[0].arguments().at(0));
    ASSERT_EQ(updated.size(), 2);
    EXPECT_EQ(updated[0].id, idOf("20 minutes"));
    EXPECT_EQ(updated[0].properties, QVariantMap({{"toggle-state", 0}}));
    EXPECT_EQ(updated[1].id, idOf("30 minutes"));
    EXPECT_EQ(updated[1].properties, QVariantMap({{"toggle-state", 1}}));
    EXPECT_TRUE(qdbus_cast<DBusMenuItemKeysList>(heard[0].arguments().at(1)).isEmpty());
    EXPECT_EQ(revision(), before);
}

TEST_F(DBusMenuTest, SaysNothingWhenNothingChanged)
{
    exported.menuDidChange();

    EXPECT_TRUE(client.takeSignals().empty());
}

TEST_F(DBusMenuTest, TellsOfPropertiesThatAreGone)
{
    start->isOn = true;
    exported.menuDidChange();
    client.takeSignals();

    start->isOn = false;
    exported.menuDidChange();

    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    const auto removed = qdbus_cast<DBusMenuItemKeysList>(heard[0].arguments().at(1));
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0].properties, QStringList({"toggle-state", "toggle-type"}));
}

TEST_F(DBusMenuTest, TellsOfANewLayoutWhenEntriesComeOrGo)
{
    const auto before = revision();
    const int startId = idOf("Start__Focus");

    exported.setLeadingItem(makeItem("Show"));

    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].member(), QStringLiteral("LayoutUpdated"));
    EXPECT_EQ(heard[0].arguments(), QVariantList({before + 1, 0}));
    EXPECT_EQ(layout().children[0].properties.value("label"), QStringLiteral("Show"));
    EXPECT_EQ(idOf("Start__Focus"), startId);

    exported.setLeadingItem(nullptr);
    EXPECT_EQ(client.takeSignals().size(), 1U);
    EXPECT_EQ(layout().children.size(), 3);
}

TEST_F(DBusMenuTest, RunsTheActionOfAClickedEntryAfterTheReply)
{
    bool replied = false;
    start->action = [&](const MenuItem& item) { log.push_back(item.title + (replied ? " late" : " early")); };

    auto message = QDBusMessage::createMethodCall(bus.baseService(), path, interface, "Event");
    message.setArguments({idOf("Start__Focus"), "clicked", QVariant::fromValue(QDBusVariant(0)), 0U});
    exported.Event(idOf("Start__Focus"), "clicked", QDBusVariant(0), 0);
    replied = true;

    ASSERT_TRUE(QTest::qWaitFor([&] { return log.size() > 1; }, patience));
    EXPECT_EQ(log, std::vector<std::string>({"closed", "Start_Focus late"}));
}

TEST_F(DBusMenuTest, RunsNoActionOfEntriesThatCanNotBeChosen)
{
    const int id = idOf("Start__Focus");
    start->isEnabled = false;
    EXPECT_EQ(event(id, "clicked").type(), QDBusMessage::ReplyMessage);
    client.settle();
    start->isEnabled = true;
    start->isHidden = true;
    event(id, "clicked");
    client.settle();
    start->isHidden = false;
    EXPECT_EQ(event(idOf("Durations"), "clicked").type(), QDBusMessage::ReplyMessage);
    event(layout().children[1].id, "clicked");
    client.settle();

    EXPECT_EQ(std::ranges::count(log, "start"), 0);
}

TEST_F(DBusMenuTest, HearsOfOpeningAndClosing)
{
    EXPECT_EQ(call("AboutToShow", {0}).arguments().value(0), QVariant(false));
    event(0, "opened");
    event(idOf("Durations"), "opened");
    event(0, "closed");

    EXPECT_EQ(log, std::vector<std::string>({"requested", "will open", "opened", "closed"}));
}

TEST_F(DBusMenuTest, BringsItselfUpToDateBeforeItIsShown)
{
    menu->willOpen = [this] { start->title = "Pause"; };

    call("AboutToShow", {0});

    EXPECT_GE(idOf("Pause"), 1);
    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].member(), QStringLiteral("ItemsPropertiesUpdated"));
}

TEST_F(DBusMenuTest, AsksForANewLayoutWhenOpeningChangesIt)
{
    menu->willOpen = [this] { menu->items.push_back(makeItem("Late")); };

    EXPECT_EQ(call("AboutToShow", {0}).arguments().value(0), QVariant(true));
}

TEST_F(DBusMenuTest, TakesEventsAndQuestionsInGroups)
{
    const DBusMenuEvents events{
        {idOf("Start__Focus"), "clicked", QDBusVariant(0), 0}, {4711, "clicked", QDBusVariant(0), 0}};
    const auto unknown = call("EventGroup", {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(unknown.arguments().value(0)), QList<int>({4711}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.size() > 1; }, patience));
    EXPECT_EQ(log, std::vector<std::string>({"closed", "start"}));

    const auto shown = call("AboutToShowGroup", {QVariant::fromValue(QList<int>{0, 4711})});
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().value(0)), QList<int>());
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().value(1)), QList<int>({4711}));
}

TEST_F(DBusMenuTest, AnswersUnknownEntriesWithErrors)
{
    const auto error = QDBusMessage::ErrorMessage;
    for (const int unknown : {4711, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(call("GetLayout", {unknown, -1, QStringList()}).type(), error);
        EXPECT_EQ(call("GetProperty", {unknown, "label"}).type(), error);
        EXPECT_EQ(event(unknown, "clicked").type(), error);
        EXPECT_EQ(call("AboutToShow", {unknown}).type(), error);
        EXPECT_EQ(call("AboutToShowGroup", {QVariant::fromValue(QList<int>{unknown})}).type(), error);
        EXPECT_EQ(
            call("EventGroup", {QVariant::fromValue(DBusMenuEvents{{unknown, "clicked", QDBusVariant(0), 0}})}).type(),
            error);
    }
    EXPECT_EQ(call("GetProperty", {0, "nothing"}).type(), error);
}

TEST_F(DBusMenuTest, RefusesMoreThanAnyHostHasReasonToSend)
{
    const QString longName(257, QLatin1Char('x'));
    const QStringList manyNames(1001, QStringLiteral("label"));
    QList<int> manyIds(1001, 1);
    DBusMenuEvents manyEvents(1001, {1, QStringLiteral("opened"), QDBusVariant(0), 0});

    for (const auto& reply : {call("GetLayout", {0, -1, manyNames}), call("GetLayout", {0, -1, QStringList{longName}}),
             call("GetGroupProperties", {QVariant::fromValue(manyIds), QStringList()}),
             call("GetGroupProperties", {QVariant::fromValue(QList<int>{1}), manyNames}),
             call("GetProperty", {1, longName}),
             call("Event", {1, longName, QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(uint(0))}),
             call("EventGroup", {QVariant::fromValue(manyEvents)}),
             call("AboutToShowGroup", {QVariant::fromValue(manyIds)})})
        EXPECT_EQ(reply.errorName(), QStringLiteral("org.freedesktop.DBus.Error.LimitsExceeded"));
    EXPECT_TRUE(log.empty());
}

TEST_F(DBusMenuTest, TakesEveryNegativeDepthForAllOfTheMenu)
{
    EXPECT_EQ(layout(0, std::numeric_limits<int>::min()).children.size(), 3);
    EXPECT_EQ(layout(0, std::numeric_limits<int>::min()).children[2].children.size(), 2);
}

TEST_F(DBusMenuTest, IgnoresUnknownEvents)
{
    EXPECT_EQ(event(idOf("Start__Focus"), "hovered").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(idOf("Start__Focus"), "").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(0, "x-unheard-of").type(), QDBusMessage::ReplyMessage);
    client.settle();

    EXPECT_TRUE(log.empty());
}

TEST_F(DBusMenuTest, AnswersWrongTypesWithErrors)
{
    const auto error = QDBusMessage::ErrorMessage;
    EXPECT_EQ(call("GetLayout").type(), error);
    EXPECT_EQ(call("GetLayout", {"0", -1, QStringList()}).type(), error);
    EXPECT_EQ(call("GetLayout", {0, -1, "label"}).type(), error);
    EXPECT_EQ(call("Event", {"1", "clicked", QVariant::fromValue(QDBusVariant(0)), 0U}).type(), error);
    EXPECT_EQ(call("Event", {1, 2, 3, 4}).type(), error);
    EXPECT_EQ(call("EventGroup", {QStringList{"clicked"}}).type(), error);
    EXPECT_EQ(call("AboutToShow", {QVariant::fromValue(qlonglong(1) << 40)}).type(), error);
    client.settle();

    EXPECT_TRUE(log.empty());
}

TEST_F(DBusMenuTest, SurvivesAMenuOfNothing)
{
    exported.setMenu(nullptr);

    EXPECT_TRUE(layout().children.isEmpty());
}

} // namespace

} // namespace velto
