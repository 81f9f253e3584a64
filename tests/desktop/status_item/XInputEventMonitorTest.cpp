// SPDX-License-Identifier: MIT
#include "desktop/status_item/XInputEventMonitor.h"

#include "desktop/session/QtRunLoop.h"
#include "desktop/status_item/ClickGesture.h"
#include "fixtures/Desktop.h"
#include "fixtures/OtherWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace velto {

namespace {

class XInputEventMonitorTest : public testing::Test {
protected:
    void SetUp() override
    {
        // Away from everything, so that only clicks count.
        ASSERT_TRUE(Desktop::movePointer(2300, 1100));
    }

    [[nodiscard]] std::optional<Subscription> watch()
    {
        return monitor.addOutsidePressMonitor([this] { ++presses; });
    }

    [[nodiscard]] bool count(int expected)
    {
        return eventually([&] { return presses >= expected; }) && stays([&] { return presses == expected; });
    }

    QtRunLoop runLoop;
    ClickGesture gesture{runLoop};
    XInputEventMonitor monitor{gesture};
    int presses = 0;
};

/// With a menu under a bar, opened with the right button.
class XInputEventMonitorMenuTest : public XInputEventMonitorTest {
protected:
    void SetUp() override
    {
        XInputEventMonitorTest::SetUp();
        bar.show();
        token = watch();
        ASSERT_TRUE(Desktop::click(1500, 10, 3));
        gesture.menuRequested();
        menu.show();
    }

    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    OtherWindow menu{{1450, 30, 200, 300}, OtherWindow::Kind::menu};
    std::optional<Subscription> token;
};

} // namespace

TEST_F(XInputEventMonitorTest, EachPressOfTheLeftAndOfTheRightButtonCountsOnce)
{
    OtherWindow other{{100, 100, 300, 200}};
    other.show();
    const auto token = watch();
    ASSERT_TRUE(token);

    ASSERT_TRUE(Desktop::click(200, 200));
    EXPECT_TRUE(count(1)) << presses;
    ASSERT_TRUE(Desktop::click(200, 200, 3));
    EXPECT_TRUE(count(2)) << presses;
    ASSERT_TRUE(Desktop::click(1500, 900));
    EXPECT_TRUE(count(3)) << presses << " on the bare desktop";
    EXPECT_EQ(other.takePresses(), 2) << "the press still goes where it belongs";
}

