// SPDX-License-Identifier: MIT
#include "desktop/status_item/ClickGesture.h"
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

#include <string>

namespace velto {

using namespace std::chrono_literals;

namespace {

constexpr Press leftOnBar{Press::Target::bar, false};
constexpr Press rightOnBar{Press::Target::bar, true};
constexpr Press leftElsewhere{Press::Target::elsewhere, false};
constexpr Press rightElsewhere{Press::Target::elsewhere, true};
constexpr Press leftOnMenu{Press::Target::menu, false};
constexpr Press rightOnMenu{Press::Target::menu, true};

/// A panel, and a status item that toggles it the way the real one does.
class Desk {
public:
    void press(const Press& press)
    {
        gesture.press(press, isPanelVisible ? [this] { hide(); } : std::function<void()>{});
    }
    /// A press that is read when the gesture catches up.
    void pressUnread(const Press& where)
    {
        gesture.setCatchUp([this, where, isRead = false]() mutable {
            if (!std::exchange(isRead, true))
                press(where);
        });
    }
    void pressAndRelease(const Press& where)
    {
        press(where);
        runLoop.advance(80ms);
        gesture.release();
    }
    void activate()
    {
        if (!gesture.claimClick())
            isPanelVisible ? hide() : show();
    }
    void show() { isPanelVisible = true; }
    void hide()
    {
        isPanelVisible = false;
        gesture.stopHiding();
    }

