// SPDX-License-Identifier: MIT
#include "style/Symbols.h"

#include "style/Colors.h"

#include <QApplication>
#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

namespace velto {

namespace {

constexpr const char* allSymbols[]
    = {"arrow.counterclockwise", "gearshape", "gearshape.fill", "info.circle", "lightbulb.fill", "music.note",
        "pause.fill", "play.circle.fill", "play.fill", "questionmark.circle", "timer", "timer.circle.fill"};

/// The share of a picture's area that is drawn on, 0 to 1.
double coverage(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += image.pixelColor(x, y).alphaF();
    return sum / (image.width() * image.height());
}

class SymbolTest : public testing::TestWithParam<const char*> { };

TEST_P(SymbolTest, IsDrawnInTheColourAskedForAndNoOther)
{
    const auto image = symbolPixmap(GetParam(), 24, QColor(10, 120, 200)).toImage();

    ASSERT_EQ(image.size(), QSize(24, 24));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (const auto pixel = image.pixelColor(x, y); pixel.alpha() == 255) {
                EXPECT_EQ(pixel.rgb(), qRgb(10, 120, 200)) << x << ',' << y;
            }
        }
    }
    EXPECT_GT(coverage(image), 0.08);
    EXPECT_LT(coverage(image), 0.75);
}

TEST_P(SymbolTest, CoversTheSameAreaAtEverySize)
{
    const double small = coverage(symbolPixmap(GetParam(), 16, Qt::black).toImage());
    const double large = coverage(symbolPixmap(GetParam(), 96, Qt::black).toImage());

    EXPECT_NEAR(small, large, 0.02);
}

TEST_P(SymbolTest, HasOnePixelForEachDevicePixel)
{
    const auto pixmap = symbolPixmap(GetParam(), 16, Qt::black, 3);

    EXPECT_EQ(pixmap.size(), QSize(48, 48));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(16, 16));
}

TEST_P(SymbolTest, IconIsDrawnAtTheSizeOfTheScreenAndPaleWhileDisabled)
{
    const auto icon = symbolIcon(GetParam());

    const auto normal = icon.pixmap(QSize(20, 20), 2, QIcon::Normal);
    const auto disabled = icon.pixmap(QSize(20, 20), 2, QIcon::Disabled);

    EXPECT_EQ(normal.size(), QSize(40, 40));
    EXPECT_EQ(
        normal.toImage(), symbolPixmap(GetParam(), 20, QApplication::palette().color(QPalette::Text), 2).toImage());
    EXPECT_NEAR(coverage(disabled.toImage()), 0.4 * coverage(normal.toImage()), 0.01);
}

INSTANTIATE_TEST_SUITE_P(All, SymbolTest, testing::ValuesIn(allSymbols), [](const auto& test) {
    std::string name = test.param;
    std::erase(name, '.');
    return name;
});

TEST(SymbolsTest, TheStopwatchOnADiscHasADialAndAHandAlsoWhenSmall)
{
    const auto image = symbolPixmap("timer.circle.fill", 16, Qt::black).toImage();
    const auto ink = [&](int x, int y) { return image.pixelColor(x, y).alphaF(); };

    EXPECT_LT(ink(5, 9), 0.1) << "the dial, left of the hand";
    EXPECT_LT(ink(8, 11), 0.1) << "the dial, below it";
    EXPECT_GT(ink(8, 8), 0.6) << "the hand";
    EXPECT_LT(ink(7, 3), 0.1) << "the button at the top";
    EXPECT_GT(ink(7, 4), 0.8) << "between the two";
}

TEST(SymbolsTest, TheArrowBackHasASolidHeadAlsoWhenSmall)
{
    const auto image = symbolPixmap("arrow.counterclockwise", 16, Qt::black).toImage();
    int solid = 0;
    for (int y = 1; y < 6; ++y)
        for (int x = 4; x < 8; ++x)
            solid += image.pixelColor(x, y).alphaF() > 0.6 ? 1 : 0;

    EXPECT_GE(solid, 10);
}

TEST(SymbolsTest, AnIconFollowsTheThemeWhileItIsShown)
{
    const auto before = QApplication::palette();
    const auto icon = symbolIcon("gearshape");
    for (const auto theme : {Theme::light, Theme::dark}) {
        QApplication::setPalette(paletteFor(theme));
        EXPECT_EQ(icon.pixmap(QSize(20, 20), 1, QIcon::Normal).toImage(),
            symbolPixmap("gearshape", 20, color(ColorName::label, theme)).toImage());
    }
    QApplication::setPalette(before);
}

TEST(SymbolsTest, AnUnknownNameIsANullPixmapAndAnIconThatDrawsNothing)
{
    EXPECT_TRUE(symbolPixmap("no.such.symbol", 16, Qt::black).isNull());
    EXPECT_TRUE(symbolIcon("no.such.symbol").pixmap(16, 16).isNull());
}

} // namespace

} // namespace velto
