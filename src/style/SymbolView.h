// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"
#include "style/TextStyle.h"

#include <QWidget>

namespace velto {

/// A symbol as large as text of a style, in one of the program's colours. Follows the desktop's font and theme.
class SymbolView final : public QWidget {
    Q_OBJECT

public:
    SymbolView(const QString& name, TextStyle style, ColorName color);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_name;
    TextStyle m_style;
    ColorName m_color;
};

} // namespace velto
