// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

namespace velto {

/// A horizontal slider. A press on the track takes the knob there. The wheel is left to what scrolls around it.
class Slider : public QSlider {
    Q_OBJECT

public:
    Slider(int minimum, int maximum);

    /// Takes the knob to the position next to `value`, which may lie beyond either end, and tells nobody.
    void showValue(double value);

    /// As the hand does.
    void choose(double value) { moveTo(positionOf(value)); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The hand has put the knob to `value`, be it where it stood.
    void chosen(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] int positionOf(double value) const;
    [[nodiscard]] double knobCenter() const;
    [[nodiscard]] int positionAt(double x) const;
    void moveTo(int position);

    double m_grabOffset = 0; ///< Where in the knob it is held.
};

} // namespace velto
