// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollBar>

namespace velto {

/// A slim vertical bar without arrows, to be given to a scroll area.
class ScrollBar final : public QScrollBar {
    Q_OBJECT

public:
    ScrollBar();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velto