TEST_F(XInputEventMonitorTest, AClickThatClosesItsWindowDoesNotCountThoughItIsReadLate)
{
    QPushButton close;
    close.setGeometry(400, 400, 300, 200);
    QObject::connect(&close, &QPushButton::clicked, &close, &QWidget::hide);
    close.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&close));
    const auto token = watch();
    ASSERT_TRUE(Desktop::click(500, 500));

    QMouseEvent press(QEvent::MouseButtonPress, {100, 100}, {500, 500}, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(close.windowHandle(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, {100, 100}, {500, 500}, Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(close.windowHandle(), &release);
    ASSERT_FALSE(close.isVisible());

    EXPECT_TRUE(stays([&] { return presses == 0; }));
}

TEST_F(XInputEventMonitorTest, OtherButtonsAndTheWheelDoNotCount)
{
    const auto token = watch();

    for (const int button : {2, 4, 5, 6, 7, 8})
        ASSERT_TRUE(Desktop::click(200, 200, button));

    EXPECT_TRUE(stays([&] { return presses == 0; })) << presses;
}

TEST_F(XInputEventMonitorTest, PressesCountUnderTheGrabOfAnother)
{
    OtherWindow other{{100, 100, 300, 200}};
    other.show();
    other.grabPointer();
    const auto token = watch();

    ASSERT_TRUE(Desktop::click(1500, 900));

    EXPECT_TRUE(count(1)) << presses;
    EXPECT_EQ(other.takePresses(), 1);
}

TEST_F(XInputEventMonitorTest, PressesInWindowsOfThisProgramDoNotCount)
{
    Desktop::current().startWindowManager();
    QPushButton window{QStringLiteral("Help")};
    int clicks = 0;
    QObject::connect(&window, &QPushButton::clicked, [&] { ++clicks; });
    window.setGeometry(400, 300, 300, 200);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    ASSERT_TRUE(eventually([&] { return window.frameGeometry().height() > window.height(); }));
    const auto token = watch();

    const QPoint middle = window.geometry().center();
    ASSERT_TRUE(Desktop::click(middle.x(), middle.y()));
    ASSERT_TRUE(eventually([&] { return clicks == 1; }));
    EXPECT_TRUE(stays([&] { return presses == 0; }));
    const QPoint titleBar{middle.x(), window.geometry().top() - 4};
    ASSERT_TRUE(Desktop::click(titleBar.x(), titleBar.y()));
    EXPECT_TRUE(stays([&] { return presses == 0; })) << "its frame belongs to it";

    ASSERT_TRUE(Desktop::click(1800, 900));
    EXPECT_TRUE(count(1)) << presses;
}

TEST_F(XInputEventMonitorTest, NothingCountsAfterTheTokenIsDropped)
{
    auto token = watch();
    ASSERT_TRUE(Desktop::click(1500, 900));
    ASSERT_TRUE(count(1));

    // This one is on its way when the token goes.
    ASSERT_TRUE(Desktop::click(1500, 900));
    token.reset();
    ASSERT_TRUE(Desktop::click(1500, 900));

    EXPECT_TRUE(stays([&] { return presses == 1; })) << presses;
}

TEST_F(XInputEventMonitorTest, EarlierPressesDoNotCountForANewMonitor)
{
    auto token = watch();
    ASSERT_TRUE(Desktop::click(1500, 900));
    token = watch();

    EXPECT_TRUE(stays([&] { return presses <= 1; })) << presses;
    const int before = presses;
    ASSERT_TRUE(Desktop::click(1500, 900));
    EXPECT_TRUE(count(before + 1)) << presses;
}

TEST_F(XInputEventMonitorTest, TheHandlerMayDropItsToken)
{
    std::optional<Subscription> token;
    token = monitor.addOutsidePressMonitor([&] {
        ++presses;
        token.reset();
    });

    ASSERT_TRUE(Desktop::click(1500, 900));
    ASSERT_TRUE(Desktop::click(1500, 900));

    EXPECT_TRUE(count(1)) << presses;
}

TEST_F(XInputEventMonitorTest, TheClickOfAPressThatHidIsClaimedUntilTheNextPress)
{
    std::optional<Subscription> token;
    const auto show = [&] {
        token = monitor.addOutsidePressMonitor([&] {
            ++presses;
            token.reset();
        });
    };
    for (int round = 1; round <= 10; ++round) {
        show();
        // The press may not even be read when its click arrives by another way.
        ASSERT_TRUE(Desktop::click(1500, 900));
        EXPECT_TRUE(gesture.claimClick()) << round;
        EXPECT_EQ(presses, round);
        EXPECT_FALSE(token);

        ASSERT_TRUE(Desktop::click(1500, 900));
        EXPECT_FALSE(gesture.claimClick()) << round;
    }

    show();
    ASSERT_TRUE(Desktop::click(1500, 900));
    ASSERT_TRUE(eventually([&] { return !token; }));
    ASSERT_TRUE(Desktop::click(1500, 900));
    EXPECT_FALSE(gesture.claimClick()) << "another press ends the memory";
}

TEST_F(XInputEventMonitorTest, APressIsForgottenSomeTimeAfterItsRelease)
{
    auto token = watch();
    ASSERT_TRUE(Desktop::click(1500, 900));

    ASSERT_TRUE(eventually([&] { return gesture.isUnderway(); }));
    EXPECT_TRUE(eventually([&] { return !gesture.isUnderway(); }));
}

TEST_F(XInputEventMonitorTest, ARightPressOnABarWaitsForTheMenu)
{
    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    bar.show();
    const auto token = watch();

    ASSERT_TRUE(Desktop::click(1500, 10, 3));
    ASSERT_TRUE(eventually([&] { return gesture.isUnderway(); }));
    EXPECT_EQ(presses, 0);
    gesture.menuOpened();
    EXPECT_TRUE(stays([&] { return presses == 0; }));

    OtherWindow menu{{1450, 30, 200, 300}, OtherWindow::Kind::menu};
    menu.show();
    ASSERT_TRUE(Desktop::click(1500, 100));
    ASSERT_TRUE(Desktop::click(1500, 200));
    EXPECT_TRUE(stays([&] { return presses == 0; }));
    gesture.menuClosed();

    ASSERT_TRUE(Desktop::click(1500, 10, 3));
    EXPECT_TRUE(count(1)) << presses << " no menu has opened";
    ASSERT_TRUE(Desktop::click(1500, 10));
    EXPECT_TRUE(count(2)) << presses;
}

TEST_F(XInputEventMonitorTest, AReservedEdgeWithoutAWindowIsABarToo)
{
    Desktop::current().startWindowManager();
    OtherWindow reserving{{0, 600, 2400, 1}, OtherWindow::Kind::dock};
    reserving.setStrut(0, 0, 30, 0);
    reserving.show();
    ASSERT_TRUE(eventually([] { return QGuiApplication::primaryScreen()->availableGeometry().top() == 30; }));
    const auto token = watch();

    ASSERT_TRUE(Desktop::click(1500, 10, 3));
    ASSERT_TRUE(eventually([&] { return gesture.isUnderway(); }));
    EXPECT_EQ(presses, 0);
    gesture.menuOpened();
    EXPECT_TRUE(stays([&] { return presses == 0; }));
    gesture.menuClosed();

    ASSERT_TRUE(Desktop::click(1500, 900, 3));
    EXPECT_TRUE(count(1)) << presses << " below the edge";
}

TEST_F(XInputEventMonitorMenuTest, AMenuThatIsGoneTakesNoPress)
{
    {
        OtherWindow submenu{{1650, 30, 200, 300}, OtherWindow::Kind::menu};
        submenu.show();
    }
    OtherWindow window{{100, 100, 300, 200}};
    window.show();
    window.hide();

    ASSERT_TRUE(Desktop::click(1500, 100));
    EXPECT_TRUE(stays([&] { return presses == 0; })) << "the menu is still there";
    menu.hide();
    ASSERT_TRUE(Desktop::click(1500, 900));
    EXPECT_TRUE(count(1)) << presses;
}

TEST_F(XInputEventMonitorMenuTest, APressThatClosesTheMenuBelongsToIt)
{
    // Both have happened by the time anything is read.
    ASSERT_TRUE(Desktop::click(1500, 900));
    menu.hide();

    EXPECT_TRUE(stays([&] { return presses == 0; })) << presses;
    ASSERT_TRUE(Desktop::click(1500, 900));
    EXPECT_TRUE(count(1)) << presses;
}

TEST_F(XInputEventMonitorTest, AControlClickOnABarWaitsForTheMenuToo)
{
    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    bar.show();
    const auto token = watch();

    ASSERT_TRUE(Desktop::run("xdotool", {"keydown", "ctrl", "mousemove", "1500", "10", "mousedown", "1"}));
    ASSERT_TRUE(eventually([&] { return gesture.isUnderway(); }));
    EXPECT_EQ(presses, 0);
    ASSERT_TRUE(Desktop::run("xdotool", {"mouseup", "1", "keyup", "ctrl"}));

    EXPECT_TRUE(count(1)) << presses;
}

TEST_F(XInputEventMonitorTest, WhatElseClosesThePanelCountsLikeAPress)
{
    auto token = watch();

    monitor.dismiss();
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(gesture.claimClick());

    token.reset();
    monitor.dismiss();
    EXPECT_EQ(presses, 1);
}

} // namespace velto
