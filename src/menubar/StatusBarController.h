// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroPhase.h"
#include "menubar/DeliveryQueue.h"
#include "menubar/MenuValues.h"
#include "platform/Menu.h"
#include "platform/StatusItem.h"
#include "platform/Window.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velto {

class AppSettings;
class Application;
class PomodoroTimer;
class RunLoop;
class TimerPanelController;

/// The program's presence in the panel bar: the time as the status item's title, its clicks, its menu.
///
/// Nothing about the menu is remembered: every refresh recomputes it from the timer and the
/// settings. Main thread only.
class StatusBarController {
public:
    struct Desktop {
        RunLoop& runLoop;
        Application& application;
        std::unique_ptr<StatusItem> statusItem;
        std::unique_ptr<WindowController> aboutController;
        std::unique_ptr<WindowController> helpController;
    };

    /// Puts the title and the menu in place. All references must outlive this.
    StatusBarController(PomodoroTimer& timer, AppSettings& settings,
        std::unique_ptr<TimerPanelController> panelController, Desktop desktop);
    StatusBarController(const StatusBarController&) = delete;
    StatusBarController& operator=(const StatusBarController&) = delete;
    ~StatusBarController();

    [[nodiscard]] TimerPanelController& panelController() { return *m_panelController; }
    [[nodiscard]] StatusItem& statusItem() { return *m_statusItem; }
    [[nodiscard]] const std::shared_ptr<Menu>& statusMenu() const { return m_statusMenu; }

    /// The status item was clicked; the application's current event says how.
    void handleStatusItemClick();

    void showTimer();
    void hideTimer();
    /// Shows the timer, for somebody who wants to use it with the keyboard.
    void showTimerForKeyboard();
    void openMenu();

private:
    void updateTitle(std::int64_t remaining, PomodoroPhase phase);
    void bind();
    void togglePanel();
    void handleSessionCompletedNotification();

    [[nodiscard]] std::shared_ptr<Menu> buildMenu();
    [[nodiscard]] std::shared_ptr<Menu> durationMenu(const std::string& title, const std::vector<std::int64_t>& values,
        const std::function<std::int64_t()>& currentMinutes, const std::function<void(std::int64_t)>& apply);
    [[nodiscard]] std::shared_ptr<Menu> presetsMenu();
    [[nodiscard]] std::shared_ptr<Menu> phaseSelectionMenu();
    [[nodiscard]] std::shared_ptr<Menu> musicMenu(
        const std::string& title, const std::function<void(std::optional<MusicPreset>)>& apply);

    void toggleStartPause();
    void resetTimer();
    void applyDuration(const MenuItem& item);
    void applyPreset(const MenuItem& item);
    void selectPhase(const MenuItem& item);
    void applyMusicPreset(const MenuItem& item);
    void toggleAutoTransition();
    void openSettings();
    void showHelp();
    void showAbout();
    void quit();

    /// Absent arguments stand for what the timer shows now.
    void refreshMenuItems(std::optional<std::int64_t> currentRemaining, std::optional<PomodoroPhase> phase);
    void updateDurationMenuStates();
    void updateDurationState(const std::shared_ptr<Menu>& menu, std::int64_t current);
    void updatePresetStates();
    void updatePhaseMenuState();
    void updateMusicMenuStates();
    void updateMusicMenuState(const std::shared_ptr<Menu>& menu, MusicPreset currentPreset, bool isEnabled);
    void updateMusic(const MusicChange& focus, const MusicChange& breakTime);

    [[nodiscard]] std::int64_t focusMinutes() const;
    [[nodiscard]] std::int64_t breakMinutes() const;

    RunLoop& m_runLoop;
    Application& m_application;
    std::unique_ptr<StatusItem> m_statusItem;
    PomodoroTimer& m_timer;
    AppSettings& m_settings;
    std::unique_ptr<TimerPanelController> m_panelController;
    std::weak_ptr<Menu> m_focusDurationMenuRef;
    std::weak_ptr<Menu> m_breakDurationMenuRef;
    std::weak_ptr<Menu> m_presetsMenuRef;
    std::weak_ptr<Menu> m_phaseMenuRef;
    std::weak_ptr<Menu> m_focusMusicMenuRef;
    std::weak_ptr<Menu> m_breakMusicMenuRef;
    std::shared_ptr<MenuItem> m_autoTransitionItem = std::make_shared<MenuItem>();
    std::shared_ptr<MenuItem> m_startPauseItem = std::make_shared<MenuItem>();
    std::shared_ptr<MenuItem> m_resetItem = std::make_shared<MenuItem>();
    std::unique_ptr<WindowController> m_aboutController;
    std::unique_ptr<WindowController> m_helpController;
    std::shared_ptr<Menu> m_statusMenu = std::make_shared<Menu>();
    DeliveryQueue m_deliveries;
    Subscription m_showAtPhaseEnd;
    std::vector<Subscription> m_subscriptions;
};

} // namespace velto
