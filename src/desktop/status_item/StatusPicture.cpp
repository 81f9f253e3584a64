// SPDX-License-Identifier: MIT
#include "desktop/status_item/StatusPicture.h"

#include "style/ClockGlyphs.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
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
    // On nothing, replacing is the same as blending, and does not wake a pool of threads for it.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillPath(path, ink);
}

/// How much wider than drawn by the font a digit may get to fill its cell.
constexpr double widest = 1.12;

ClockGlyphs glyphsOf(QFont font, double pixels)
{
    font.setPixelSize(static_cast<int>(std::lround(pixels)));
    font.setHintingPreference(QFont::PreferNoHinting);
    return ClockGlyphs(font);
}

} // namespace

QColor statusPictureInk(const QColor& bar, bool appearsDisabled)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(bar.redF()) + 0.7152 * linear(bar.greenF()) + 0.0722 * linear(bar.blueF());
    // Where black and white stand out alike.
    constexpr double balance = 0.179;
    QColor ink = luminance < balance ? Qt::white : Qt::black;
    if (appearsDisabled)
        ink.setAlphaF(0.5F);
    return ink;
}

QImage wideStatusPicture(const QString& text, const QFont& font, int height, const QColor& ink)
{
    // A line of text in a bar takes about two thirds of its height.
    const auto glyphs = glyphsOf(font, height * 2.0 / 3);
    const double margin = height / 16.0;
    auto image = transparentImage(static_cast<int>(std::ceil(glyphs.width(text) + 2 * margin)), height);
    paint(image, glyphs.outline(text).translated(margin, height / 2.0), ink);
    return image;
}

QImage squareStatusPicture(const QString& text, const QFont& font, int height, const QColor& ink)
{
    auto image = transparentImage(height, height);
    const auto glyphs = glyphsOf(font, height);
    const double margin = height / 24.0;
    const double gap = height / 10.0;
    const double lineHeight = (height - 2 * margin - gap) / 2;

    QPainterPath lines;
    double middle = margin + lineHeight / 2;
    const double scaleY = lineHeight / glyphs.digitHeight();
    for (const auto& part : text.split(QLatin1Char(':'))) {
        const double width = glyphs.width(part);
        const double scaleX = std::min(scaleY * widest, (height - 2 * margin) / width);
        QTransform place;
        place.translate((height - width * scaleX) / 2, middle);
        place.scale(scaleX, scaleY);
        lines.addPath(place.map(glyphs.outline(part)));
        middle += lineHeight + gap;
    }
    paint(image, lines, ink);
    return image;
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
