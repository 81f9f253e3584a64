// SPDX-License-Identifier: MIT
#include "views/PanelContainerViewFixture.h"

#include "style/SymbolView.h"

#include <string>

namespace velto {

namespace {

constexpr auto light = Theme::light;

std::vector<QAccessible::Event> announcements;

double widthOf(const QString& time, double fontSize)
{
    RollingTime view(320);
    view.setTime(time, fontSize);
    return view.textWidth();
}

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
    timer().start();
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
    EXPECT_EQ(child<RollingTime>().textWidth(), widthOf("100:00", 54));

    timer().start();
    tick(1);
    EXPECT_EQ(child<RollingTime>().spokenText(), "99:59");
    EXPECT_EQ(child<RollingTime>().textWidth(), widthOf("99:59", 64));
}

TEST_F(PanelContainerViewTest, AtZeroTheCircleIsFull)
{
    build(1);
    timer().start();
    tick(60);
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
    timer().start();
    tick(30);
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
    timer().start();
    turn();
    timer().updateDurationsWithoutReset(20, 5);
    turn();
    moveTo(Motion::usualDuration);

    EXPECT_DOUBLE_EQ(ring.progress(), -0.25);
    EXPECT_EQ(ring.grab().toImage(), withoutArc);
}

TEST_F(PanelContainerViewTest, TheDurationsLineFollowsTheTimer)
{
    build();
    timer().updateDurations(50, 10);
    turn();

    EXPECT_TRUE(label("Focus: 50m  \u2022  Break: 10m"));
}

TEST_F(PanelContainerViewTest, ABreakTurnsRingAndTitleToThePrimaryColour)
{
    build(1, 1);
    timer().start();
    tick(61);
    timer().start();
    tick(30);
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

    timer().start();
    turn();
    EXPECT_EQ(buttonTitles(), (std::vector<QString>{"Pause", "Reset"}));

    timer().pause();
    turn();
    look();
    EXPECT_EQ(buttonTitles(), (std::vector<QString>{"Start", "Reset"}));
    EXPECT_EQ(button("Start")->width(), button("Reset")->width());

    timer().reset();
    turn();
    EXPECT_EQ(buttonTitles(), std::vector<QString>{"Start"});
}

TEST_F(PanelContainerViewTest, ButtonsWorkTheTimer)
{
    build();
    QTest::mouseClick(button("Start"), Qt::LeftButton);
    EXPECT_TRUE(timer().isRunning());

    tick(3);
    QTest::mouseClick(button("Pause"), Qt::LeftButton);
    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(timer().remainingSeconds(), 1497);

    turn();
    QTest::mouseClick(button("Reset"), Qt::LeftButton);
    EXPECT_EQ(timer().remainingSeconds(), 1500);
    EXPECT_FALSE(timer().hasStarted());
}

TEST_F(PanelContainerViewTest, TheKeyboardWorksTheTimerAndKeepsItsPlace)
{
    build();
    QTest::keyClick(view.get(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), button("Start"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    turn();
    EXPECT_TRUE(timer().isRunning());
    EXPECT_EQ(QApplication::focusWidget(), button("Pause"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    turn();
    EXPECT_FALSE(timer().isRunning());
    EXPECT_EQ(QApplication::focusWidget(), button("Start"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), button("Reset"));

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    turn();
    EXPECT_FALSE(timer().hasStarted());
    EXPECT_EQ(QApplication::focusWidget(), button("Start"));
}

// Accessibility

TEST_F(PanelContainerViewTest, AssistiveTechnologyReadsWhatIsShown)
{
    build();
    timer().start();
    tick(375);
    const auto interface = [](QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); };

    EXPECT_EQ(interface(&child<RollingTime>())->text(QAccessible::Name), "18:45");
    EXPECT_EQ(interface(&child<RollingTime>())->role(), QAccessible::StaticText);
    EXPECT_EQ(interface(&child<PhaseTitle>())->text(QAccessible::Name), "Focus");
    EXPECT_EQ(interface(&child<PhaseTitle>())->role(), QAccessible::Notification);
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
    timer().start();
    turn();
    accessibility().setActive(true);
    announcements.clear();
    QAccessible::installUpdateHandler([](QAccessibleEvent* event) { announcements.push_back(event->type()); });

    tick(60);
    EXPECT_TRUE(announcements.empty());

    QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (qobject_cast<PhaseTitle*>(event->object()))
            announcements.push_back(event->type());
    });
    tick(1);
    EXPECT_EQ(announcements, (std::vector<QAccessible::Event>{QAccessible::NameChanged, QAccessible::ObjectShow}));
}

} // namespace

} // namespace velto
