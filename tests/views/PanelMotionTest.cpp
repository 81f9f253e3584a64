// SPDX-License-Identifier: MIT
#include "views/PanelContainerViewFixture.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace velto {

namespace {

class PanelMotionTest : public PanelContainerViewTest { };

/// A time in a window of its own, and where it was painted.
class PaintedTime : public RollingTime {
public:
    PaintedTime() : RollingTime(196)
    {
        show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(this));
    }

    /// Whole, with nothing rolling and nothing left to paint.
    void settle(const QString& text)
    {
        setTime(text, 64);
        findChild<Motion*>()->stop();
        findChild<Motion*>()->finish();
        repaint();
        QApplication::processEvents();
    }

    /// What is painted for another time until the next frame.
    QRegion paintedFor(const QString& text)
    {
        painted = QRegion();
        setTime(text, 64);
        findChild<Motion*>()->pause();
        QApplication::processEvents();
        return painted;
    }

    /// The points, from the left, where glyphs stand that do not roll.
    [[nodiscard]] QPoint middleOf(std::size_t cell) const
    {
        return (QRectF(rect()).center() + QPointF(glyphs()[cell].center.x(), 0)).toPoint();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        RollingTime::paintEvent(event);
    }

private:
    QRegion painted;
};

TEST_F(PanelMotionTest, TheArcGrowsEvenlyForAThirdOfASecondHoweverLongThePhase)
{
    for (const int minutes : {1, 25, 120}) {
        build(minutes);
        timer().start();
        turn();
        for (int second = 0; second < 3; ++second) {
            tick(1);
            const auto& ring = child<CircularProgressView>();

            EXPECT_NEAR(ring.drawnProgress() * minutes * 60, second, 1e-6);
            for (const double part : {0.2, 0.4, 0.6, 0.8, 1.0}) {
                moveTo(static_cast<int>(part * 350));
                EXPECT_NEAR(ring.drawnProgress() * minutes * 60, second + part, 1e-6);
            }
            look();
        }
    }
}

TEST_F(PanelMotionTest, TheArcIsDrawnLongerOnEveryTickOfTheUsualPhase)
{
    build(25);
    timer().start();
    auto before = child<CircularProgressView>().grab().toImage();
    for (int second = 1; second <= 60; ++second) {
        tick(1);
        moveTo(Motion::usualDuration);

        auto after = child<CircularProgressView>().grab().toImage();
        EXPECT_NE(before, after) << second;
        before = std::move(after);
    }
}

TEST_F(PanelMotionTest, DigitsThatChangeRollUpwardsAndTheOthersStandStill)
{
    build();
    timer().start();
    turn();
    tick(1);
    look();
    moveTo(Motion::usualDuration);
    const auto before = child<RollingTime>().glyphs();
    ASSERT_EQ(before.size(), 5u);

    tick(1);
    double oldY = 0;
    double newY = 1000;
    for (int moment = 50; moment < Motion::usualDuration; moment += 50) {
        moveTo(moment);
        const auto glyphs = child<RollingTime>().glyphs();
        ASSERT_EQ(glyphs.size(), 6u);
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(glyphs[i], before[i]);
        EXPECT_EQ(glyphs[4].character, '9');
        EXPECT_EQ(glyphs[5].character, '8');
        EXPECT_LT(glyphs[4].center.y(), oldY);
        EXPECT_LT(glyphs[5].center.y(), newY);
        EXPECT_GT(glyphs[5].center.y(), 0);
        EXPECT_EQ(glyphs[5].center.x(), before[4].center.x());
        EXPECT_DOUBLE_EQ(glyphs[4].opacity + glyphs[5].opacity, 1);
        oldY = glyphs[4].center.y();
        newY = glyphs[5].center.y();
    }

    moveTo(Motion::usualDuration);
    const auto after = child<RollingTime>().glyphs();
    ASSERT_EQ(after.size(), 5u);
    EXPECT_EQ(after[4], (RollingTime::Glyph{'8', {before[4].center.x(), 0}, 1}));
}

