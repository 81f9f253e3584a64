// SPDX-License-Identifier: MIT
#include "desktop/windows/QtScreens.h"

#include "desktop/session/QtRunLoop.h"
#include "desktop/windows/FlippedGeometry.h"
#include "fixtures/Desktop.h"
#include "fixtures/OtherWindow.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

namespace velto {

void PrintTo(const Rect& rect, std::ostream* out)
{
    *out << "{" << rect.x << ", " << rect.y << ", " << rect.width << ", " << rect.height << "}";
}

void PrintTo(const Screen& screen, std::ostream* out)
{
    PrintTo(screen.frame, out);
    *out << " usable ";
    PrintTo(screen.visibleFrame, out);
}

namespace {

/// The primary screen stands at the right; the other one, left of it, reaches below it.
void makeTwoScreens()
{
    for (const QStringList& monitor : {QStringList{"*main", "1280/300x800/200+1000+0", "screen"},
             QStringList{"side", "1000/250x900/220+0+300", "none"}})
        ASSERT_TRUE(Desktop::run("xrandr", QStringList{"--setmonitor"} + monitor));
    ASSERT_TRUE(eventually([] {
        return QGuiApplication::screens().size() == 2
            && QGuiApplication::primaryScreen()->geometry() == QRect(1000, 0, 1280, 800);
    }));
}

const Rect mainFrame{1000, 0, 1280, 800};
const Rect sideFrame{0, -400, 1000, 900};

class QtScreensTest : public testing::Test {
protected:
    QtRunLoop runLoop;
};

} // namespace

TEST_F(QtScreensTest, AScreenByItselfHasItsOriginAtItsBottomLeft)
{
    EXPECT_EQ(QtScreens{runLoop}.mainScreen(), (Screen{{0, 0, 2400, 1200}, {0, 0, 2400, 1200}}));
}

TEST_F(QtScreensTest, PanelBarsAreNotUsable)
{
    Desktop::current().startWindowManager();
    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    bar.setStrut(0, 0, 30, 0);
    bar.show();

    EXPECT_TRUE(eventually([&] { return QtScreens{runLoop}.mainScreen()->visibleFrame == Rect{0, 0, 2400, 1170}; }));
    EXPECT_EQ(QtScreens{runLoop}.mainScreen()->frame, (Rect{0, 0, 2400, 1200}));
}

TEST_F(QtScreensTest, AScreenMayReachBelowThePrimaryOne)
{
    makeTwoScreens();
    const QtScreens screens{runLoop};

    EXPECT_EQ(screens.mainScreen(), (Screen{mainFrame, mainFrame}));
    EXPECT_EQ(screens.screenOf({100, -390, 40, 22}), (Screen{sideFrame, sideFrame}));
    EXPECT_EQ(screens.screenOf({1100, 700, 40, 22}), screens.mainScreen());
}

TEST_F(QtScreensTest, ARectangleIsWhereItsMiddleIs)
{
    makeTwoScreens();
    const QtScreens screens{runLoop};

    EXPECT_EQ(screens.screenOf({900, 100, 190, 20})->frame, sideFrame);
    EXPECT_EQ(screens.screenOf({900, 100, 210, 20})->frame, mainFrame);
    EXPECT_EQ(screens.screenOf({100, 600, 40, 22}), std::nullopt);
    EXPECT_EQ(screens.screenOf({5000, 100, 40, 22}), std::nullopt);
}

TEST_F(QtScreensTest, ABarTakesRoomOnItsOwnScreenOnly)
{
    Desktop::current().startWindowManager();
    makeTwoScreens();
    // Measured from the edge of the whole desktop, it would reach far into the other screen.
    OtherWindow bottom{{1000, 772, 1280, 28}, OtherWindow::Kind::dock};
    bottom.setStrut(0, 0, 0, 428);
    bottom.show();
    OtherWindow left{{0, 300, 64, 900}, OtherWindow::Kind::dock};
    left.setStrut(64, 0, 0, 0);
    left.show();
    const QtScreens screens{runLoop};

    EXPECT_TRUE(eventually([&] { return screens.mainScreen()->visibleFrame == Rect{1000, 28, 1280, 772}; }));
    EXPECT_TRUE(eventually([&] {
        return screens.screenOf({100, 0, 40, 22})->visibleFrame == Rect{64, -400, 936, 900};
    }));
    EXPECT_EQ(screens.mainScreen(), (Screen{mainFrame, {1000, 28, 1280, 772}}));
    EXPECT_EQ(screens.screenOf({100, 0, 40, 22}), (Screen{sideFrame, {64, -400, 936, 900}}));
}

TEST_F(QtScreensTest, ScreensComeAndGo)
{
    makeTwoScreens();
    ASSERT_TRUE(Desktop::run("xrandr", {"--delmonitor", "side"}));

    EXPECT_TRUE(eventually([&] { return !QtScreens{runLoop}.screenOf({100, -390, 40, 22}); }));
    EXPECT_EQ(QtScreens{runLoop}.mainScreen()->frame, mainFrame);
}

TEST_F(QtScreensTest, ChangesAreReported)
{
    Desktop::current().startWindowManager();
    QtScreens screens{runLoop};
    int changes = 0;
    const auto subscription = screens.changes([&] { ++changes; });
    const auto isTold = [&](const std::function<void()>& change) {
        // What is still under way is no answer.
        if (!stays([&] {
                changes = 0;
                return true;
            }))
            return false;
        change();
        return eventually([&] { return changes > 0; });
    };

    OtherWindow bar{{0, 0, 2400, 30}, OtherWindow::Kind::dock};
    bar.setStrut(0, 0, 30, 0);

    EXPECT_TRUE(isTold([&] { bar.show(); }));
    EXPECT_TRUE(isTold([] { makeTwoScreens(); }));
    EXPECT_TRUE(isTold([] { Desktop::run("xrandr", {"--delmonitor", "side"}); }));
}

TEST(FlippedGeometryTest, ConvertingThereAndBackChangesNothing)
{
    makeTwoScreens();
    const QRectF upperLeft{10.5, 310, 40, 22};
    const Rect flipped = rectFromQt(upperLeft);

    EXPECT_EQ(flipped, (Rect{10.5, 468, 40, 22}));
    EXPECT_EQ(rectToQt(flipped), upperLeft);
}

} // namespace velto
