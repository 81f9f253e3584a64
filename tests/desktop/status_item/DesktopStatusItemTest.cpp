// SPDX-License-Identifier: MIT
#include "desktop/status_item/DesktopStatusItem.h"
#include "FakeWatcher.h"
#include "desktop/bus/SessionBus.h"
#include "desktop/menus/DBusMenuTypes.h"
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/DBusPicture.h"
#include "desktop/status_item/StripWindow.h"
#include "fixtures/Bus.h"
#include "fixtures/BusClient.h"
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QElapsedTimer>
#include <QMenu>

#include <climits>
#include <memory>
#include <vector>

namespace velto {

namespace {

constexpr auto path = "/StatusNotifierItem";
constexpr auto interface = "org.kde.StatusNotifierItem";

template <class Widget>
Widget* shown()
{
    for (auto* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Widget*>(window); found && found->isVisible())
            return found;
    return nullptr;
}

class DesktopStatusItemTest : public testing::Test {
protected:
    FakeRunLoop runLoop;
    ClickGesture gesture{runLoop};
    std::vector<ClickEvent> clicks;
    std::optional<ClickEvent> current;
    std::unique_ptr<SessionBus> bus = std::make_unique<SessionBus>(QStringLiteral("composite"));
    BusClient client{bus->connection().baseService()};
    std::shared_ptr<MenuItem> quit = std::make_shared<MenuItem>();
    std::shared_ptr<Menu> menu = std::make_shared<Menu>();
    std::unique_ptr<DesktopStatusItem> item = std::make_unique<DesktopStatusItem>(
        gesture,
        [this](ClickEvent click, const std::function<void()>& action) {
            current = click;
            action();
            current.reset();
        },
        *bus);

    DesktopStatusItemTest()
    {
        quit->title = "Quit & go";
        quit->isCheckable = true;
        menu->items = {quit};
        item->button()->setFont(12);
        item->button()->setToolTip("Velto");
        item->button()->setTitle("25:00");
        item->button()->setAction([this] { clicks.push_back(current.value()); });
        item->setMenu(menu);
    }

    bool eventually(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, patience); }

    DBusPictures pictures() { return qdbus_cast<DBusPictures>(client.property(path, interface, "IconPixmap")); }
};

TEST_F(DesktopStatusItemTest, RegistersWithEveryNewWatcher)
{
    for (int turn = 0; turn < 3; ++turn) {
        FakeWatcher watcher;
        ASSERT_TRUE(eventually([&] { return !watcher.items.isEmpty(); })) << turn;
        EXPECT_EQ(watcher.items, QStringList({bus->connection().baseService()}));
    }
}

TEST_F(DesktopStatusItemTest, LeavesTheBusWhenItGoes)
{
    FakeWatcher watcher;
    ASSERT_TRUE(eventually([&] { return !watcher.items.isEmpty(); }));
    const auto name = bus->connection().baseService();

    item.reset();
    bus.reset();

    EXPECT_TRUE(eventually([&] { return !client.bus().interface()->isServiceRegistered(name); }));
}

TEST_F(DesktopStatusItemTest, ShowsTheTimeAsOnePictureThatChangesOnlyWithTheTime)
{
    FakeWatcher watcher; // some program nobody knows
    ASSERT_TRUE(eventually([&] { return !pictures().isEmpty(); }));
    EXPECT_EQ(pictures()[0].width, pictures()[0].height);
    const auto before = pictures();
    client.takeSignals();

    item->button()->setTitle("25:00");
    item->button()->setAppearsDisabled(false);
    item->menuDidChange();
    EXPECT_TRUE(client.takeSignals().empty());

    item->button()->setTitle("24:59");
    const auto heard = client.takeSignals();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard[0].member(), QStringLiteral("NewIcon"));
    EXPECT_NE(pictures(), before);
    EXPECT_EQ(client.property(path, interface, "XAyatanaLabel"), QStringLiteral("24:59"));
}

TEST_F(DesktopStatusItemTest, ForwardsClicksAsTheCurrentEvent)
{
    client.call(path, interface, "Activate", {5, 5});
    client.call(path, interface, "SecondaryActivate", {5, 5});
    client.call(path, interface, "ContextMenu", {5, 5});

    EXPECT_EQ(clicks,
        std::vector<ClickEvent>({{ClickEvent::Kind::leftMouseUp, false}, {ClickEvent::Kind::otherMouseUp, false},
            {ClickEvent::Kind::rightMouseUp, false}}));
}

TEST_F(DesktopStatusItemTest, IgnoresTheClickOfThePressThatHidThePanel)
{
    gesture.press({Press::Target::bar, false}, [] {});

    client.call(path, interface, "Activate", {5, 5});
    EXPECT_TRUE(clicks.empty());

    client.call(path, interface, "Activate", {5, 5});
    EXPECT_EQ(clicks.size(), 1U);
}

TEST_F(DesktopStatusItemTest, HasNoPlaceUntilAClickTellsIt)
{
    const FakeWatcher watcher;
    ASSERT_TRUE(eventually([&] { return !pictures().isEmpty(); }));
    EXPECT_EQ(item->button()->frame(), std::nullopt);

    for (const auto& absurd : {std::pair(INT_MAX, INT_MIN), std::pair(-1, -1), std::pair(1 << 30, 0)})
        client.call(path, interface, "Activate", {absurd.first, absurd.second});

    EXPECT_EQ(clicks.size(), 3U);
    EXPECT_EQ(item->button()->frame(), std::nullopt);
}

