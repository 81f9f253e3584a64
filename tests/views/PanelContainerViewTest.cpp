// SPDX-License-Identifier: MIT
#include "panel/PanelContainerView.h"

#include "core/PomodoroTimer.h"
#include "desktop/session/Appearance.h"
#include "observation/NotificationCenter.h"
#include "panel/CircularProgressView.h"
#include "panel/PhaseTitle.h"
#include "panel/RollingTime.h"
#include "panel/TimerPanelController.h"
#include "settings/AppSettings.h"
#include "style/Button.h"
#include "style/Colors.h"
#include "style/SymbolView.h"
#include "style/TextLabel.h"
#include "support/FakeBundle.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeRunLoop.h"
#include "support/FakeSoundLibrary.h"
#include "support/FakeStreamPlayerFactory.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velto {

namespace {

using namespace std::chrono_literals;

constexpr auto light = Theme::light;

/// Counts what each widget under a view paints.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& root)
    {
        root.installEventFilter(this);
        for (auto* child : root.findChildren<QWidget*>())
            child->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++counts[watched];
        return false;
    }

    std::map<QObject*, int> counts;
};

std::vector<QAccessible::Event> announcements;

class PanelContainerViewTest : public testing::Test {
protected:
    PanelContainerViewTest()
    {
        QApplication::setPalette(paletteFor(light));
        QApplication::setEffectEnabled(Qt::UI_General, true);
        setDesktopFont(10);
        store.values["focusMinutes"] = std::int64_t{25};
        store.values["breakMinutes"] = std::int64_t{5};
    }

    ~PanelContainerViewTest() override
    {
        QAccessible::installUpdateHandler(nullptr);
        accessibility().setActive(false);
        setDesktopFont(10);
    }

    static void setDesktopFont(double points)
    {
        auto font = QApplication::font();
        font.setPointSizeF(points);
        QApplication::setFont(font);
        QApplication::processEvents();
    }

    static QPlatformAccessibility& accessibility()
    {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }

    void build(std::int64_t focusMinutes = 25, std::int64_t breakMinutes = 5)
    {
        view.reset();
        timer.reset();
        store.values["focusMinutes"] = focusMinutes;
        store.values["breakMinutes"] = breakMinutes;
        settings = std::make_unique<AppSettings>(store, sounds);
        timer = std::make_unique<PomodoroTimer>(*settings, runLoop, players);
        view = std::make_unique<PanelContainerView>(*timer, *settings, Size{360, 420}, runLoop, bundle, makeSheet);
        view->show();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
        look();
    }

    /// The user sees the view as it is.
    QImage look()
    {
        QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        return view->grab().toImage();
    }

    /// Takes everything that moves to a moment of its motion, in milliseconds.
    void moveTo(int moment)
    {
        for (auto* motion : view->findChildren<Motion*>())
            if (motion->state() == QAbstractAnimation::Running)
                motion->setCurrentTime(moment);
    }

    /// The turn of the event loop in which views answer to changes.
    void turn() { runLoop.runTurns(); }

    template <class Child>
    Child& child()
    {
        return *view->findChild<Child*>();
    }

    Button* button(const QString& title)
    {
        for (auto* candidate : view->findChildren<Button*>())
            if (candidate->text() == title)
                return candidate->isVisible() ? candidate : nullptr;
        return nullptr;
    }

    TextLabel* label(const QString& text)
    {
        for (auto* candidate : view->findChildren<TextLabel*>())
            if (candidate->text() == text)
                return candidate;
        return nullptr;
    }

    std::vector<QString> buttonTitles()
    {
        std::vector<QString> titles;
        for (auto* candidate : view->findChildren<Button*>())
            if (candidate->isVisible())
                titles.push_back(candidate->text());
        return titles;
    }

    /// In the card's coordinates.
    QRect frame(const QWidget* widget) { return {widget->mapTo(view.get(), QPoint()), widget->size()}; }
    QRect ringFrame()
    {
        auto& ring = child<CircularProgressView>();
        return ring.contentsRect().translated(ring.mapTo(view.get(), QPoint()));
    }

