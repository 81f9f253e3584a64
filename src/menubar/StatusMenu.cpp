// SPDX-License-Identifier: MIT
// The status menu: its structure, built once, its actions, and the marks recomputed on every refresh.
#include "menubar/StatusBarController.h"

#include "core/PomodoroTimer.h"
#include "observation/NotificationCenter.h"
#include "panel/TimerPanelController.h"
#include "platform/Application.h"
#include "settings/AppSettings.h"

#include <utility>

namespace velto {

namespace {

constexpr auto noMusicTitle = "None";

std::shared_ptr<MenuItem> makeItem(std::string title, MenuItem::Action action, std::any representedObject = {})
{
    auto item = std::make_shared<MenuItem>();
    item->title = std::move(title);
    item->action = std::move(action);
    item->isCheckable = representedObject.has_value();
    item->representedObject = std::move(representedObject);
    return item;
}

std::shared_ptr<MenuItem> makeItem(std::string title, MenuItem::Action action, Symbol symbol)
{
    auto item = makeItem(std::move(title), std::move(action));
    item->symbol = std::move(symbol);
    return item;
}

std::shared_ptr<MenuItem> makeSubmenu(std::string title, std::shared_ptr<Menu> submenu)
{
    auto item = makeItem(std::move(title), {});
    item->submenu = std::move(submenu);
    return item;
}

std::shared_ptr<MenuItem> makeSeparator()
{
    auto item = std::make_shared<MenuItem>();
    item->isSeparator = true;
    return item;
}

std::shared_ptr<Menu> makeMenu(std::string title)
{
    auto menu = std::make_shared<Menu>();
    menu->title = std::move(title);
    return menu;
}

} // namespace

std::shared_ptr<Menu> StatusBarController::buildMenu()
{
    const auto focusDurations = durationMenu(
        "Focus Duration", {15, 20, 25, 30, 45, 50, 60, 90}, [this] { return focusMinutes(); },
        [this](std::int64_t minutes) { m_timer.updateDurations(minutes, breakMinutes()); });
    const auto breakDurations = durationMenu(
        "Break Duration", {5, 10, 15, 20, 30}, [this] { return breakMinutes(); },
        [this](std::int64_t minutes) { m_timer.updateDurations(focusMinutes(), minutes); });
    const auto presets = presetsMenu();
    const auto focusMusic = musicMenu("Focus Music", [this](std::optional<MusicPreset> preset) {
        updateMusic(preset ? MusicChange(*preset) : MusicOff{}, MusicUnchanged{});
    });
    const auto breakMusic = musicMenu("Break Music", [this](std::optional<MusicPreset> preset) {
        updateMusic(MusicUnchanged{}, preset ? MusicChange(*preset) : MusicOff{});
    });
    const auto phases = phaseSelectionMenu();

    m_focusDurationMenuRef = focusDurations;
    m_breakDurationMenuRef = breakDurations;
    m_presetsMenuRef = presets;
    m_focusMusicMenuRef = focusMusic;
    m_breakMusicMenuRef = breakMusic;
    m_phaseMenuRef = phases;

    m_startPauseItem->action = [this](const MenuItem&) { toggleStartPause(); };
    m_resetItem->action = [this](const MenuItem&) { resetTimer(); };
    m_autoTransitionItem->title = "Auto-Transition";
    m_autoTransitionItem->isCheckable = true;
    m_autoTransitionItem->action = [this](const MenuItem&) { toggleAutoTransition(); };

    auto menu = makeMenu("");
    menu->willOpen = [this] { refreshMenuItems(std::nullopt, std::nullopt); };
    menu->items = {
        m_startPauseItem,
        m_resetItem,
        makeSeparator(),
        makeSubmenu("Focus Duration", focusDurations),
        makeSubmenu("Break Duration", breakDurations),
        makeSubmenu("Presets", presets),
        makeSeparator(),
        makeSubmenu("Focus Music", focusMusic),
        makeSubmenu("Break Music", breakMusic),
        makeSeparator(),
        makeSubmenu("Current Phase", phases),
        makeSeparator(),
        m_autoTransitionItem,
        makeSeparator(),
        makeItem(
            "Settings…", [this](const MenuItem&) { openSettings(); }, Symbol{"gearshape", "Settings"}),
        makeItem(
            "How to Use", [this](const MenuItem&) { showHelp(); }, Symbol{"questionmark.circle", "Help"}),
        makeItem(
            "About velto", [this](const MenuItem&) { showAbout(); }, Symbol{"info.circle", "About"}),
        makeSeparator(),
        makeItem("Quit", [this](const MenuItem&) { quit(); }),
    };
    return menu;
}

std::shared_ptr<Menu> StatusBarController::durationMenu(const std::string& title,
    const std::vector<std::int64_t>& values, const std::function<std::int64_t()>& currentMinutes,
    const std::function<void(std::int64_t)>& apply)
{
    auto menu = makeMenu(title);
    const auto current = currentMinutes();
    for (const auto value : values) {
        menu->items.push_back(makeItem(
            std::to_string(value) + " minutes", [this](const MenuItem& item) { applyDuration(item); },
            std::any(DurationChoice{value, apply})));
        menu->items.back()->isOn = value == current;
    }
    menu->items.push_back(makeSeparator());
    menu->items.push_back(makeItem("Custom…", [this](const MenuItem&) { openSettings(); }));
    return menu;
}

std::shared_ptr<Menu> StatusBarController::presetsMenu()
{
    auto menu = makeMenu("Presets");
    for (const auto& preset : {DurationPreset{25, 5}, {50, 10}, {60, 10}, {90, 15}}) {
        menu->items.push_back(makeItem(
            std::to_string(preset.focus) + "m focus / " + std::to_string(preset.breakTime) + "m break",
            [this](const MenuItem& item) { applyPreset(item); }, std::any(preset)));
    }
    return menu;
}

std::shared_ptr<Menu> StatusBarController::phaseSelectionMenu()
{
    const auto select = [this](const MenuItem& item) { selectPhase(item); };
    auto menu = makeMenu("Current Phase");
    menu->items = {
        makeItem("Focus", select, std::any(static_cast<std::int64_t>(PomodoroPhase::focus))),
        makeItem("Break", select, std::any(static_cast<std::int64_t>(PomodoroPhase::breakTime))),
    };
    return menu;
}

std::shared_ptr<Menu> StatusBarController::musicMenu(
    const std::string& title, const std::function<void(std::optional<MusicPreset>)>& apply)
{
    const auto choose = [this](const MenuItem& item) { applyMusicPreset(item); };
    auto menu = makeMenu(title);
    menu->items = {makeItem(noMusicTitle, choose, std::any(MusicChoice{std::nullopt, apply})), makeSeparator()};
    for (const auto preset : allMusicPresets)
        menu->items.push_back(makeItem(std::string(rawValue(preset)), choose, std::any(MusicChoice{preset, apply})));
    menu->items.push_back(makeSeparator());
    menu->items.push_back(makeItem("Edit Custom URL…", [this](const MenuItem&) { openSettings(); }));
    return menu;
}

void StatusBarController::toggleStartPause()
{
    if (m_timer.isRunning())
        m_timer.pause();
    else
        m_timer.start();
}

void StatusBarController::resetTimer()
{
    m_timer.reset();
}

void StatusBarController::applyDuration(const MenuItem& item)
{
    if (const auto* choice = std::any_cast<DurationChoice>(&item.representedObject))
        choice->apply(choice->minutes);
}

void StatusBarController::applyPreset(const MenuItem& item)
{
    if (const auto* preset = std::any_cast<DurationPreset>(&item.representedObject))
        m_timer.updateDurations(preset->focus, preset->breakTime);
}

void StatusBarController::selectPhase(const MenuItem& item)
{
    if (const auto* number = std::any_cast<std::int64_t>(&item.representedObject))
        if (const auto phase = pomodoroPhase(*number))
            m_timer.switchToPhase(*phase);
}

void StatusBarController::applyMusicPreset(const MenuItem& item)
{
    if (const auto* choice = std::any_cast<MusicChoice>(&item.representedObject))
        choice->apply(choice->preset);
}

void StatusBarController::toggleAutoTransition()
{
    m_timer.autoTransition.set(!m_timer.autoTransition());
    m_autoTransitionItem->isOn = m_timer.autoTransition();
    m_statusItem->menuDidChange();
}

void StatusBarController::openSettings()
{
    showTimer();
    NotificationCenter::defaultCenter().post(statusBarShowSettings);
    // Who asks for the form wants to type into it.
    m_panelController->panel().makeKey();
}

void StatusBarController::showHelp()
{
    m_application.activate();
    m_helpController->panel().makeKeyAndOrderFront();
}

void StatusBarController::showAbout()
{
    m_application.activate();
    m_aboutController->panel().makeKeyAndOrderFront();
}

void StatusBarController::quit()
{
    m_application.terminate();
}

void StatusBarController::showTimer()
{
    m_panelController->show(m_statusItem->button());
}

void StatusBarController::showTimerForKeyboard()
{
    showTimer();
    m_panelController->panel().makeKey();
}

void StatusBarController::hideTimer()
{
    m_panelController->hide();
}

void StatusBarController::refreshMenuItems(
    std::optional<std::int64_t> currentRemaining, std::optional<PomodoroPhase> shownPhase)
{
    const auto current = currentRemaining.value_or(m_timer.remainingSeconds());
    const bool isBreak = shownPhase.value_or(m_timer.phase()) == PomodoroPhase::breakTime;
    const std::string label = isBreak ? "Break" : "Focus";
    const auto total = isBreak ? m_timer.breakDuration() : m_timer.focusDuration();
    const bool isRunning = m_timer.isRunning();
    const bool hasStarted = m_timer.hasStarted();

    m_startPauseItem->title = (isRunning ? "Pause " : "Start ") + label;
    m_resetItem->title = "Reset " + label;
    m_resetItem->isHidden = !isRunning && !hasStarted;
    m_resetItem->isEnabled = isRunning || (hasStarted && current < total);
    updateDurationMenuStates();
}

void StatusBarController::updateDurationMenuStates()
{
    updateDurationState(m_focusDurationMenuRef.lock(), focusMinutes());
    updateDurationState(m_breakDurationMenuRef.lock(), breakMinutes());
    updatePresetStates();
    updatePhaseMenuState();
    updateMusicMenuStates();
    m_autoTransitionItem->isOn = m_timer.autoTransition();
    m_statusItem->menuDidChange();
}

void StatusBarController::updateDurationState(const std::shared_ptr<Menu>& menu, std::int64_t current)
{
    if (!menu)
        return;
    for (const auto& item : menu->items) {
        const auto* choice = std::any_cast<DurationChoice>(&item->representedObject);
        item->isOn = choice && choice->minutes == current;
    }
}

void StatusBarController::updatePresetStates()
{
    const DurationPreset current{focusMinutes(), breakMinutes()};
    const auto menu = m_presetsMenuRef.lock();
    if (!menu)
        return;
    for (const auto& item : menu->items) {
        const auto* preset = std::any_cast<DurationPreset>(&item->representedObject);
        item->isOn = preset && *preset == current;
    }
}

void StatusBarController::updatePhaseMenuState()
{
    const auto menu = m_phaseMenuRef.lock();
    if (!menu)
        return;
    for (const auto& item : menu->items) {
        const auto* number = std::any_cast<std::int64_t>(&item->representedObject);
        item->isOn = number && pomodoroPhase(*number) == m_timer.phase();
    }
    m_statusItem->menuDidChange();
}

void StatusBarController::updateMusicMenuStates()
{
    updateMusicMenuState(m_focusMusicMenuRef.lock(), m_settings.focusMusicPreset(), m_settings.enableFocusMusic());
    updateMusicMenuState(m_breakMusicMenuRef.lock(), m_settings.breakMusicPreset(), m_settings.enableBreakMusic());
    m_statusItem->menuDidChange();
}

void StatusBarController::updateMusicMenuState(
    const std::shared_ptr<Menu>& menu, MusicPreset currentPreset, bool isEnabled)
{
    if (!menu)
        return;
    for (const auto& item : menu->items) {
        const auto* choice = std::any_cast<MusicChoice>(&item->representedObject);
        if (item->title == noMusicTitle)
            item->isOn = !isEnabled;
        else if (choice && choice->preset)
            item->isOn = isEnabled && rawValue(*choice->preset) == rawValue(currentPreset);
    }
}

void StatusBarController::updateMusic(const MusicChange& focus, const MusicChange& breakTime)
{
    const auto apply
        = [this](const MusicChange& change, PomodoroPhase phase, Setting<bool>& enabled, Setting<MusicPreset>& chosen) {
              if (std::holds_alternative<MusicUnchanged>(change))
                  return;
              const auto* preset = std::get_if<MusicPreset>(&change);
              enabled.set(preset != nullptr);
              if (preset)
                  chosen.set(*preset);
              if (m_timer.phase() == phase && m_timer.isRunning()) {
                  m_timer.musicPlayer().stop();
                  if (enabled())
                      m_timer.startMusicForCurrentPhase();
              }
          };
    apply(focus, PomodoroPhase::focus, m_settings.enableFocusMusic, m_settings.focusMusicPreset);
    apply(breakTime, PomodoroPhase::breakTime, m_settings.enableBreakMusic, m_settings.breakMusicPreset);
    updateMusicMenuStates();
}

std::int64_t StatusBarController::focusMinutes() const
{
    return m_timer.focusDuration() / 60;
}

std::int64_t StatusBarController::breakMinutes() const
{
    return m_timer.breakDuration() / 60;
}

} // namespace velto