    FakeRunLoop runLoop;
    ClickGesture gesture{runLoop};
    bool isPanelVisible = true;
};

} // namespace

TEST(ClickGestureTest, APressElsewhereHidesThePanel)
{
    for (const Press& press : {leftElsewhere, rightElsewhere, leftOnBar, leftOnMenu, rightOnMenu}) {
        Desk desk;

        desk.press(press);

        EXPECT_FALSE(desk.isPanelVisible);
    }
}

TEST(ClickGestureTest, TheClickOfThePressThatHidThePanelLeavesItHiddenOnAHostThatActivatesOnRelease)
{
    Desk desk;
    for (int round = 0; round < 50; ++round) {
        desk.show();

        desk.pressAndRelease(leftOnBar);
        desk.runLoop.advance(20ms);
        desk.activate();
        EXPECT_FALSE(desk.isPanelVisible) << round;

        desk.runLoop.advance(50ms);
        desk.pressAndRelease(leftOnBar);
        desk.activate();
        EXPECT_TRUE(desk.isPanelVisible) << round;
    }
}

TEST(ClickGestureTest, TheClickOfThePressThatHidThePanelLeavesItHiddenOnAHostThatActivatesOnPress)
{
    Desk desk;
    for (int round = 0; round < 50; ++round) {
        desk.show();

        desk.press(leftOnBar);
        desk.activate();
        desk.gesture.release();
        EXPECT_FALSE(desk.isPanelVisible) << round;

        desk.press(leftOnBar);
        desk.activate();
        desk.gesture.release();
        EXPECT_TRUE(desk.isPanelVisible) << round;
    }
}

TEST(ClickGestureTest, APressThatIsStillOnItsWayCountsBeforeItsClick)
{
    Desk desk;
    desk.pressUnread(leftOnBar);

    desk.activate();

    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, AClickBelongsToOnePressOnly)
{
    Desk desk;
    desk.pressAndRelease(leftOnBar);

    EXPECT_TRUE(desk.gesture.claimClick());
    EXPECT_FALSE(desk.gesture.claimClick());
}

TEST(ClickGestureTest, APressMayBeHeldForAnyTime)
{
    Desk desk;

    desk.press(leftOnBar);
    desk.runLoop.advance(1h);
    desk.activate();

    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, APressIsForgottenHalfASecondAfterItsRelease)
{
    struct Case {
        std::chrono::milliseconds wait;
        bool isClaimed;
    };
    for (const Case& c : {Case{0ms, true}, Case{499ms, true}, Case{500ms, false}, Case{2s, false}}) {
        Desk desk;
        desk.pressAndRelease(leftElsewhere);

        desk.runLoop.advance(c.wait);

        EXPECT_EQ(desk.gesture.isUnderway(), c.isClaimed) << c.wait.count();
        EXPECT_EQ(desk.gesture.claimClick(), c.isClaimed) << c.wait.count();
    }
}

TEST(ClickGestureTest, TheNextPressReplacesTheRememberedOne)
{
    Desk desk;
    desk.pressAndRelease(leftElsewhere);
    desk.runLoop.advance(100ms);

    desk.press(leftOnBar);
    desk.activate();

    EXPECT_TRUE(desk.isPanelVisible);
}

TEST(ClickGestureTest, APressWithNothingToHideIsNotRemembered)
{
    Desk desk;
    desk.hide();

    desk.press(leftOnBar);

    EXPECT_FALSE(desk.gesture.isUnderway());
    EXPECT_FALSE(desk.gesture.claimClick());
}

TEST(ClickGestureTest, ARightPressOnABarThatOpensTheMenuLeavesThePanelAsItIs)
{
    Desk onPress;
    onPress.press(rightOnBar);
    onPress.gesture.menuOpened();
    onPress.gesture.release();
    onPress.runLoop.advance(1s);
    EXPECT_TRUE(onPress.isPanelVisible);

    Desk onRelease;
    onRelease.pressAndRelease(rightOnBar);
    onRelease.runLoop.advance(799ms);
    onRelease.gesture.menuOpened();
    onRelease.runLoop.advance(1s);
    EXPECT_TRUE(onRelease.isPanelVisible);

    Desk stillOnItsWay;
    stillOnItsWay.pressUnread(rightOnBar);
    stillOnItsWay.gesture.menuOpened();
    stillOnItsWay.pressAndRelease(leftOnMenu);
    EXPECT_TRUE(stillOnItsWay.isPanelVisible);
}

TEST(ClickGestureTest, ARightPressOnABarThatOpensNoMenuOfOursHidesThePanelShortlyAfterTheRelease)
{
    Desk desk;

    desk.press(rightOnBar);
    desk.runLoop.advance(1h);
    EXPECT_TRUE(desk.isPanelVisible);
    desk.gesture.release();
    desk.runLoop.advance(799ms);
    EXPECT_TRUE(desk.isPanelVisible);

    desk.runLoop.advance(1ms);
    EXPECT_FALSE(desk.isPanelVisible);
    EXPECT_FALSE(desk.gesture.isUnderway());
}

TEST(ClickGestureTest, AWaitingHideIsDroppedWhenThePanelIsHiddenOtherwise)
{
    Desk desk;
    desk.pressAndRelease(rightOnBar);

    desk.hide();
    desk.show();
    desk.runLoop.advance(1s);

    EXPECT_TRUE(desk.isPanelVisible);
}

TEST(ClickGestureTest, AnotherPressTakesThePlaceOfAWaitingHide)
{
    Desk desk;
    desk.pressAndRelease(rightOnBar);

    desk.press(leftOnBar);
    EXPECT_FALSE(desk.isPanelVisible);
    desk.activate();
    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, PressesWhileTheMenuIsOpenLeaveThePanelAsItIs)
{
    Desk desk;
    desk.pressAndRelease(rightOnBar);
    desk.gesture.menuOpened();

    desk.pressAndRelease(leftOnMenu);
    desk.pressAndRelease(rightOnMenu);
    EXPECT_TRUE(desk.isPanelVisible);
    desk.pressAndRelease(leftElsewhere);
    EXPECT_TRUE(desk.isPanelVisible) << "closes the menu";
    desk.gesture.menuClosed();

    desk.pressAndRelease(leftElsewhere);
    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, AMenuWhoseClosingIsNotReportedEndsWithAPressBesideIt)
{
    Desk desk;
    desk.gesture.menuOpened();
    desk.pressAndRelease(leftElsewhere);

    desk.pressAndRelease(leftElsewhere);

    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, AMenuWhoseClosingIsNotReportedEndsWithTheLastMenuOnTheScreen)
{
    Desk desk;
    desk.pressAndRelease(rightOnBar);
    desk.gesture.menuRequested();
    desk.gesture.menusGone();

    desk.pressAndRelease(leftElsewhere);

    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, AClickOnTheItemEndsAMenuWhoseClosingIsNotReported)
{
    Desk desk;
    desk.gesture.menuOpened();
    desk.activate();
    desk.activate();
    ASSERT_TRUE(desk.isPanelVisible);

    desk.press(leftOnMenu);

    EXPECT_FALSE(desk.isPanelVisible);
}

TEST(ClickGestureTest, APressThatClosesTheMenuIsReadBeforeTheClosing)
{
    Desk desk;
    desk.gesture.menuOpened();
    desk.gesture.setCatchUp([&, isRead = false]() mutable {
        if (!std::exchange(isRead, true))
            desk.press(leftElsewhere);
    });

    desk.gesture.menuClosed();

    EXPECT_TRUE(desk.isPanelVisible);
}

} // namespace velto
