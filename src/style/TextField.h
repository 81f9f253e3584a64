// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace velto {

/// One line of text to edit, in a rounded border. Shows its focus however it came. Return stays with it.
class TextField : public QLineEdit {
    Q_OBJECT

public:
    /// `placeholder` shows while the field is empty, and is its accessible name.
    explicit TextField(const QString& placeholder = {});

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velto
