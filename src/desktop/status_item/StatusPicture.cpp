// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusPicture.h"

#include "style/ClockGlyphs.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace velto {

namespace {

QImage transparentImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void paint(QImage& image, const QPainterPath& path, const QColor& ink)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // On a transparent ground this looks like blending, but does not wake a pool of threads.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillPath(path, ink);
}

/// To be scaled: in the font's own units. In other sizes Qt 6.8 rounds an outline by what it has drawn before.
QFont outlineFont(QFont font, QFont::Weight weight)
{
    font.setWeight(weight);
    constexpr int enough = 100; // For a font without units.
    font.setPixelSize(std::max(enough, static_cast<int>(QRawFont::fromFont(font).unitsPerEm())));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QImage squareStatusPicture(const QString& text, const ClockGlyphs& glyphs, int side, const QColor& ink)
{
    const int margin = std::max(1, side / 24);
    const int leastGap = std::max(2, side / 11);
    const int digitHeight = (side - 2 * margin - leastGap) / 2;
    QPainterPath lines;
    int top = margin;
    for (const auto& part : text.split(QLatin1Char(':'))) {
        const int width = glyphs.crispWidth(part, digitHeight);
        const double narrowing = std::min(1.0, static_cast<double>(side) / width);
        const auto place = QTransform::fromTranslate((side - width * narrowing) / 2, top).scale(narrowing, 1);
        lines.addPath(place.map(glyphs.crispOutline(part, digitHeight)));
        top = side - margin - digitHeight;
    }
    auto image = transparentImage(side, side);
    paint(image, lines, ink);
    return image;
}

} // namespace

QColor statusPictureInk(const QColor& bar, bool appearsDisabled)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(bar.redF()) + 0.7152 * linear(bar.greenF()) + 0.0722 * linear(bar.blueF());
    // The luminance from which black and white stand out equally.
    constexpr double balance = 0.179;
    QColor ink = luminance < balance ? Qt::white : Qt::black;
    if (appearsDisabled)
        ink.setAlphaF(0.5F);
    return ink;
}

ClockGlyphs wideStatusGlyphs(const QFont& font)
{
    return ClockGlyphs(outlineFont(font, QFont::DemiBold));
}

ClockGlyphs squareStatusGlyphs(const QFont& font)
{
    // Two digits leave room for some air between them, which thin strokes need.
    constexpr double gap = 0.14;
    return ClockGlyphs(outlineFont(font, QFont::Normal), gap);
}

QImage wideStatusPicture(const QString& text, const ClockGlyphs& glyphs, int height, const QColor& ink)
{
    // As high as digits of a line of text that takes two thirds of the bar.
    const int digitHeight = height / 2 - height / 2 % 2;
    const int margin = height / 16;
    const int top = (height - digitHeight) / 2;
    auto image = transparentImage(glyphs.crispWidth(text, digitHeight) + 2 * margin, height);
    paint(image, glyphs.crispOutline(text, digitHeight).translated(margin, top), ink);
    return image;
}

QList<QImage> squareStatusPictures(const QString& text, const ClockGlyphs& glyphs, const QColor& ink)
{
    QList<QImage> pictures;
    for (const int side : {22, 24, 28, 32, 44, 48})
        pictures.append(squareStatusPicture(text, glyphs, side, ink));
    return pictures;
}

QImage timerStatusPicture(int height, const QColor& ink)
{
    auto image = transparentImage(height, height);
    const double stroke = height / 10.0;
    const QRectF face = QRectF(image.rect()).adjusted(stroke, stroke, -stroke, -stroke);

    QPainterPath drawing;
    drawing.arcMoveTo(face, 90);
    drawing.arcTo(face, 90, -290);
    drawing.moveTo(face.center());
    drawing.lineTo(face.center().x(), face.top() + face.height() * 0.24);
    QPainterPathStroker pen;
    pen.setWidth(stroke);
    pen.setCapStyle(Qt::RoundCap);
    paint(image, pen.createStroke(drawing).simplified(), ink);
    return image;
}

} // namespace velto
