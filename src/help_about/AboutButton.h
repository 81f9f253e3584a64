// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace velto {

/// A link in the about window. Pressed with Space, Return or Enter, too.
class AboutButton final : public QAbstractButton {
    Q_OBJECT

public:
    explicit AboutButton(const QString& title);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velto
