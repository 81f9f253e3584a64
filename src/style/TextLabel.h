// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"
#include "style/TextStyle.h"

#include <QLabel>

namespace velto {

/// Text in one of the program's styles and colours; follows the desktop's font and theme.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    explicit TextLabel(const QString& text, TextStyle style = TextStyle::body, ColorName color = ColorName::label);

    bool event(QEvent* event) override;

private:
    void applyStyle();

    TextStyle m_style;
    ColorName m_color;
};

} // namespace velto
