// SPDX-License-Identifier: MIT
#include "panel/TimerPanelController.h"

#include "platform/EventMonitor.h"
#include "platform/Screens.h"
#include "platform/StatusItem.h"

#include <algorithm>
#include <utility>

namespace velto {

namespace {

constexpr double gap = 6;
constexpr double bottomMargin = 20;

} // namespace

Rect placePanel(std::optional<Rect> button, const Rect& visibleFrame, Size panelSize)
{
    const double topmostY = visibleFrame.maxY() - panelSize.height - gap;
    if (!button)
        return {visibleFrame.midX() - panelSize.width / 2, topmostY, panelSize.width, panelSize.height};

    double x = button->midX() - panelSize.width / 2;
    x = std::min(x, visibleFrame.maxX() - panelSize.width);
    x = std::max(visibleFrame.minX(), x);
    double y = button->minY() - panelSize.height - gap;
    if (y < visibleFrame.minY() + bottomMargin)
        y = topmostY;
    return {x, y, panelSize.width, panelSize.height};
}

Rect pulledInside(const Rect& frame, const Rect& visibleFrame)
{
    const double x = std::max(visibleFrame.minX(), std::min(frame.x, visibleFrame.maxX() - frame.width));
    const double y = std::min(visibleFrame.maxY() - frame.height, std::max(frame.y, visibleFrame.minY()));
    return {x, y, frame.width, frame.height};
}

TimerPanelController::TimerPanelController(
    PomodoroTimer& timer, AppSettings& settings, Screens& screens, EventMonitor& eventMonitor, PanelFactory makePanel) :
    m_timer(timer),
    m_settings(settings),
    m_screens(screens),
    m_eventMonitor(eventMonitor),
    m_makePanel(std::move(makePanel))
{
    m_screenChanges = screens.changes([this] { keepOnScreen(); });
}

PanelWindow& TimerPanelController::panel()
{
    if (!m_panel)
        m_panel = m_makePanel(m_timer, m_settings, panelSize);
    return *m_panel;
}

void TimerPanelController::show(const StatusItemButton* button)
{
    positionPanel(button);
    panel().orderFrontRegardless();
}

void TimerPanelController::hide()
{
    panel().orderOut();
    m_outsideMonitor.reset();
}

void TimerPanelController::positionPanel(const StatusItemButton* button)
{
    const auto buttonFrame = button ? button->frame() : std::nullopt;
    const auto screen = m_screens.screenFor(buttonFrame);
    if (!screen)
        return;

    panel().setFrame(placePanel(buttonFrame, screen->visibleFrame, panelSize));
    installOutsideMonitor();
}

void TimerPanelController::keepOnScreen()
{
    if (!m_panel || !m_panel->isVisible())
        return;
    const auto frame = m_panel->currentFrame();
    const auto screen = m_screens.screenFor(frame);
    if (!screen)
        return;
    if (const auto inside = pulledInside(frame, screen->visibleFrame); inside != frame)
        m_panel->setFrame(inside);
}

void TimerPanelController::installOutsideMonitor()
{
    if (!m_outsideMonitor)
        m_outsideMonitor = m_eventMonitor.addOutsidePressMonitor([this] { hide(); });
}

} // namespace velto
