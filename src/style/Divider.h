// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace velto {

/// A thin line from side to side between sections.
class Divider final : public QWidget {
    Q_OBJECT

public:
    Divider();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velto
