// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusPicture.h"
#include "desktop/status_item/DBusPicture.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QImage>

#include <algorithm>
#include <cmath>

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

    QImage wide(const char* text) { return wideStatusPicture(QString::fromLatin1(text), font, 48, ink); }
    QImage square(const char* text) { return squareStatusPicture(QString::fromLatin1(text), font, 48, ink); }

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

TEST_F(StatusPictureTest, AWidePictureHasItsTextInTheMiddle)
{
    const auto bounds = textBounds(wide("00:00"));

    EXPECT_NEAR(bounds.top(), 47 - bounds.bottom(), 2);
    EXPECT_GE(bounds.height(), 20);
}

TEST_F(StatusPictureTest, ASquarePictureFillsItsCellWithTwoLines)
{
    for (const auto* text : {"24:59", "00:00", "100:00", "1666:39"}) {
        const auto image = square(text);
        ASSERT_EQ(image.size(), QSize(48, 48)) << text;
        const auto bounds = textBounds(image);

        EXPECT_GE(bounds.height(), 42) << text;
        EXPECT_GE(bounds.width(), 34) << text;
        EXPECT_GE(bounds.left(), 1) << text;
        EXPECT_LE(bounds.right(), 46) << text;
        int rowsOfText = 0;
        for (int x = 0; x < 48; ++x)
            rowsOfText += image.pixelColor(x, 24).lightness() > 128 && image.pixelColor(x, 24).alpha() > 128;
        EXPECT_EQ(rowsOfText, 0) << "between the lines of " << text;
    }
}

TEST_F(StatusPictureTest, OtherDigitsMakeAnotherPicture)
{
    EXPECT_NE(square("24:59"), square("24:58"));
    EXPECT_EQ(square("24:59"), square("24:59"));
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
