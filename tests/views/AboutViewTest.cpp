// SPDX-License-Identifier: MIT
#include "help_about/AboutView.h"

#include "help_about/ApplicationIcon.h"
#include "style/Button.h"
#include "style/Colors.h"
#include "support/FakeBundle.h"
#include "support/FakeCalendar.h"
#include "support/FakeRunLoop.h"
#include "support/FakeWorkspace.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <cmath>

namespace velto {

namespace {

using namespace std::chrono_literals;

class AboutViewTest : public testing::Test {
protected:
    AboutViewTest()
    {
        view.setPalette(paletteFor(Theme::light));
        bundle.values = {{"CFBundleShortVersionString", "1.2"}, {"CFBundleVersion", "34"}};
        view.resize(640, 240);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        buttons = view.findChildren<Button*>();
    }

    QStringList texts() const
    {
        QStringList texts;
        for (const auto* label : view.findChildren<QLabel*>())
            texts += label->text();
        return texts;
    }
    QRect place(const QWidget* child) const { return {child->mapTo(&view, QPoint()), child->size()}; }

    FakeBundle bundle;
    FakeCalendar calendar;
    FakeWorkspace workspace;
    FakeRunLoop runLoop;
    AboutView view{QSize(640, 240), {"Somebody", "mailto:a@b.example", "https://b.example", "https://b.example/coffee"},
        bundle, calendar, workspace, runLoop};
    QList<Button*> buttons;
};

TEST_F(AboutViewTest, SaysWhatTheProgramIs)
{
    EXPECT_EQ(texts(),
        (QStringList{"velto - Focus Timer",
            "A focus timer companion built to keep sessions simple and distraction-free.", "v1.2 (34)",
            "© 2025 Somebody. All rights reserved."}));
    ASSERT_EQ(buttons.size(), 3);
    EXPECT_EQ(buttons.at(0)->text(), "Support");
    EXPECT_EQ(buttons.at(1)->text(), "Website");
    EXPECT_EQ(buttons.at(2)->text(), "Buy Me a Coffee");
}

TEST_F(AboutViewTest, ReadsItsTextsAgainWheneverItIsShown)
{
    view.hide();
    bundle.values = {{"CFBundleName", "Egg Clock"}, {"CFBundleShortVersionString", "2"}};
    calendar.year = 2026;

    view.show();

    EXPECT_TRUE(texts().contains("Egg Clock - Focus Timer"));
    EXPECT_TRUE(texts().contains("v2"));
    EXPECT_TRUE(texts().contains("© 2026 Somebody. All rights reserved."));
}

TEST_F(AboutViewTest, AnEmptyNameIsANameAndAYearHasNoSeparators)
{
    view.hide();
    bundle.values = {{"CFBundleName", ""}};
    calendar.year = 12025;

    view.show();

    EXPECT_TRUE(texts().contains(" - Focus Timer"));
    EXPECT_TRUE(texts().contains("© 12025 Somebody. All rights reserved."));
}

TEST_F(AboutViewTest, TheYearFollowsTheClockWhileItIsShown)
{
    calendar.year = 2026;
    runLoop.advance(1s);
    EXPECT_TRUE(texts().contains("© 2026 Somebody. All rights reserved."));

    view.hide();
    calendar.year = 2027;
    runLoop.advance(1s);
    EXPECT_TRUE(texts().contains("© 2026 Somebody. All rights reserved."));
}

TEST_F(AboutViewTest, StandsCentredInItsFrame)
{
    EXPECT_EQ(view.sizeHint(), QSize(640, 240));
    const auto icon = place(view.findChild<ApplicationIcon*>());
    const auto first = place(buttons.at(0));
    const auto second = place(buttons.at(1));
    const auto third = place(buttons.at(2));
    EXPECT_EQ(icon.size(), QSize(120, 120));
    EXPECT_EQ(second.x() - first.x() - first.width(), 16);
    EXPECT_EQ(third.x() - second.x() - second.width(), 16);
    const auto labels = view.findChildren<QLabel*>();
    const auto title = place(labels.at(0));
    const auto description = place(labels.at(1));
    const auto version = place(labels.at(2));
    const auto rights = place(labels.at(3));
    EXPECT_EQ(title.y(), icon.y());
    EXPECT_EQ(description.x() - icon.x() - icon.width(), 16);
    EXPECT_EQ(description.y() - title.y() - title.height(), 10);
    EXPECT_EQ(first.y() - description.y() - description.height(), 10);
    EXPECT_EQ(version.y() - icon.y() - icon.height(), 20);
    EXPECT_EQ(rights.y() - version.y() - version.height(), 20);
    EXPECT_NEAR(icon.y(), 240 - rights.y() - rights.height(), 1);
    EXPECT_NEAR(icon.x(), 640 - third.x() - third.width(), 1);
    EXPECT_NEAR(title.center().x(), (first.left() + third.right()) / 2, 1);
    EXPECT_NEAR(version.center().x(), 319, 1);
    EXPECT_NEAR(rights.center().x(), 319, 1);
}

TEST_F(AboutViewTest, ALinkOpensItsAddress)
{
    for (auto* button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);

    EXPECT_EQ(workspace.opened,
        (std::vector<std::string>{"mailto:a@b.example", "https://b.example", "https://b.example/coffee"}));
}

TEST_F(AboutViewTest, TabReachesTheLinksAndKeysPressThem)
{
    buttons.at(0)->setFocus();

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), buttons.at(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), buttons.at(2));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);

    EXPECT_EQ(QApplication::focusWidget(), buttons.at(0));
    EXPECT_EQ(workspace.opened,
        (std::vector<std::string>{"mailto:a@b.example", "https://b.example", "https://b.example/coffee"}));
}

