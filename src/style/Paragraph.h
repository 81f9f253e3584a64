// SPDX-License-Identifier: MIT
#pragma once

#include "style/TextLabel.h"

class QTextLayout;

namespace velto {

/// Text of several lines with air between them, as wide as its neighbours let it be.
class Paragraph final : public TextLabel {
    Q_OBJECT

public:
    explicit Paragraph(const QString& text, TextStyle style = TextStyle::body, ColorName color = ColorName::label,
        Qt::Alignment alignment = Qt::AlignLeading);

    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override { return {0, lineHeight()}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int lineHeight() const;
    /// Breaks the text into lines; answers with their number.
    int layOut(QTextLayout& layout, double width) const;
};

} // namespace velto
