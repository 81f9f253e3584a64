// SPDX-License-Identifier: MIT
#include "style/Paragraph.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>

namespace velto {

namespace {

/// Between two base lines, in parts of the font's size, whichever the face.
constexpr double lineHeightPerSize = 1.3;
constexpr double lineHeightPerSizeInArabic = 1.45; ///< With its marks above and below.

QString inOneLayout(QString text)
{
    return text.replace(u'\n', QChar::LineSeparator);
}

} // namespace

Paragraph::Paragraph(const QString& text, TextStyle style, ColorName color, Qt::Alignment alignment) :
    TextLabel(text, style, color)
{
    setAlignment(alignment | Qt::AlignTop);
    setWordWrap(true);
}

int Paragraph::heightForWidth(int width) const
{
    QTextLayout layout(inOneLayout(text()), font());
    return layOut(layout, width) * lineHeight();
}

void Paragraph::paintEvent(QPaintEvent*)
{
    QTextLayout layout(inOneLayout(text()), font());
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment()) & Qt::AlignHorizontal_Mask);
    option.setTextDirection(layoutDirection());
    layout.setTextOption(option);
    layOut(layout, width());

    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.draw(&painter, {});
}

int Paragraph::lineHeight() const
{
    const double perSize = layoutDirection() == Qt::RightToLeft ? lineHeightPerSizeInArabic : lineHeightPerSize;
    return static_cast<int>(std::ceil(perSize * font().pixelSize()));
}

int Paragraph::layOut(QTextLayout& layout, double width) const
{
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const double above = (lineHeight() - line.height()) / 2;
        line.setPosition({0, std::round((layout.lineCount() - 1) * lineHeight() + above)});
    }
    layout.endLayout();
    return layout.lineCount();
}

} // namespace velto
