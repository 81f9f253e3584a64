// SPDX-License-Identifier: MIT
#include "style/SymbolView.h"

#include "style/Symbols.h"

#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace velto {

SymbolView::SymbolView(const QString& name, TextStyle style, ColorName color) :
    m_name(name),
    m_style(style),
    m_color(color)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    onFontChange(*this, [this] { updateGeometry(); });
}

QSize SymbolView::sizeHint() const
{
    // Its grid has some air around the drawing, so that this looks as high as a line of the text.
    constexpr double sidePerTextSize = 1.3;
    const int side
        = static_cast<int>(std::lround(pixelSize(m_style, textScale(QGuiApplication::font())) * sidePerTextSize));
    return {side, side};
}

void SymbolView::paintEvent(QPaintEvent*)
{
    const int side = sizeHint().height();
    const auto pixmap = symbolPixmap(m_name, side, color(m_color, *this), devicePixelRatioF());
    QPainter(this).drawPixmap(QPointF((width() - side) / 2.0, (height() - side) / 2.0), pixmap);
}

} // namespace velto
