// SPDX-License-Identifier: MIT
#include "style/TextLabel.h"

#include <QEvent>

namespace velto {

TextLabel::TextLabel(const QString& text, TextStyle style, ColorName color) :
    QLabel(text),
    m_style(style),
    m_color(color)
{
    setTextFormat(Qt::PlainText);
    applyStyle();
    onFontChange(*this, [this] { applyStyle(); });
}

bool TextLabel::event(QEvent* event)
{
    const bool isHandled = QLabel::event(event);
    if (event->type() == QEvent::PaletteChange)
        applyStyle();
    return isHandled;
}

void TextLabel::applyStyle()
{
    const auto wantedFont = textFont(m_style);
    if (font() != wantedFont)
        setFont(wantedFont);
    const auto wantedColor = color(m_color, *this);
    if (palette().color(QPalette::Active, QPalette::WindowText) != wantedColor) {
        auto ownPalette = palette();
        ownPalette.setColor(QPalette::WindowText, wantedColor);
        setPalette(ownPalette);
    }
}

} // namespace velto