TEST_F(DesktopStatusItemTest, StandsInAStripAtOnceWhereThereIsNoWatcher)
{
    QElapsedTimer clock;
    clock.start();

    ASSERT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));

    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_TRUE(item->button()->frame().has_value());
}

TEST_F(DesktopStatusItemTest, WaitsAMomentForTheNextHostAndLeavesTheStripForIt)
{
    {
        FakeWatcher watcher;
        ASSERT_TRUE(eventually([&] { return !pictures().isEmpty(); }));
        EXPECT_EQ(shown<StripWindow>(), nullptr);
    }
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));
    EXPECT_GE(clock.elapsed(), 1500);

    FakeWatcher withoutHost(false);
    ASSERT_TRUE(eventually([&] { return !withoutHost.items.isEmpty(); }));
    client.settle();
    EXPECT_NE(shown<StripWindow>(), nullptr);
    withoutHost.setHasHost(true);
    EXPECT_TRUE(eventually([] { return shown<StripWindow>() == nullptr; }));
}

TEST_F(DesktopStatusItemTest, TheStripComesBackWhenAWindowManagerClosesIt)
{
    ASSERT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));

    EXPECT_TRUE(shown<StripWindow>()->close()) << "A close that is refused would refuse the end of the session, too.";
    EXPECT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));
}

TEST_F(DesktopStatusItemTest, AsksAWatcherAgainThatDidNotAnswer)
{
    FakeWatcher watcher;
    watcher.leave();
    QTest::qWait(1000); // for all that is asked of a new watcher
    EXPECT_TRUE(watcher.items.isEmpty());
    EXPECT_NE(shown<StripWindow>(), nullptr);

    watcher.serve();
    EXPECT_TRUE(eventually([&] { return !watcher.items.isEmpty(); }));
    EXPECT_TRUE(eventually([] { return shown<StripWindow>() == nullptr; }));
}

TEST_F(DesktopStatusItemTest, AsksAWatcherThatKeepsFailingEverLessOften)
{
    FakeWatcher watcher;
    watcher.leave();

    ASSERT_TRUE(eventually([&] { return watcher.refusals() == 2; }));
    QTest::qWait(7000);

    EXPECT_EQ(watcher.refusals(), 2) << "The first pause is one of 5 seconds, the next one of 10.";
}

TEST_F(DesktopStatusItemTest, ComesBackWithTheBus)
{
    {
        const FakeWatcher watcher;
        ASSERT_TRUE(eventually([&] { return !pictures().isEmpty(); }));
    }

    Bus::current().stop();
    ASSERT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));
    item->button()->setTitle("24:59");
    QTest::qWait(1500); // longer than the first attempt to come back
    Bus::current().start();

    FakeWatcher watcher;
    ASSERT_TRUE(eventually([&] { return !watcher.items.isEmpty(); }));
    ASSERT_TRUE(eventually([] { return shown<StripWindow>() == nullptr; }));
    BusClient other{bus->connection().baseService()};
    EXPECT_EQ(other.property(path, interface, "XAyatanaLabel"), QStringLiteral("24:59"));
    EXPECT_EQ(qdbus_cast<DBusToolTip>(other.property(path, interface, "ToolTip")).title, QStringLiteral("Velto"));
    const auto layout = other.call("/MenuBar", "com.canonical.dbusmenu", "GetLayout", {0, -1, QStringList()});
    EXPECT_EQ(qdbus_cast<DBusMenuLayout>(layout.arguments().value(1)).children.size(), 1);
}

TEST_F(DesktopStatusItemTest, TheStripIsNamedAfterTheTimeWithoutAnnouncingIt)
{
    ASSERT_TRUE(eventually([] { return shown<StripWindow>() != nullptr; }));
    auto* face = shown<StripWindow>()->findChild<QWidget*>();
    auto* accessible = QAccessible::queryAccessibleInterface(face);
    ASSERT_NE(accessible, nullptr);
    static int announcements;
    announcements = 0;
    QAccessible::installUpdateHandler(
        [](QAccessibleEvent* event) { announcements += event->type() == QAccessible::NameChanged; });

    item->button()->setTitle("24:59");
    QAccessible::installUpdateHandler(nullptr);

    EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("24:59"));
    EXPECT_EQ(accessible->role(), QAccessible::Button);
    EXPECT_EQ(announcements, 0);
}

TEST_F(DesktopStatusItemTest, PopsUpAMenuThatFollowsItsValues)
{
    int opened = 0;
    bool chosen = false;
    menu->willOpen = [&] { ++opened; };
    quit->action = [&](const MenuItem&) { chosen = true; };

    item->popUpMenu();
    auto* window = shown<QMenu>();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(opened, 1);
    auto* action = window->actions().value(0);
    EXPECT_EQ(action->text(), QStringLiteral("Quit && go"));
    EXPECT_TRUE(action->isCheckable());
    EXPECT_FALSE(action->isChecked());

    quit->isOn = true;
    quit->title = "Stay";
    item->menuDidChange();
    EXPECT_TRUE(action->isChecked());
    EXPECT_EQ(action->text(), QStringLiteral("Stay"));

    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Return);
    EXPECT_TRUE(eventually([&] { return chosen; }));
    EXPECT_EQ(shown<QMenu>(), nullptr);
}

} // namespace

} // namespace velto
