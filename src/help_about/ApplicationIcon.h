// SPDX-License-Identifier: MIT
#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace velto {

/// The picture of the program in a square with continuous corners. Ends the program when the picture is missing.
class ApplicationIcon final : public QWidget {
    Q_OBJECT

public:
    ApplicationIcon(int side, double cornerRadius);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer m_picture;
    double m_cornerRadius;
};

} // namespace velto
