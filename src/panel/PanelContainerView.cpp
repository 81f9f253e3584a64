// SPDX-License-Identifier: MIT
#include "panel/PanelContainerView.h"

#include "style/Drawing.h"
#include "style/Stack.h"

#include <QPaintEvent>

#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr int padding = 18;

} // namespace

PanelContainerView::PanelContainerView(PomodoroTimer& timer, AppSettings& settings, Size size, RunLoop& runLoop,
    const Bundle& bundle, SettingsSheetFactory makeSettingsSheet)
{
    auto* content = new ContentView(timer, settings, runLoop, bundle, std::move(makeSettingsSheet));

    setFixedSize(static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height)));
    setLayout(column({.padding = {padding, padding, padding, padding}}, content));
}

void PanelContainerView::paintEvent(QPaintEvent* event)
{
    drawCard(*this, event->region());
}

} // namespace velto
