// SPDX-License-Identifier: MIT
#include "menubar/StatusBarController.h"

#include "core/PomodoroTimer.h"
#include "core/TimeText.h"
#include "observation/NotificationCenter.h"
#include "panel/TimerPanelController.h"
#include "platform/Application.h"
#include "platform/Window.h"

#include <utility>

namespace velto {

StatusBarController::StatusBarController(PomodoroTimer& timer, AppSettings& settings,
    std::unique_ptr<TimerPanelController> panelController, Desktop desktop) :
    m_application(desktop.application),
    m_statusItem(std::move(desktop.statusItem)),
    m_timer(timer),
    m_panelController(std::move(panelController)),
    m_statusMenu(timer, settings,
        {
            .application = desktop.application,
            .aboutController = std::move(desktop.aboutController),
            .helpController = std::move(desktop.helpController),
            .openSettings = [this] { openSettings(); },
            .didChange = [this] { m_statusItem->menuDidChange(); },
        }),
    m_refresh(desktop.runLoop,
        [this] {
            updateTitle();
            m_statusMenu.refreshMenuItems(m_timer.remainingSeconds(), m_timer.phase());
        }),
    m_showAtPhaseEnd(desktop.runLoop, [this] { showTimer(); })
{
    if (auto* button = m_statusItem->button()) {
        button->setFont(12);
        button->setToolTip("Velto");
        button->setAction([this] { handleStatusItemClick(); });
    }
    m_statusItem->setMenu(m_statusMenu.menu());
    bind();
    updateTitle();
}

StatusBarController::~StatusBarController() = default;

void StatusBarController::bind()
{
    const auto refreshOn = [this](const auto&... values) {
        (m_subscriptions.push_back(values.changes([this](const auto&) { m_refresh.request(); })), ...);
    };
    refreshOn(m_timer.remainingSeconds, m_timer.phase, m_timer.isRunning, m_timer.hasStarted, m_timer.focusDuration,
        m_timer.breakDuration);

    const auto onNotification = [this](const char* name, auto handler) {
        m_subscriptions.push_back(
            NotificationCenter::defaultCenter().addObserver(name, [handler](const Notification&) { handler(); }));
    };
    onNotification(pomodoroSessionCompleted, [this] { m_showAtPhaseEnd.request(); });
    onNotification(statusBarOpenMenu, [this] { openMenu(); });
    onNotification(statusBarShowTimer, [this] {
        showTimer();
        m_panelController->panel().makeKey();
    });
}

void StatusBarController::updateTitle()
{
    if (auto* button = m_statusItem->button()) {
        button->setTitle(timeText(m_timer.remainingSeconds()));
        button->setAppearsDisabled(false);
    }
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
        return hideTimer();
    showTimer();
    m_panelController->panel().makeKeyIfNeeded();
}

void StatusBarController::openMenu()
{
    m_statusMenu.refreshMenuItems();
    if (m_statusItem->button())
        m_statusItem->popUpMenu();
}

void StatusBarController::openSettings()
{
    showTimer();
    NotificationCenter::defaultCenter().post(statusBarShowSettings);
    // Whoever asks for the form wants to type into it.
    m_panelController->panel().makeKey();
}

void StatusBarController::showTimer()
{
    m_panelController->show(m_statusItem->button());
}

void StatusBarController::hideTimer()
{
    m_panelController->hide();
}

} // namespace velto
