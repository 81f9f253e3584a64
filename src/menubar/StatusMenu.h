// SPDX-License-Identifier: MIT
#pragma once

#include "core/PomodoroPhase.h"
#include "menubar/MenuValues.h"
#include "platform/Menu.h"

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
class WindowController;

/// The menu of the status item: built once, with its actions, and the marks that follow timer and settings.
///
/// Caches nothing: every refresh recomputes titles and marks. Main thread only.
class StatusMenu {
public:
    struct Desktop {
        Application& application;
        std::unique_ptr<WindowController> aboutController;
        std::unique_ptr<WindowController> helpController;
        std::function<void()> openSettings;
        std::function<void()> didChange; ///< Runs after a refresh that changed something.
    };

    /// Titles the items, but marks only the durations; a refresh marks the rest. Both references must outlive this.
    StatusMenu(PomodoroTimer& timer, AppSettings& settings, Desktop desktop);
    StatusMenu(const StatusMenu&) = delete;
    StatusMenu& operator=(const StatusMenu&) = delete;
    ~StatusMenu();

    /// Always the same one. Its actions must not be used once this is gone.
    [[nodiscard]] const std::shared_ptr<Menu>& menu() const { return m_menu; }

    /// An absent argument stands for what the timer shows now.
    void refreshMenuItems(std::optional<std::int64_t> currentRemaining = {}, std::optional<PomodoroPhase> phase = {});

    /// Stores the choices; the stream of a running phase follows at once.
    void updateMusic(const MusicChange& focusPreset, const MusicChange& breakPreset);

private:
    [[nodiscard]] MenuItem::Action openSettings() const;
    [[nodiscard]] std::shared_ptr<Menu> durationMenu(const std::string& title, const std::vector<std::int64_t>& values,
        std::int64_t currentMinutes, const std::function<void(std::int64_t)>& apply) const;
    [[nodiscard]] std::shared_ptr<Menu> presetsMenu();
    [[nodiscard]] std::shared_ptr<Menu> phaseSelectionMenu();
    [[nodiscard]] std::shared_ptr<Menu> musicMenu(
        const std::string& title, const std::function<void(const MusicChange&)>& apply) const;

    void toggleStartPause();
    void toggleAutoTransition();
    void show(WindowController& controller);

    // Return whether the menu now looks different.
    bool updateTimerItems(std::int64_t currentRemaining, PomodoroPhase phase);
    bool updateMarks();

    [[nodiscard]] std::int64_t focusMinutes() const;
    [[nodiscard]] std::int64_t breakMinutes() const;

    PomodoroTimer& m_timer;
    AppSettings& m_settings;
    Desktop m_desktop;
    std::shared_ptr<MenuItem> m_startPauseItem;
    std::shared_ptr<MenuItem> m_resetItem;
    std::shared_ptr<MenuItem> m_autoTransitionItem;
    std::shared_ptr<Menu> m_focusDurationMenu;
    std::shared_ptr<Menu> m_breakDurationMenu;
    std::shared_ptr<Menu> m_presetsMenu;
    std::shared_ptr<Menu> m_focusMusicMenu;
    std::shared_ptr<Menu> m_breakMusicMenu;
    std::shared_ptr<Menu> m_phaseMenu;
    std::shared_ptr<Menu> m_menu;
};

} // namespace velto