TEST_F(AboutViewTest, TheFocusOfTheKeyboardShows)
{
    buttons.at(1)->setFocus();
    const auto before = buttons.at(2)->grab().toImage();

    QTest::keyClick(&view, Qt::Key_Tab);

    ASSERT_EQ(QApplication::focusWidget(), buttons.at(2));
    EXPECT_NE(buttons.at(2)->grab().toImage(), before);
}

/// How many pixels of a row through the middle are painted, and the colour at a place with nothing but face.
struct Face {
    double width = 0;
    QColor color;
};

Face faceOf(Button& button)
{
    const auto picture = button.grab().toImage();
    const int y = picture.height() / 2;
    const auto background = color(ColorName::windowBackground, button);
    const auto distance = [](const QColor& a, const QColor& b) {
        return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
    };
    Face face{0, picture.pixelColor(picture.width() / 16, y)};
    const double whole = distance(face.color, background);
    // From the left edge into the face, with the share of a pixel that is only partly covered.
    double uncovered = 0;
    for (int x = 0; x < picture.width() / 16; ++x)
        uncovered += 1 - std::min(1.0, distance(picture.pixelColor(x, y), background) / whole);
    face.width = picture.width() - 2 * uncovered;
    return face;
}

TEST_F(AboutViewTest, APressedLinkIsDimmedAndSmallerUntilItIsReleased)
{
    for (const auto theme : {Theme::light, Theme::dark}) {
        view.setPalette(paletteFor(theme));
        auto& button = *buttons.at(2);
        const auto accent = color(ColorName::accent, theme);
        const auto dimmed = mixed(color(ColorName::windowBackground, theme), accent, 0.8);
        const auto released = faceOf(button);

        QTest::mousePress(&button, Qt::LeftButton);
        const auto pressed = faceOf(button);
        QTest::mouseRelease(&button, Qt::LeftButton);

        EXPECT_EQ(released.color, accent);
        EXPECT_NEAR(pressed.color.red(), dimmed.red(), 2);
        EXPECT_NEAR(pressed.color.green(), dimmed.green(), 2);
        EXPECT_NEAR(pressed.color.blue(), dimmed.blue(), 2);
        EXPECT_NEAR(pressed.width / released.width, 0.98, 0.003);
        EXPECT_EQ(faceOf(button).color, accent);
        EXPECT_NEAR(faceOf(button).width, released.width, 0.01);
    }
}

double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST_F(AboutViewTest, WhiteIsReadableOnALinkAlsoWhileItIsPressed)
{
    for (const auto theme : {Theme::light, Theme::dark, Theme::lightHighContrast, Theme::darkHighContrast}) {
        const auto accent = color(ColorName::accent, theme);
        const auto dimmed = mixed(color(ColorName::windowBackground, theme), accent, 0.8);

        EXPECT_GE(1.05 / (luminance(accent) + 0.05), 4.5) << static_cast<int>(theme);
        EXPECT_GE(1.05 / (luminance(dimmed) + 0.05), 4.5) << static_cast<int>(theme);
    }
}

TEST_F(AboutViewTest, IsReadableForAssistiveTechnology)
{
    for (auto* button : buttons) {
        auto* accessible = QAccessible::queryAccessibleInterface(button);
        EXPECT_EQ(accessible->role(), QAccessible::Button);
        EXPECT_EQ(accessible->text(QAccessible::Name), button->text());
    }
    for (auto* label : view.findChildren<QLabel*>())
        EXPECT_EQ(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name), label->text());
}

} // namespace

} // namespace velto
