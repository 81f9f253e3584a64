// SPDX-License-Identifier: MIT
#include "menubar/StatusMenu.h"

#include "core/PomodoroTimer.h"
#include "platform/Application.h"
#include "platform/Text.h"
#include "platform/Window.h"
#include "settings/AppSettings.h"

#include <utility>

namespace velto {

namespace {

std::shared_ptr<MenuItem> makeItem(
    std::string title, MenuItem::Action action, std::optional<Symbol> symbol = std::nullopt)
{
    auto item = std::make_shared<MenuItem>();
    item->title = std::move(title);
    item->action = std::move(action);
    item->symbol = std::move(symbol);
    return item;
}

/// An item that stands for `value`; an action on an item without a value of that kind does nothing.
template <class Value, class Choose>
std::shared_ptr<MenuItem> makeChoice(std::string title, Value value, Choose choose)
{
    auto item = makeItem(std::move(title), [choose = std::move(choose)](const MenuItem& chosen) {
        if (const auto* found = std::any_cast<Value>(&chosen.representedObject))
            choose(*found);
    });
    item->isCheckable = true;
    item->representedObject = std::move(value);
    return item;
}

std::shared_ptr<MenuItem> makeSubmenu(std::shared_ptr<Menu> submenu)
{
    auto item = makeItem(submenu->title, {});
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

/// Returns whether that changed the field.
template <class Field, class Value>
bool assign(Field& field, Value value)
{
    return std::exchange(field, std::move(value)) != field;
}

/// Marks the current choices. Returns whether a mark came or went.
template <class Value, class IsCurrent>
bool mark(const Menu& menu, IsCurrent isCurrent)
{
    bool changed = false;
    for (const auto& item : menu.items)
        if (const auto* value = std::any_cast<Value>(&item->representedObject))
            changed |= assign(item->isOn, isCurrent(*value));
    return changed;
}

} // namespace

StatusMenu::StatusMenu(PomodoroTimer& timer, AppSettings& settings, Desktop desktop) :
    m_timer(timer),
    m_settings(settings),
    m_desktop(std::move(desktop)),
    m_startPauseItem(makeItem({}, [this](const MenuItem&) { toggleStartPause(); })),
    m_resetItem(makeItem({}, [this](const MenuItem&) { m_timer.reset(); })),
    m_autoTransitionItem(
        makeItem(translatable("Menu", "Auto-Transition"), [this](const MenuItem&) { toggleAutoTransition(); })),
    m_focusDurationMenu(durationMenu(translatable("Menu", "Focus Duration"), {15, 20, 25, 30, 45, 50, 60, 90},
        focusMinutes(), [this](std::int64_t minutes) { m_timer.updateDurations(minutes, breakMinutes()); })),
    m_breakDurationMenu(durationMenu(translatable("Menu", "Break Duration"), {5, 10, 15, 20, 30}, breakMinutes(),
        [this](std::int64_t minutes) { m_timer.updateDurations(focusMinutes(), minutes); })),
    m_presetsMenu(presetsMenu()),
    m_focusMusicMenu(musicMenu(translatable("Menu", "Focus Music"),
        [this](const MusicChange& change) { updateMusic(change, MusicUnchanged{}); })),
    m_breakMusicMenu(musicMenu(translatable("Menu", "Break Music"),
        [this](const MusicChange& change) { updateMusic(MusicUnchanged{}, change); })),
    m_phaseMenu(phaseSelectionMenu()),
    m_menu(makeMenu(""))
{
    m_autoTransitionItem->isCheckable = true;
    m_menu->willOpen = [this] { refreshMenuItems(); };
    m_menu->items = {
        m_startPauseItem,
        m_resetItem,
        makeSeparator(),
        makeSubmenu(m_focusDurationMenu),
        makeSubmenu(m_breakDurationMenu),
        makeSubmenu(m_presetsMenu),
        makeSeparator(),
        makeSubmenu(m_focusMusicMenu),
        makeSubmenu(m_breakMusicMenu),
        makeSeparator(),
        makeSubmenu(m_phaseMenu),
        makeSeparator(),
        m_autoTransitionItem,
        makeSeparator(),
        makeItem(translatable("Menu", "Settings…"), openSettings(), Symbol{"gearshape", "Settings"}),
        makeItem(
            translatable("Menu", "How to Use"), [this](const MenuItem&) { show(*m_desktop.helpController); },
            Symbol{"questionmark.circle", "Help"}),
        makeItem(
            translatable("Menu", "About velto"), [this](const MenuItem&) { show(*m_desktop.aboutController); },
            Symbol{"info.circle", "About"}),
        makeSeparator(),
        makeItem(translatable("Menu", "Quit"), [this](const MenuItem&) { m_desktop.application.terminate(); }),
    };
    updateTimerItems(m_timer.remainingSeconds(), m_timer.phase());
}

StatusMenu::~StatusMenu() = default;

MenuItem::Action StatusMenu::openSettings() const
{
    return [this](const MenuItem&) { m_desktop.openSettings(); };
}

std::shared_ptr<Menu> StatusMenu::durationMenu(const std::string& title, const std::vector<std::int64_t>& values,
    std::int64_t currentMinutes, const std::function<void(std::int64_t)>& apply) const
{
    auto menu = makeMenu(title);
    for (const auto value : values) {
        menu->items.push_back(makeChoice(withNumbers(translatableCount("Menu", "%n minutes"), {value}),
            DurationChoice{value}, [apply](const DurationChoice& choice) { apply(choice.minutes); }));
        menu->items.back()->isOn = value == currentMinutes;
    }
    menu->items.push_back(makeSeparator());
    menu->items.push_back(makeItem(translatable("Menu", "Custom…"), openSettings()));
    return menu;
}

std::shared_ptr<Menu> StatusMenu::presetsMenu()
{
    auto menu = makeMenu(translatable("Menu", "Presets"));
    for (const auto& preset : {DurationPreset{25, 5}, {50, 10}, {60, 10}, {90, 15}}) {
        menu->items.push_back(makeChoice(
            withNumbers(translatable("Menu", "%1m focus / %2m break"), {preset.focus, preset.breakTime}), preset,
            [this](const DurationPreset& chosen) { m_timer.updateDurations(chosen.focus, chosen.breakTime); }));
    }
    return menu;
}

std::shared_ptr<Menu> StatusMenu::phaseSelectionMenu()
{
    const auto select = [this](std::int64_t number) {
        if (const auto phase = pomodoroPhase(number))
            m_timer.switchToPhase(*phase);
    };
    auto menu = makeMenu(translatable("Menu", "Current Phase"));
    menu->items = {
        makeChoice(translatable("Menu", "Focus"), static_cast<std::int64_t>(PomodoroPhase::focus), select),
        makeChoice(translatable("Menu", "Break"), static_cast<std::int64_t>(PomodoroPhase::breakTime), select),
    };
    return menu;
}

std::shared_ptr<Menu> StatusMenu::musicMenu(
    const std::string& title, const std::function<void(const MusicChange&)>& apply) const
{
    const auto choose
        = [apply](const MusicChoice& choice) { apply(choice.preset ? MusicChange(*choice.preset) : MusicOff{}); };
    auto menu = makeMenu(title);
    menu->items = {makeChoice(translatable("Menu", "None"), MusicChoice{}, choose), makeSeparator()};
    for (const auto preset : allMusicPresets)
        menu->items.push_back(makeChoice(std::string(rawValue(preset)), MusicChoice{preset}, choose));
    menu->items.push_back(makeSeparator());
    menu->items.push_back(makeItem(translatable("Menu", "Edit Custom URL…"), openSettings()));
    return menu;
}

void StatusMenu::toggleStartPause()
{
    if (m_timer.isRunning())
        m_timer.pause();
    else
        m_timer.start();
}

void StatusMenu::toggleAutoTransition()
{
    m_timer.autoTransition.set(!m_timer.autoTransition());
    refreshMenuItems();
}

void StatusMenu::show(WindowController& controller)
{
    m_desktop.application.activate();
    controller.panel().makeKeyAndOrderFront();
}

void StatusMenu::updateMusic(const MusicChange& focusPreset, const MusicChange& breakPreset)
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
    apply(focusPreset, PomodoroPhase::focus, m_settings.enableFocusMusic, m_settings.focusMusicPreset);
    apply(breakPreset, PomodoroPhase::breakTime, m_settings.enableBreakMusic, m_settings.breakMusicPreset);
    refreshMenuItems();
}

void StatusMenu::refreshMenuItems(std::optional<std::int64_t> currentRemaining, std::optional<PomodoroPhase> phase)
{
    const bool newItems
        = updateTimerItems(currentRemaining.value_or(m_timer.remainingSeconds()), phase.value_or(m_timer.phase()));
    const bool newMarks = updateMarks();
    if (newItems || newMarks)
        m_desktop.didChange();
}

bool StatusMenu::updateTimerItems(std::int64_t currentRemaining, PomodoroPhase phase)
{
    const bool isBreak = phase == PomodoroPhase::breakTime;
    const auto total = isBreak ? m_timer.breakDuration() : m_timer.focusDuration();
    const bool isRunning = m_timer.isRunning();
    const bool hasStarted = m_timer.hasStarted();

    const auto* start = isBreak ? translatable("Menu", "Start Break") : translatable("Menu", "Start Focus");
    const auto* pause = isBreak ? translatable("Menu", "Pause Break") : translatable("Menu", "Pause Focus");
    const auto* reset = isBreak ? translatable("Menu", "Reset Break") : translatable("Menu", "Reset Focus");
    bool changed = assign(m_startPauseItem->title, isRunning ? pause : start);
    changed |= assign(m_resetItem->title, reset);
    changed |= assign(m_resetItem->isHidden, !isRunning && !hasStarted);
    changed |= assign(m_resetItem->isEnabled, isRunning || (hasStarted && currentRemaining < total));
    changed |= assign(m_autoTransitionItem->isOn, m_timer.autoTransition());
    return changed;
}

bool StatusMenu::updateMarks()
{
    const DurationPreset current{focusMinutes(), breakMinutes()};
    const auto markDuration = [](const Menu& menu, std::int64_t minutes) {
        return mark<DurationChoice>(
            menu, [minutes](const DurationChoice& choice) { return choice.minutes == minutes; });
    };
    const auto markMusic = [](const Menu& menu, bool isEnabled, MusicPreset preset) {
        const auto chosen = isEnabled ? std::optional(preset) : std::nullopt;
        return mark<MusicChoice>(menu, [chosen](const MusicChoice& choice) { return choice.preset == chosen; });
    };

    bool changed = markDuration(*m_focusDurationMenu, current.focus);
    changed |= markDuration(*m_breakDurationMenu, current.breakTime);
    changed |= mark<DurationPreset>(*m_presetsMenu, [&](const DurationPreset& preset) { return preset == current; });
    changed |= mark<std::int64_t>(
        *m_phaseMenu, [this](std::int64_t number) { return pomodoroPhase(number) == m_timer.phase(); });
    changed |= markMusic(*m_focusMusicMenu, m_settings.enableFocusMusic(), m_settings.focusMusicPreset());
    changed |= markMusic(*m_breakMusicMenu, m_settings.enableBreakMusic(), m_settings.breakMusicPreset());
    return changed;
}

std::int64_t StatusMenu::focusMinutes() const
{
    return m_timer.focusDuration() / 60;
}

std::int64_t StatusMenu::breakMinutes() const
{
    return m_timer.breakDuration() / 60;
}

} // namespace velto
