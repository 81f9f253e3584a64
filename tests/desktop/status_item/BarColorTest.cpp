// SPDX-License-Identifier: MIT
#include "desktop/status_item/BarColor.h"

#include "FakeWatcher.h"
#include "desktop/bus/SessionBus.h"
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/DesktopStatusItem.h"
#include "desktop/x11/X11Desktop.h"
#include "fixtures/BusClient.h"
#include "fixtures/Desktop.h"
#include "fixtures/OtherWindow.h"
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <QTest>

#include <algorithm>

namespace velto {

namespace {

class BarColorTest : public testing::Test {
protected:
    BarColorTest()
    {
        bar.show();
        list({bar.id()});
    }

    /// As a window manager does.
    static void list(const std::vector<std::uint32_t>& windows)
    {
        x11::setProperty(x11::rootWindow(), x11::atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, windows);
        xcb_flush(x11::connection());
    }

    static void paint(const OtherWindow& window, QRgb color)
    {
        xcb_change_window_attributes(x11::connection(), window.id(), XCB_CW_BACK_PIXEL, &color);
        xcb_clear_area(x11::connection(), 0, window.id(), 0, 0, 0, 0);
        xcb_flush(x11::connection());
    }

    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    OtherWindow second{{0, 600, 30, 500}, OtherWindow::Kind::dock};
    OtherWindow ordinary{{400, 400, 300, 200}};
};

} // namespace

TEST_F(BarColorTest, FollowsABarThatComesAndNoOtherWindow)
{
    BarColor seen;
    ASSERT_EQ(seen.color(), QColor(0x80, 0x80, 0x80));
    QTest::qWait(3500); // Its next look is ten seconds away.

    paint(bar, 0x204060);
    ordinary.show();
    list({bar.id(), ordinary.id()});
    QTest::qWait(1000);
    EXPECT_EQ(seen.color(), QColor(0x80, 0x80, 0x80)) << "It looked for a window that is no bar.";

    second.show();
    list({bar.id(), ordinary.id(), second.id()});
    EXPECT_TRUE(eventually([&] { return seen.color() == QColor(0x20, 0x40, 0x60); }));
}

TEST_F(BarColorTest, IsLookedAtForTheFirstPicture)
{
    paint(bar, 0x000000);
    FakeRunLoop runLoop;
    ClickGesture gesture(runLoop);
    SessionBus bus(QStringLiteral("item"));
    DesktopStatusItem item(
        gesture, [](ClickEvent, const std::function<void()>&) {}, bus);
    item.button()->setFont(12);
    item.button()->setTitle("25:00");
    BusClient client(bus.connection().baseService());
    QTest::qWait(3500);
    paint(this->bar, 0xffffff);

    FakeWatcher watcher;
    QTest::qWait(2000);

    const auto heard = client.takeSignals();
    EXPECT_EQ(std::ranges::count(heard, QStringLiteral("NewIcon"), &QDBusMessage::member), 1)
        << "A first picture was wrong.";
}

} // namespace velto
