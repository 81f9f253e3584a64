// SPDX-License-Identifier: MIT
#include "desktop/windows/QtWindow.h"

#include "desktop/windows/QtScreens.h"
#include "support/FakeRunLoop.h"

#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace velto {

namespace {

/// A view that asks for a size.
class View : public QWidget {
public:
    explicit View(QSize size) : m_size(size) { }
    QSize sizeHint() const override { return m_size; }

private:
    QSize m_size;
};

struct Shown {
    explicit Shown(QSize size = {300, 200}, const QString& title = QStringLiteral("Title"))
    {
        auto view = std::make_unique<View>(size);
        content = view.get();
        window = std::make_unique<QtWindow>(screens, title, QStringLiteral("Name"), std::move(view));
        dialog = qobject_cast<QDialog*>(content->window());
        window->makeKeyAndOrderFront();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    }
    ~Shown() { delete dialog; }

    FakeRunLoop runLoop;
    QtScreens screens{runLoop};
    std::unique_ptr<QtWindow> window;
    QPointer<QWidget> content;
    QPointer<QDialog> dialog;
};

/// How light it is, from 0 to 1.
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

TEST(QtWindowTest, TheSmallIconsHaveARimThatIsSeenOnBlackAndOnWhite)
{
    const Shown shown;

    for (const auto& [side, inset] : {std::pair{16, 0}, {24, 1}}) {
        const auto picture = shown.dialog->windowIcon().pixmap(QSize(side, side), 1.0).toImage();
        for (const QPoint edge : {QPoint(inset, side / 2), QPoint(side / 2, inset), QPoint(side - 1 - inset, side / 2),
                 QPoint(side / 2, side - 1 - inset)}) {
            const auto rim = picture.pixelColor(edge);
            EXPECT_EQ(rim.alpha(), 255) << side;
            EXPECT_GE(luminance(rim) + 0.05, 3 * (luminance(Qt::black) + 0.05)) << side;
            EXPECT_GE(luminance(Qt::white) + 0.05, 3 * (luminance(rim) + 0.05)) << side;
        }
    }
}

TEST(QtWindowTest, IsAsLargeAsItsViewAndCannotBeResizedOrMinimised)
{
    const Shown shown({300, 200});

    EXPECT_EQ(shown.dialog->size(), QSize(300, 200));
    EXPECT_EQ(shown.dialog->minimumSize(), shown.dialog->maximumSize());
    EXPECT_EQ(shown.content->geometry(), QRect(0, 0, 300, 200));
    EXPECT_FALSE(shown.dialog->windowFlags() & (Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(shown.dialog->windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(shown.dialog->windowFlags() & Qt::WindowStaysOnTopHint);
}

TEST(QtWindowTest, StandsInTheMiddleWithItsTitleBar)
{
    const Shown shown({300, 200});

    const auto area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(shown.dialog->x() - area.x(), (area.width() - 300) / 2);
    EXPECT_EQ(shown.dialog->y() - area.y(), (area.height() - 200 - 40) / 2);
}

TEST(QtWindowTest, IsNoLargerThanTheUsableArea)
{
    const Shown shown({300, 100000});

    const auto area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(shown.dialog->size(), QSize(300, area.height() - 40));
    EXPECT_EQ(shown.dialog->y(), area.y());
}

TEST(QtWindowTest, ClosingOnlyHidesAndItComesBackWhereItWasLeft)
{
    const Shown shown;
    shown.dialog->move(17, 29);

    shown.dialog->close();
    EXPECT_FALSE(shown.dialog->isVisible());
    shown.window->makeKeyAndOrderFront();

    EXPECT_TRUE(QTest::qWaitForWindowActive(shown.dialog));
    EXPECT_EQ(shown.dialog->pos(), QPoint(17, 29));
}

TEST(QtWindowTest, ComesBackInTheMiddleWhenItsScreenIsGone)
{
    const Shown shown;
    const auto middle = shown.dialog->pos();
    shown.dialog->move(-5000, -5000);
    shown.dialog->close();

    shown.window->makeKeyAndOrderFront();

    EXPECT_EQ(shown.dialog->pos(), middle);
}

TEST(QtWindowTest, StaysWhereItIsWhenItIsBroughtForward)
{
    const Shown shown;
    shown.dialog->move(17, 29);

    shown.window->makeKeyAndOrderFront();

    EXPECT_EQ(shown.dialog->pos(), QPoint(17, 29));
}

TEST(QtWindowTest, EscapeCloses)
{
    const Shown shown;

    QTest::keyClick(shown.dialog->windowHandle(), Qt::Key_Escape);

    EXPECT_FALSE(shown.dialog->isVisible());
}

TEST(QtWindowTest, StaysOnTheScreenUntilClosedWhenItIsDropped)
{
    Shown shown;

    shown.window.reset();
    ASSERT_TRUE(shown.dialog);
    EXPECT_TRUE(shown.dialog->isVisible());

    shown.dialog->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.dialog.isNull(); }));
}

TEST(QtWindowTest, EscapeEndsADroppedWindowToo)
{
    Shown shown;
    shown.window.reset();

    QTest::keyClick(shown.dialog->windowHandle(), Qt::Key_Escape);

    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.dialog.isNull(); }));
}

TEST(QtWindowTest, IsGoneWithItsOwnerWhileItIsClosed)
{
    Shown shown;
    shown.dialog->close();

    shown.window.reset();

    EXPECT_TRUE(shown.dialog.isNull());
}

TEST(QtWindowTest, AClosedWindowDoesNotEndTheProgram)
{
    const Shown shown;
    int quits = 0;
    QObject::connect(qGuiApp, &QGuiApplication::lastWindowClosed, qGuiApp, [&quits] { ++quits; });

    shown.dialog->close();
    QCoreApplication::processEvents();

    EXPECT_EQ(quits, 0);
}

TEST(QtWindowTest, HasANameForAssistiveTechnologyEvenWithoutATitle)
{
    const Shown shown({300, 200}, QString());

    EXPECT_EQ(shown.dialog->accessibleName(), "Name");
    EXPECT_EQ(shown.dialog->windowTitle(), "");
    EXPECT_FALSE(shown.dialog->windowIcon().isNull());
}

} // namespace

} // namespace velto
