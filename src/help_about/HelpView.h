// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace velto {

/// The usage notes on one page, which scrolls where it is higher than its place.
class HelpView final : public QScrollArea {
    Q_OBJECT

public:
    explicit HelpView(QSize size);

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

private:
    QSize m_size;
};

} // namespace velto
