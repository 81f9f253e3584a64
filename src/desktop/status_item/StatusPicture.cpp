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

void paint(QImage& image, const QPainterPath& path, const StatusPictureInk& ink)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // On nothing, replacing is the same as blending, and does not wake a pool of threads for it.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.strokePath(path, QPen(ink.halo, image.height() / 12.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.fillPath(path, ink.text);
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

StatusPictureInk statusPictureInk(bool onDark, bool appearsDisabled)
{
    StatusPictureInk ink;
    ink.text = onDark ? QColor(255, 255, 255) : QColor(24, 24, 26);
    ink.halo = onDark ? QColor(0, 0, 0, 215) : QColor(255, 255, 255, 215);
    if (appearsDisabled)
        ink.text.setAlpha(128);
    return ink;
}

QImage wideStatusPicture(const QString& text, const QFont& font, int height, const StatusPictureInk& ink)
{
    // A line of text in a bar takes about two thirds of its height.
    const auto glyphs = glyphsOf(font, height * 2.0 / 3);
    const double margin = height / 16.0;
    auto image = transparentImage(static_cast<int>(std::ceil(glyphs.width(text) + 2 * margin)), height);
    paint(image, glyphs.outline(text).translated(margin, height / 2.0), ink);
    return image;
}

QImage squareStatusPicture(const QString& text, const QFont& font, int height, const StatusPictureInk& ink)
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

QImage timerStatusPicture(int height, const StatusPictureInk& ink)
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