TEST_F(PanelMotionTest, EachDigitHasACellOfFixedWidth)
{
    build(1);
    timer().start();
    tick(1);
    moveTo(Motion::usualDuration);
    const auto first = child<RollingTime>().glyphs();

    // The last one ends in one place, and need not begin there; only for a narrow one do the others move, the one
    // before it most.
    for (int second = 1; second < 60; ++second) {
        tick(1);
        moveTo(Motion::usualDuration);
        const auto glyphs = child<RollingTime>().glyphs();
        ASSERT_EQ(glyphs.size(), first.size());
        const bool isNarrow = glyphs.back().character == '1';
        for (std::size_t i = 0; i + 1 < glyphs.size(); ++i)
            EXPECT_NEAR(glyphs[i].center.x(), first[i].center.x(), isNarrow ? (i == 3 ? 5 : 2.5) : 1e-6) << second;
    }
}

TEST_F(PanelMotionTest, WhatIsSeenOfTheTimeIsCentredWhateverItSays)
{
    RollingTime time(196);
    time.resize(196, 68);
    const auto expectCentred = [&time](const QString& text, double fontSize) {
        time.setTime(text, fontSize);
        const auto picture = time.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
        const int background = picture.constScanLine(0)[0];
        double left = picture.width();
        double right = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (std::abs(picture.constScanLine(y)[x] - background) < 96)
                    continue;
                left = std::min<double>(left, x);
                right = std::max<double>(right, x + 1);
            }
        }
        EXPECT_NEAR((left + right) / 2 / picture.devicePixelRatio(), 98, 0.5) << text.toStdString();
    };

    for (int minutes = 0; minutes < 100; ++minutes)
        for (const int seconds : {0, 1, 11, 24, 37, 46, 58})
            expectCentred(QString::asprintf("%02d:%02d", minutes, seconds), 64);
    for (const auto* text : {"100:00", "111:11", "999:59", "1000:01"})
        expectCentred(text, 54);
}

TEST_F(PanelMotionTest, ALastOneStandsNotMuchFurtherFromItsNeighbourThanAOneElsewhere)
{
    RollingTime time(196);
    const auto wayTo = [&time](const QString& text, std::size_t digit) {
        time.setTime(text, 64);
        const auto glyphs = time.glyphs();
        return glyphs[digit].center.x() - glyphs[digit - 1].center.x();
    };

    EXPECT_LT(wayTo("04:51", 4), wayTo("01:00", 1) + 2.5);
}

TEST_F(PanelMotionTest, OnlyTheDigitsThatChangeArePaintedForATick)
{
    PaintedTime time;
    for (int second = 59; second > 0; --second) {
        if (second % 10 <= 2)
            continue; // For a last "1" all make room, and the digit before the last changes after a "0".
        time.settle(QString::asprintf("24:%02d", second));
        const auto tens = time.middleOf(3);
        const auto ones = time.middleOf(4);

        const auto painted = time.paintedFor(QString::asprintf("24:%02d", second - 1));
        EXPECT_TRUE(painted.contains(ones)) << second;
        EXPECT_FALSE(painted.contains(tens)) << second;
    }
}

TEST_F(PanelMotionTest, ATimeThatComesWhileDigitsRollIsPaintedWhereTheyRolled)
{
    PaintedTime time;
    time.settle("24:00");
    const auto minutes = time.middleOf(1);
    ASSERT_TRUE(time.paintedFor("25:00").contains(minutes));

    EXPECT_TRUE(time.paintedFor("25:05").contains(minutes));
}

TEST_F(PanelMotionTest, EveryMotionLastsAThirdOfASecond)
{
    build();
    const auto motions = view->findChildren<Motion*>();

    EXPECT_EQ(motions.size(), 4);
    for (const auto* motion : motions)
        EXPECT_EQ(motion->duration(), 350);
}

TEST_F(PanelMotionTest, ANewPhaseFadesTheOldTitleOutWhileTheNewOneComesIn)
{
    build();
    auto& title = child<PhaseTitle>();
    timer().switchToPhase(PomodoroPhase::breakTime);
    turn();
    // Only the old title has a colour of its own; the new one is as dark as what is read.
    const auto strengths = [&] {
        const auto picture = title.grab().toImage();
        int colour = 0;
        int darkness = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const auto pixel = picture.pixelColor(x, y);
                colour = std::max(colour, pixel.blue() - pixel.red());
                darkness = std::max(darkness, 255 - pixel.blue());
            }
        }
        return std::pair{colour, darkness};
    };

    auto [lastColour, lastDarkness] = strengths();
    EXPECT_GT(lastColour, 100) << "The old title is whole at first.";
    for (const int moment : {100, 175, 250, 350}) {
        moveTo(moment);
        const auto [colour, darkness] = strengths();
        EXPECT_LT(colour, lastColour) << moment;
        EXPECT_GT(darkness, lastDarkness) << moment;
        EXPECT_EQ(colour > 10, moment < 300) << moment;
        std::tie(lastColour, lastDarkness) = std::pair{colour, darkness};
    }
}

