// SPDX-License-Identifier: MIT
#pragma once

#include "style/Colors.h"

#include <QPushButton>

namespace velto {

enum class ButtonKind {
    prominent,   ///< A face in the tint: what to press next.
    bordered,    ///< A quiet face.
    destructive, ///< A quiet face with a warning's text.
    borderless,  ///< No face, for symbols beside something else.
    link         ///< A face in the tint that dims and shrinks under the press: leads out of the program.
};

/// A title with a symbol before it, either of which may be empty. Looks the same whether its window
/// is active or not. Pressed with Space, Return or Enter, too.
class Button : public QPushButton {
    Q_OBJECT

public:
    /// `tint` colours a prominent face and a borderless symbol. A button without a title needs an
    /// accessible name.
    explicit Button(
        ButtonKind kind, const QString& title, const QString& symbol = {}, ColorName tint = ColorName::accent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] double symbolSize() const;
    [[nodiscard]] double contentWidth() const;

    ButtonKind m_kind;
    QString m_symbol;
    ColorName m_tint;
};

} // namespace velto
