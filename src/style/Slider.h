// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

namespace velto {

/// A horizontal slider of whole numbers. A press on the track takes the knob there. The wheel is left
/// to what scrolls around it.
class Slider : public QSlider {
    Q_OBJECT

public:
    Slider(int minimum, int maximum);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] double knobCenter() const;
    void moveTo(double x);

    double m_grabOffset = 0; ///< Where in the knob it is held.
};

} // namespace velto
