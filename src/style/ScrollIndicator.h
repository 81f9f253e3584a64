// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollBar>

namespace velto {

/// A slim vertical scroll bar that shows where one is as long as there is more to see.
class ScrollIndicator : public QScrollBar {
    Q_OBJECT

public:
    ScrollIndicator();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velto