    QColor pixel(const QImage& image, QPointF point)
    {
        const auto scale = view->devicePixelRatioF();
        return image.pixelColor((point * scale).toPoint());
    }

    FakeRunLoop runLoop;
    FakeKeyValueStore store;
    FakeSoundLibrary sounds;
    FakeStreamPlayerFactory players;
    FakeBundle bundle;
    SettingsSheetFactory makeSheet;
    std::unique_ptr<AppSettings> settings;
    std::unique_ptr<PomodoroTimer> timer;
    std::unique_ptr<PanelContainerView> view;
};

// Layout

TEST_F(PanelContainerViewTest, FramesAreExact)
{
    build();
    const auto& content = child<ContentView>();

    EXPECT_EQ(view->size(), QSize(360, 420));
    EXPECT_EQ(frame(&content), QRect(20, 20, 320, 380));
    EXPECT_EQ(ringFrame().size(), QSize(220, 220));
    const auto center = QRectF(ringFrame()).center();
    EXPECT_EQ(center.x(), 180);
    EXPECT_NEAR(QRectF(frame(&child<PhaseTitle>())).center().x(), 180, 0.5);
    EXPECT_NEAR(QRectF(frame(&child<PhaseTitle>())).center().y(), center.y() - 50, 0.5);
    EXPECT_EQ(QRectF(frame(&child<RollingTime>())).center(), center);
}

TEST_F(PanelContainerViewTest, TheRowsStandAtTheirDistances)
{
    build();
    timer->start();
    turn();
    const auto pause = frame(button("Pause"));
    const auto reset = frame(button("Reset"));
    const auto durations = frame(label("Focus: 25m  \u2022  Break: 5m")).united(frame(view->findChild<SymbolView*>()));
    const auto name = frame(label("velto"));

    EXPECT_EQ(pause.top(), ringFrame().bottom() + 1 + 10 + 12);
    EXPECT_EQ(pause.left(), 20 + 16);
    EXPECT_EQ(reset.right(), 20 + 320 - 16 - 1);
    EXPECT_EQ(reset.left(), pause.right() + 1 + 12);
    EXPECT_EQ(pause.size(), reset.size());
    EXPECT_EQ(durations.top(), pause.bottom() + 1 + 12 + 20);
    EXPECT_EQ(name.top(), durations.bottom() + 1 + 12);
    EXPECT_NEAR(QRectF(name).center().x(), 180, 0.5);
    // As much above as below.
    EXPECT_NEAR(ringFrame().top() - 10 - 20, 20 + 380 - (name.bottom() + 1), 1);
}

TEST_F(PanelContainerViewTest, EverythingFitsAtEveryTextSizeAndLength)
{
    for (const double points : {10.0, 11.0, 12.5, 18.0}) {
        setDesktopFont(points);
        for (const std::int64_t minutes : {25, 99, 100, 999, 1000}) {
            build(minutes, 1000);
            timer->start();
            runLoop.advance(1s);
            look();

            const auto content = frame(&child<ContentView>());
            for (const auto* widget : view->findChildren<QWidget*>()) {
                if (!widget->isVisible())
                    continue;
                EXPECT_TRUE(content.contains(frame(widget))) << widget->metaObject()->className() << points;
                if (qobject_cast<const TextLabel*>(widget) || qobject_cast<const Button*>(widget)) {
                    EXPECT_GE(widget->width(), widget->sizeHint().width());
                    EXPECT_GE(widget->height(), widget->sizeHint().height());
                }
            }
            const auto& title = child<PhaseTitle>();
            EXPECT_GE(title.width(), title.sizeHint().width());
            EXPECT_GE(title.height(), title.sizeHint().height());
            EXPECT_LE(child<RollingTime>().textWidth(), child<RollingTime>().width());
        }
    }
}

