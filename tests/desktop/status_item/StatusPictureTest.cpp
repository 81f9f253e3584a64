// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusPicture.h"
#include "desktop/status_item/DBusPicture.h"
#include "style/ClockGlyphs.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace velto {

namespace {

class StatusPictureTest : public testing::Test {
protected:
    QFont font = [] {
        QFont semibold;
        semibold.setWeight(QFont::DemiBold);
        return semibold;
    }();
    QColor ink = statusPictureInk(Qt::black, false);

    QImage wide(const char* text)
    {
        return wideStatusPicture(QString::fromLatin1(text), wideStatusGlyphs(font), 48, ink);
    }
    QList<QImage> squares(const char* text)
    {
        return squareStatusPictures(QString::fromLatin1(text), squareStatusGlyphs(font), ink);
    }

    /// The smallest rectangle that holds every pixel in the colour of the text.
    static QRect textBounds(const QImage& image)
    {
        QRect bounds;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).alpha() > 128 && image.pixelColor(x, y).lightness() > 128)
                    bounds |= QRect(x, y, 1, 1);
        return bounds;
    }
};

TEST_F(StatusPictureTest, AWidePictureIsAsWideAsItsTextAndHoldsStillWhileDigitsChange)
{
    EXPECT_EQ(wide("24:59").height(), 48);
    EXPECT_EQ(wide("11:11").size(), wide("08:88").size());
    EXPECT_GT(wide("100:00").width(), wide("24:59").width());
    EXPECT_GT(wide("24:59").width(), 48);
    EXPECT_LT(wide("24:59").width(), 3 * 48);
}

TEST_F(StatusPictureTest, ATimeIsDrawnAlikeWhateverElseIsDrawn)
{
    const auto square = squares("25:00");
    const auto oneLine = wide("25:00");
    QImage elsewhere(200, 50, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&elsewhere);
    for (const auto weight : {QFont::Normal, QFont::DemiBold}) {
        QFont small;
        small.setPixelSize(13);
        small.setWeight(weight);
        painter.setFont(small);
        painter.drawText(10, 30, QStringLiteral("0123456789 Start"));
    }

    EXPECT_EQ(squares("25:00"), square);
    EXPECT_EQ(wide("25:00"), oneLine);
}

TEST_F(StatusPictureTest, AWidePictureHasItsTextInTheMiddle)
{
    const auto bounds = textBounds(wide("00:00"));

    EXPECT_NEAR(bounds.top(), 47 - bounds.bottom(), 2);
    EXPECT_GE(bounds.height(), 20);
}

/// What `row` shows at its strongest, from 0 to 255.
int strongest(const QImage& image, int row)
{
    int alpha = 0;
    for (int x = 0; x < image.width(); ++x)
        alpha = std::max(alpha, image.pixelColor(x, row).alpha());
    return alpha;
}

TEST_F(StatusPictureTest, SquarePicturesComeInTheSizesOfBars)
{
    std::vector<int> sides;
    for (const auto& image : squares("24:59")) {
        EXPECT_EQ(image.width(), image.height());
        sides.push_back(image.width());
    }
    EXPECT_EQ(sides, (std::vector{22, 24, 28, 32, 44, 48}));
}

TEST_F(StatusPictureTest, ASquarePictureHasTwoCrispLinesThatFillItsHeight)
{
    constexpr int faint = 32;
    for (const auto* text : {"24:59", "00:00", "17:44", "100:00", "1666:39"})
        for (const auto& image : squares(text)) {
            SCOPED_TRACE(text + std::string(" at ") + std::to_string(image.width()));
            std::vector<std::pair<int, int>> lines; // first and last row of each
            for (int row = 0; row < image.height(); ++row) {
                if (strongest(image, row) < faint)
                    continue;
                if (lines.empty() || lines.back().second < row - 1)
                    lines.emplace_back(row, row);
                lines.back().second = row;
            }
            ASSERT_EQ(lines.size(), 2U);
            const auto [upper, lower] = std::pair(lines.front(), lines.back());
            EXPECT_GE(lower.first - upper.second - 1, 2) << "between the lines";
            EXPECT_GE(upper.second - upper.first + 1, image.height() * 2 / 5 - 1);
            EXPECT_EQ(upper.second - upper.first, lower.second - lower.first);
            EXPECT_EQ(upper.first, image.height() - 1 - lower.second) << "as much room above as below";
            for (const int row : {upper.first, upper.second, lower.first, lower.second})
                EXPECT_GT(strongest(image, row), 128) << "a line begins and ends with a pixel, not within one";
        }
}

TEST_F(StatusPictureTest, OtherDigitsMakeAnotherPicture)
{
    EXPECT_NE(squares("24:59"), squares("24:58"));
    EXPECT_EQ(squares("24:59"), squares("24:59"));
}

/// The contrast of two colours, from 1 to 21.
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double channel) {
            return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST_F(StatusPictureTest, TheTextStandsOutFromEveryBar)
{
    constexpr int step = 15;
    for (int red = 0; red < 256; red += step)
        for (int green = 0; green < 256; green += step)
            for (int blue = 0; blue < 256; blue += step) {
                const QColor bar(red, green, blue);
                ASSERT_GE(contrast(statusPictureInk(bar, false), bar), 4.5) << bar.name().toStdString();
            }
    EXPECT_LT(statusPictureInk(Qt::white, true).alpha(), statusPictureInk(Qt::white, false).alpha());
}

TEST_F(StatusPictureTest, TravelsAsNotPremultipliedArgbInNetworkOrder)
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(255, 128, 0, 255));
    image.setPixelColor(1, 0, QColor(0, 0, 255, 51));

    const auto picture = dbusPicture(image);

    EXPECT_EQ(picture.width, 2);
    EXPECT_EQ(picture.height, 1);
    EXPECT_EQ(picture.bytes.toHex(), QByteArray("ffff8000330000ff"));
}

} // namespace

} // namespace velto
