// SPDX-License-Identifier: MIT
#pragma once

#include "style/AnimatedView.h"
#include "style/ClockGlyphs.h"
#include "style/Motion.h"
#include "style/TextStyle.h"

#include <QPointF>
#include <QRegion>
#include <QString>

#include <vector>

namespace velto {

/// The remaining time, each digit in a cell of fixed width; digits that change roll upwards. The visible ink is
/// centred, whatever the digits.
///
/// Assistive technology reads it, but is not told of the ticks.
class RollingTime : public AnimatedView {
    Q_OBJECT

public:
    /// A character as it is drawn: its cell's centre, in points from the middle of the view, y downwards.
    struct Glyph {
        QChar character;
        QPointF center;
        double opacity = 1;
        bool operator==(const Glyph&) const = default;
    };

    /// A time too long for `width` is drawn smaller.
    explicit RollingTime(int width);

    void setTime(const QString& text, double fontSize);
    [[nodiscard]] QString spokenText() const override { return m_line.text; }

    /// Everything drawn at this moment.
    [[nodiscard]] std::vector<Glyph> glyphs() const;
    /// The sum of all cells, before anything is drawn smaller.
    [[nodiscard]] double textWidth() const { return m_glyphs.width(m_line.text); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Line {
        QString text;
        std::vector<double> middles; ///< Of each character, from that of the view, before anything is drawn smaller.
    };

    [[nodiscard]] Line lineOf(const QString& text) const;
    [[nodiscard]] double scale() const;
    /// What is drawn again in each frame.
    [[nodiscard]] QRegion rollingCells() const;
    void redrawRolling();

    Line m_line;
    Line m_previous;   ///< As long as `m_line`, or empty when nothing rolls.
    QRegion m_rolling; ///< Empty at rest.
    double m_fontSize = 64;
    double m_redrawn = 1; ///< How far the digits had rolled when they were last drawn.
    ClockGlyphs m_glyphs;
    Motion m_roll{QEasingCurve::InOutCubic, this};
};

} // namespace velto