TEST_F(PanelContainerViewTest, TheNameIsTheBundlesOrVelto)
{
    bundle.values["CFBundleName"] = "Tomato";
    build();
    EXPECT_TRUE(label("Tomato"));

    bundle.values.clear();
    build();
    EXPECT_TRUE(label("velto"));
}

TEST_F(PanelContainerViewTest, TheCardIsOpaqueWithinItsCornersAndNothingOutside)
{
    build();
    for (const auto theme : {Theme::light, Theme::dark}) {
        QApplication::setPalette(paletteFor(theme));
        QApplication::processEvents();
        QImage image(view->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        view->render(&image, {}, {}, QWidget::DrawChildren);

        for (const auto corner : {QPoint(0, 0), QPoint(359, 0), QPoint(359, 419), QPoint(0, 419)})
            EXPECT_EQ(image.pixelColor(corner).alpha(), 0);
        EXPECT_EQ(image.pixelColor(180, 8), color(ColorName::windowBackground, theme));
        // The outline lies on the card's edge and can be told from it.
        EXPECT_EQ(image.pixelColor(180, 0).alpha(), 255);
        EXPECT_NE(image.pixelColor(180, 0), color(ColorName::windowBackground, theme));
        EXPECT_EQ(image.pixelColor(180, 2), color(ColorName::windowBackground, theme));
    }
}

// What it shows

TEST_F(PanelContainerViewTest, BelowAHundredMinutesTheTimeIsLarge)
{
    build(100);
    EXPECT_EQ(child<RollingTime>().spokenText(), "100:00");
    EXPECT_EQ(child<RollingTime>().fontSize(), 54);

    timer->start();
    runLoop.advance(1s);
    EXPECT_EQ(child<RollingTime>().spokenText(), "99:59");
    EXPECT_EQ(child<RollingTime>().fontSize(), 64);
}

TEST_F(PanelContainerViewTest, AtZeroTheCircleIsFull)
{
    build(1);
    timer->start();
    runLoop.advance(60s);
    moveTo(Motion::usualDuration);
    const auto image = look();

    EXPECT_EQ(child<RollingTime>().spokenText(), "00:00");
    EXPECT_EQ(child<CircularProgressView>().progress(), 1.0);
    const QRectF ring = ringFrame();
    for (const auto point : {QPointF(ring.center().x(), ring.top() + 1), QPointF(ring.center().x(), ring.bottom() - 1),
             QPointF(ring.left() + 1, ring.center().y()), QPointF(ring.right() - 1, ring.center().y())})
        EXPECT_EQ(pixel(image, point), color(ColorName::teal, light));
}

TEST_F(PanelContainerViewTest, AtTheStartNoArcIsDrawn)
{
    build();
    const auto image = look();

    EXPECT_EQ(child<CircularProgressView>().progress(), 0.0);
    const QRectF ring = ringFrame();
    const auto track = pixel(image, {ring.right() - 1, ring.center().y()});
    EXPECT_EQ(pixel(image, {ring.center().x(), ring.top() + 1}), track);
    EXPECT_NE(track, color(ColorName::windowBackground, light));
}

TEST_F(PanelContainerViewTest, TheArcGrowsClockwiseFromTheTop)
{
    build(1);
    timer->start();
    runLoop.advance(30s);
    moveTo(Motion::usualDuration);
    const auto image = look();

    const QRectF ring = ringFrame();
    const auto teal = color(ColorName::teal, light);
    EXPECT_EQ(pixel(image, {ring.right() - 1, ring.center().y()}), teal);
    EXPECT_NE(pixel(image, {ring.left() + 1, ring.center().y()}), teal);
    // Round caps reach over both ends, to the left of the middle.
    EXPECT_EQ(pixel(image, {ring.center().x() - 3, ring.top() + 1}), teal);
    EXPECT_EQ(pixel(image, {ring.center().x() - 3, ring.bottom() - 1}), teal);
}

TEST_F(PanelContainerViewTest, APhaseWithoutLengthDrawsNoArc)
{
    build(0);

    EXPECT_EQ(child<CircularProgressView>().progress(), 0.0);
    EXPECT_EQ(child<RollingTime>().spokenText(), "00:00");
}

TEST_F(PanelContainerViewTest, MoreRemainingThanThePhaseIsLongDrawsNoArc)
{
    build(25);
    auto& ring = child<CircularProgressView>();
    const auto withoutArc = ring.grab().toImage();
    timer->start();
    turn();
    timer->updateDurationsWithoutReset(20, 5);
    turn();
    moveTo(Motion::usualDuration);

    EXPECT_DOUBLE_EQ(ring.progress(), -0.25);
    EXPECT_EQ(ring.grab().toImage(), withoutArc);
}

TEST_F(PanelContainerViewTest, TheDurationsLineFollowsTheTimer)
{
    build();
    timer->updateDurations(50, 10);
    turn();

    EXPECT_TRUE(label("Focus: 50m  \u2022  Break: 10m"));
}

TEST_F(PanelContainerViewTest, ABreakTurnsRingAndTitleToThePrimaryColour)
{
    build(1, 1);
    timer->start();
    runLoop.advance(61s);
    timer->start();
    runLoop.advance(30s);
    moveTo(Motion::usualDuration);
    const auto image = look();

    EXPECT_EQ(child<PhaseTitle>().spokenText(), "Break");
    const QRectF ring = ringFrame();
    EXPECT_EQ(pixel(image, {ring.right() - 1, ring.center().y()}), color(ColorName::label, light));
    const auto title = child<PhaseTitle>().grab().toImage();
    bool hasTeal = false;
    bool hasLabel = false;
    for (int y = 0; y < title.height(); ++y) {
        for (int x = 0; x < title.width(); ++x) {
            hasTeal = hasTeal || title.pixelColor(x, y) == color(ColorName::teal, light);
            hasLabel = hasLabel || title.pixelColor(x, y) == color(ColorName::label, light);
        }
    }
    EXPECT_FALSE(hasTeal);
    EXPECT_TRUE(hasLabel);
}

TEST_F(PanelContainerViewTest, TheThemeIsFollowedWhileShown)
{
    build();
    QApplication::setPalette(paletteFor(Theme::dark));
    QApplication::processEvents();
    EXPECT_EQ(pixel(look(), {180, 8}), color(ColorName::windowBackground, Theme::dark));

    QApplication::setPalette(paletteFor(Theme::light));
    QApplication::processEvents();
    EXPECT_EQ(pixel(look(), {180, 8}), color(ColorName::windowBackground, Theme::light));
}

// Controls

TEST_F(PanelContainerViewTest, TheControlsTakeTheirThreeForms)
{
    build();
    EXPECT_EQ(buttonTitles(), std::vector<QString>{"Start"});
    EXPECT_EQ(button("Start")->width(), 320 - 2 * 16);

    timer->start();
    turn();
    EXPECT_EQ(buttonTitles(), (std::vector<QString>{"Pause", "Reset"}));

    timer->pause();
    turn();
    look();
    EXPECT_EQ(buttonTitles(), (std::vector<QString>{"Start", "Reset"}));
    EXPECT_EQ(button("Start")->width(), button("Reset")->width());

    timer->reset();
    turn();
    EXPECT_EQ(buttonTitles(), std::vector<QString>{"Start"});
}

TEST_F(PanelContainerViewTest, ButtonsWorkTheTimer)
{
    build();
    QTest::mouseClick(button("Start"), Qt::LeftButton);
    EXPECT_TRUE(timer->isRunning());

    runLoop.advance(3s);
    QTest::mouseClick(button("Pause"), Qt::LeftButton);
    EXPECT_FALSE(timer->isRunning());
    EXPECT_EQ(timer->remainingSeconds(), 1497);

    turn();
    QTest::mouseClick(button("Reset"), Qt::LeftButton);
    EXPECT_EQ(timer->remainingSeconds(), 1500);
    EXPECT_FALSE(timer->hasStarted());
}

TEST_F(PanelContainerViewTest, TheKeyboardWorksTheTimerAndKeepsItsPlace)
{
    build();
    QTest::keyClick(view.get(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), button("Start"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    turn();
    EXPECT_TRUE(timer->isRunning());
    EXPECT_EQ(QApplication::focusWidget(), button("Pause"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    turn();
    EXPECT_FALSE(timer->isRunning());
    EXPECT_EQ(QApplication::focusWidget(), button("Start"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button("Reset"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    turn();
    EXPECT_FALSE(timer->hasStarted());
    EXPECT_EQ(QApplication::focusWidget(), button("Start"));
}

// Accessibility

TEST_F(PanelContainerViewTest, AssistiveTechnologyReadsWhatIsShown)
{
    build();
    timer->start();
    runLoop.advance(375s);
    const auto interface = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };

    EXPECT_EQ(interface(&child<RollingTime>())->text(QAccessible::Name), "18:45");
    EXPECT_EQ(interface(&child<RollingTime>())->role(), QAccessible::StaticText);
    EXPECT_EQ(interface(&child<PhaseTitle>())->text(QAccessible::Name), "Focus");
    EXPECT_EQ(interface(&child<PhaseTitle>())->role(), QAccessible::StaticText);
    auto* ring = interface(&child<CircularProgressView>());
    EXPECT_EQ(ring->role(), QAccessible::ProgressBar);
    EXPECT_EQ(ring->valueInterface()->currentValue().toInt(), 25);
    EXPECT_EQ(ring->valueInterface()->maximumValue().toInt(), 100);
    EXPECT_EQ(ring->rect().size(), QSize(220, 220));
    EXPECT_EQ(interface(button("Pause"))->text(QAccessible::Name), "Pause");
    EXPECT_EQ(interface(button("Reset"))->text(QAccessible::Name), "Reset");
    EXPECT_EQ(interface(label("velto"))->text(QAccessible::Name), "velto");
}

TEST_F(PanelContainerViewTest, ThePhaseIsAnnouncedAndTheTicksAreNot)
{
    build(1, 5);
    timer->start();
    turn();
    accessibility().setActive(true);
    announcements.clear();
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) { announcements.push_back(event->type()); });

    runLoop.advance(60s);
    EXPECT_TRUE(announcements.empty());

    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (qobject_cast<PhaseTitle*>(event->object()))
            announcements.push_back(event->type());
    });
    runLoop.advance(1s);
    EXPECT_EQ(announcements, (std::vector<QAccessible::Event>{QAccessible::NameChanged, QAccessible::Alert}));
}

// Motion

TEST_F(PanelContainerViewTest, TheArcGrowsEvenlyForAThirdOfASecondHoweverLongThePhase)
{
    for (const int minutes : {1, 25, 120}) {
        build(minutes);
        timer->start();
        turn();
        for (int tick = 0; tick < 3; ++tick) {
            runLoop.advance(1s);
            const auto& ring = child<CircularProgressView>();

            EXPECT_NEAR(ring.drawnProgress() * minutes * 60, tick, 1e-6);
            for (const double part : {0.2, 0.4, 0.6, 0.8, 1.0}) {
                moveTo(static_cast<int>(part * 350));
                EXPECT_NEAR(ring.drawnProgress() * minutes * 60, tick + part, 1e-6);
            }
            look();
        }
    }
}

TEST_F(PanelContainerViewTest, TheArcIsDrawnLongerOnEveryTickOfTheUsualPhase)
{
    build(25);
    timer->start();
    auto before = child<CircularProgressView>().grab().toImage();
    for (int tick = 1; tick <= 60; ++tick) {
        runLoop.advance(1s);
        moveTo(Motion::usualDuration);

        auto after = child<CircularProgressView>().grab().toImage();
        EXPECT_NE(before, after) << tick;
        before = std::move(after);
    }
}

TEST_F(PanelContainerViewTest, DigitsThatChangeRollUpwardsAndTheOthersStandStill)
{
    build();
    timer->start();
    turn();
    runLoop.advance(1s);
    look();
    moveTo(Motion::usualDuration);
    const auto before = child<RollingTime>().glyphs();
    ASSERT_EQ(before.size(), 5u);

    runLoop.advance(1s);
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

TEST_F(PanelContainerViewTest, EachDigitHasACellOfFixedWidth)
{
    build(1);
    timer->start();
    std::vector<double> columns;
    for (const auto& glyph : child<RollingTime>().glyphs())
        columns.push_back(glyph.center.x());

    for (int second = 0; second < 60; ++second) {
        runLoop.advance(1s);
        moveTo(Motion::usualDuration);
        const auto glyphs = child<RollingTime>().glyphs();
        ASSERT_EQ(glyphs.size(), columns.size());
        for (std::size_t i = 0; i < glyphs.size(); ++i)
            EXPECT_EQ(glyphs[i].center.x(), columns[i]);
    }
}

TEST_F(PanelContainerViewTest, EveryMotionLastsAThirdOfASecond)
{
    build();
    const auto motions = view->findChildren<Motion*>();

    EXPECT_EQ(motions.size(), 4);
    for (const auto* motion : motions)
        EXPECT_EQ(motion->duration(), 350);
}

TEST_F(PanelContainerViewTest, ANewPhaseFadesItsTitleIn)
{
    build();
    auto& title = child<PhaseTitle>();
    timer->switchToPhase(PomodoroPhase::breakTime);
    turn();
    std::vector<QImage> pictures;
    for (const int moment : {0, 100, 250, 350}) {
        moveTo(moment);
        pictures.push_back(title.grab().toImage());
    }

    for (std::size_t i = 1; i < pictures.size(); ++i)
        EXPECT_NE(pictures[i - 1], pictures[i]);
}

TEST_F(PanelContainerViewTest, UnderReducedMotionEverythingJumps)
{
    QApplication::setEffectEnabled(Qt::UI_General, false);
    build(1);
    timer->start();
    turn();
    runLoop.advance(1s);

    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 1.0 / 60, 1e-9);
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    timer->switchToPhase(PomodoroPhase::breakTime);
    turn();
    for (const auto* motion : view->findChildren<Motion*>())
        EXPECT_EQ(motion->state(), QAbstractAnimation::Stopped);
}

TEST_F(PanelContainerViewTest, WhileHiddenNothingIsReadOrMovedAndShowingIsCurrentAtOnce)
{
    build(1);
    timer->start();
    turn();
    view->hide();
    PaintCounter paints(*view);

    timer->pause();
    timer->start();
    EXPECT_EQ(runLoop.waitingWorks(), 0u);
    runLoop.advance(20s);
    EXPECT_EQ(child<RollingTime>().spokenText(), "01:00");
    EXPECT_TRUE(paints.counts.empty());

    view->show();
    EXPECT_EQ(child<RollingTime>().spokenText(), "00:40");
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 20.0 / 60, 1e-9);
}

TEST_F(PanelContainerViewTest, HidingEndsWhatMoves)
{
    build(1);
    timer->start();
    turn();
    runLoop.advance(1s);
    moveTo(50);
    ASSERT_EQ(child<RollingTime>().glyphs().size(), 8u);

    view->hide();
    EXPECT_EQ(child<RollingTime>().glyphs().size(), 5u);
    EXPECT_NEAR(child<CircularProgressView>().drawnProgress(), 1.0 / 60, 1e-9);
}

// Economy

TEST_F(PanelContainerViewTest, ManyChangesAreOneRefresh)
{
    build();
    timer->start();
    timer->pause();
    timer->reset();
    EXPECT_EQ(runLoop.waitingWorks(), 1u);

    turn();
    EXPECT_EQ(runLoop.waitingWorks(), 0u);
}

TEST_F(PanelContainerViewTest, WhatDidNotChangeIsNotPainted)
{
    build();
    timer->start();
    runLoop.advance(5s);
    moveTo(Motion::usualDuration);
    PaintCounter paints(*view);
    // Everything asked for by now is painted together with the button.
    const auto settle = [&](const QString& title) {
        paints.counts.clear();
        button(title)->update();
        return QTest::qWaitFor([&] { return paints.counts[button(title)] > 0; }, 20'000);
    };
    ASSERT_TRUE(settle("Pause"));

    timer->autoTransition.set(true);
    turn();
    ASSERT_TRUE(settle("Pause"));
    EXPECT_EQ(paints.counts[&child<CircularProgressView>()], 0);
    EXPECT_EQ(paints.counts[&child<RollingTime>()], 0);
    EXPECT_EQ(paints.counts[&child<PhaseTitle>()], 0);
    EXPECT_EQ(paints.counts[button("Reset")], 0);
    EXPECT_EQ(paints.counts[label("velto")], 0);

    // A tick paints the time and the ring, and neither the title nor the buttons nor the lines below.
    runLoop.advance(1s);
    ASSERT_TRUE(settle("Pause"));
    EXPECT_GT(paints.counts[&child<CircularProgressView>()], 0);
    EXPECT_GT(paints.counts[&child<RollingTime>()], 0);
    EXPECT_EQ(paints.counts[&child<PhaseTitle>()], 0);
    EXPECT_EQ(paints.counts[button("Reset")], 0);
    EXPECT_EQ(paints.counts[label("velto")], 0);
}

// The settings sheet

class SettingsSheetSeamTest : public PanelContainerViewTest {
protected:
    SettingsSheetSeamTest()
    {
        makeSheet = [this](AppSettings& sheetSettings, PomodoroTimer& sheetTimer, QWidget& presenter,
                        std::function<void()> done) {
            ++made;
            EXPECT_EQ(&sheetSettings, settings.get());
            EXPECT_EQ(&sheetTimer, timer.get());
            auto built = std::make_unique<QWidget>(presenter.window(), Qt::Tool);
            sheet = built.get();
            dismiss = std::move(done);
            return built;
        };
    }

    static void requestSettings() { NotificationCenter::defaultCenter().post(statusBarShowSettings); }

    int made = 0;
    QPointer<QWidget> sheet;
    std::function<void()> dismiss;
};

TEST_F(SettingsSheetSeamTest, ARequestOpensTheSheetAndAnotherChangesNothing)
{
    build();
    EXPECT_FALSE(child<ContentView>().showSettings());

    requestSettings();
    EXPECT_TRUE(child<ContentView>().showSettings());
    ASSERT_TRUE(sheet);
    EXPECT_TRUE(sheet->isVisible());

    requestSettings();
    EXPECT_EQ(made, 1);
}

TEST_F(SettingsSheetSeamTest, TheSheetHidesAndShowsWithThePanelAndIsTheSame)
{
    build();
    requestSettings();
    const auto* first = sheet.data();

    view->hide();
    EXPECT_TRUE(child<ContentView>().showSettings());
    EXPECT_FALSE(sheet->isVisible());

    view->show();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet.data(), first);
    EXPECT_EQ(made, 1);
}

TEST_F(SettingsSheetSeamTest, DismissingClosesItAndTheNextRequestMakesANewOne)
{
    build();
    requestSettings();
    dismiss();
    EXPECT_FALSE(child<ContentView>().showSettings());
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet.isNull(); }, 20'000));

    view->hide();
    view->show();
    EXPECT_EQ(made, 1);

    requestSettings();
    EXPECT_EQ(made, 2);
}

TEST_F(SettingsSheetSeamTest, WhileHiddenRequestsAreNotHeard)
{
    build();
    view->hide();
    requestSettings();

    EXPECT_EQ(made, 0);
}

TEST_F(SettingsSheetSeamTest, ASheetGoesWithItsView)
{
    build();
    requestSettings();
    view.reset();

    EXPECT_TRUE(sheet.isNull());
}

TEST_F(SettingsSheetSeamTest, WithoutASheetARequestDoesNothing)
{
    makeSheet = {};
    build();
    requestSettings();

    EXPECT_FALSE(child<ContentView>().showSettings());
}

} // namespace

} // namespace velto