TEST_F(PanelMotionTest, UnderReducedMotionEverythingJumps)
{
    QApplication::setEffectEnabled(Qt::UI_General, false);
    build(1);
    timer().start();
    turn();
    tick(1);

    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 1.0 / 60, 1e-9);
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    timer().switchToPhase(PomodoroPhase::breakTime);
    turn();
    for (const auto* motion : view->findChildren<Motion*>())
        EXPECT_EQ(motion->state(), QAbstractAnimation::Stopped);
}

TEST_F(PanelMotionTest, WhileHiddenNothingIsReadOrMovedAndShowingIsCurrentAtOnce)
{
    build(1);
    timer().start();
    turn();
    view->hide();
    PaintCounter paints(*view);

    timer().pause();
    timer().start();
    EXPECT_EQ(runLoop.waitingWorks(), 0u);
    tick(20);
    EXPECT_EQ(child<RollingTime>().spokenText(), "01:00");
    EXPECT_TRUE(paints.counts.empty());

    view->show();
    EXPECT_EQ(child<RollingTime>().spokenText(), "00:40");
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 20.0 / 60, 1e-9);
}

TEST_F(PanelMotionTest, HidingEndsWhatMoves)
{
    build(1);
    timer().start();
    turn();
    tick(1);
    moveTo(50);
    ASSERT_EQ(child<RollingTime>().glyphs().size(), 8u);

    view->hide();
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 1.0 / 60, 1e-9);
}

// Economy

TEST_F(PanelMotionTest, ManyChangesAreOneRefresh)
{
    build();
    timer().start();
    timer().pause();
    timer().reset();
    EXPECT_EQ(runLoop.waitingWorks(), 1u);

    turn();
    EXPECT_EQ(runLoop.waitingWorks(), 0u);
}

TEST_F(PanelMotionTest, WhatDidNotChangeIsNotPainted)
{
    build();
    timer().start();
    tick(5);
    moveTo(Motion::usualDuration);
    PaintCounter paints(*view);
    // Everything asked for by now is painted together with the button.
    const auto settle = [&](const QString& title) {
        paints.counts.clear();
        button(title)->update();
        return QTest::qWaitFor([&] { return paints.counts[button(title)] > 0; }, 20'000);
    };
    ASSERT_TRUE(settle("Pause"));

    timer().autoTransition.set(true);
    turn();
    ASSERT_TRUE(settle("Pause"));
    EXPECT_EQ(paints.counts[&child<CircularProgressView>()], 0);
    EXPECT_EQ(paints.counts[&child<RollingTime>()], 0);
    EXPECT_EQ(paints.counts[&child<PhaseTitle>()], 0);
    EXPECT_EQ(paints.counts[button("Reset")], 0);
    EXPECT_EQ(paints.counts[label("velto")], 0);

    // The digits roll over what lies behind them.
    tick(1);
    moveTo(100);
    ASSERT_TRUE(settle("Pause"));
    EXPECT_GT(paints.counts[&child<RollingTime>()], 0);
    EXPECT_EQ(paints.counts[&child<CircularProgressView>()], 0);

    // A tick paints the time and the ring, and neither the title nor the buttons nor the lines below.
    moveTo(Motion::usualDuration);
    ASSERT_TRUE(settle("Pause"));
    EXPECT_GT(paints.counts[&child<CircularProgressView>()], 0);
    EXPECT_GT(paints.counts[&child<RollingTime>()], 0);
    EXPECT_EQ(paints.counts[&child<PhaseTitle>()], 0);
    EXPECT_EQ(paints.counts[button("Reset")], 0);
    EXPECT_EQ(paints.counts[label("velto")], 0);
}

} // namespace

} // namespace velto
