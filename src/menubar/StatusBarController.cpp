// SPDX-License-Identifier: MIT
#include "menubar/StatusBarController.h"

#include "core/PomodoroTimer.h"
#include "core/TimeText.h"
#include "observation/CombineLatest.h"
#include "observation/NotificationCenter.h"
#include "panel/TimerPanelController.h"
#include "platform/Application.h"
#include "settings/AppSettings.h"

#include <utility>

namespace velto {

StatusBarController::StatusBarController(PomodoroTimer& timer, AppSettings& settings,
    std::unique_ptr<TimerPanelController> panelController, Desktop desktop) :
    m_runLoop(desktop.runLoop),
    m_application(desktop.application),
    m_statusItem(std::move(desktop.statusItem)),
    m_timer(timer),
    m_settings(settings),
    m_panelController(std::move(panelController)),
    m_aboutController(std::move(desktop.aboutController)),
    m_helpController(std::move(desktop.helpController)),
    m_deliveries(desktop.runLoop)
{
    if (auto* button = m_statusItem->button()) {
        button->setFont(12, FontWeight::semibold);
        button->setToolTip("Velto");
        button->setAction([this] { handleStatusItemClick(); });
        refreshMenuItems(std::nullopt, std::nullopt);
        updateDurationMenuStates();
    }
    m_statusMenu = buildMenu();
    m_statusItem->setMenu(m_statusMenu);
    bind();
    updateTitle(m_timer.remainingSeconds(), m_timer.phase());
}

StatusBarController::~StatusBarController() = default;

void StatusBarController::updateTitle(std::int64_t remaining, PomodoroPhase /*the title is the same in both*/)
{
    if (auto* button = m_statusItem->button()) {
        button->setTitle(timeText(remaining));
        button->setAppearsDisabled(false);
    }
}

void StatusBarController::bind()
{
    m_subscriptions.push_back(combineLatest(
        [this](std::int64_t remaining, PomodoroPhase phase) {
            m_deliveries.add([this, remaining, phase] { updateTitle(remaining, phase); });
        },
        m_timer.remainingSeconds, m_timer.phase));
    m_subscriptions.push_back(combineLatest(
        [this](bool, bool, std::int64_t) {
            m_deliveries.add([this] { refreshMenuItems(m_timer.remainingSeconds(), m_timer.phase()); });
        },
        m_timer.isRunning, m_timer.hasStarted, m_timer.remainingSeconds));
    m_subscriptions.push_back(
        combineLatest([this](std::int64_t, std::int64_t) { m_deliveries.add([this] { updateDurationMenuStates(); }); },
            m_timer.focusDuration, m_timer.breakDuration));
    m_subscriptions.push_back(
        m_timer.phase.changes([this](PomodoroPhase) { m_deliveries.add([this] { updatePhaseMenuState(); }); }));
    m_subscriptions.push_back(NotificationCenter::defaultCenter().addObserver(
        pomodoroSessionCompleted, [this](const Notification&) { handleSessionCompletedNotification(); }));
}

void StatusBarController::handleStatusItemClick()
{
    const auto event = m_application.currentEvent();
    const bool asksForMenu = event
        && (event->kind == ClickEvent::Kind::rightMouseUp
            || (event->control && event->kind == ClickEvent::Kind::leftMouseUp));
    if (asksForMenu)
        openMenu();
    else
        togglePanel();
}

void StatusBarController::togglePanel()
{
    if (m_panelController->panel().isVisible())
        hideTimer();
    else
        showTimer();
}

void StatusBarController::openMenu()
{
    refreshMenuItems(std::nullopt, std::nullopt);
    if (m_statusItem->button())
        m_statusItem->popUpMenu();
}

void StatusBarController::handleSessionCompletedNotification()
{
    m_showAtPhaseEnd = m_runLoop.nextTurn([this] { showTimer(); });
}

} // namespace velto
