// SPDX-License-Identifier: MIT
#include "panel/PanelContainerView.h"

#include "style/Colors.h"
#include "style/ContinuousRect.h"
#include "style/Stack.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr int padding = 18;
constexpr double cornerRadius = 18;

} // namespace

PanelContainerView::PanelContainerView(PomodoroTimer& timer, AppSettings& settings, Size size, RunLoop& runLoop,
    const Bundle& bundle, SettingsSheetFactory makeSettingsSheet)
{
    auto* content = new ContentView(timer, settings, runLoop, bundle, std::move(makeSettingsSheet));

    setFixedSize(static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height)));
    setLayout(column({.padding = {padding, padding, padding, padding}}, content));
}

QPainterPath PanelContainerView::outline() const
{
    return continuousRoundedRect(rect(), cornerRadius);
}

void PanelContainerView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color(ColorName::windowBackground, *this));
    painter.drawPath(outline());

    // Inside the edge, where all of its width can be seen.
    painter.setPen(QPen(color(ColorName::cardOutline, *this), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(continuousRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius - 0.5));
}

} // namespace velto
