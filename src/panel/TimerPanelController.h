// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"
#include "platform/Geometry.h"
#include "platform/PanelWindow.h"

#include <functional>
#include <memory>
#include <optional>

namespace velto {

class AppSettings;
class EventMonitor;
class PomodoroTimer;
class Screens;
class StatusItemButton;

/// Posted to have the settings form opened in the panel; no object.
inline constexpr auto statusBarShowSettings = "StatusBarShowSettings";

/// Where the panel stands on a screen. Points, origin bottom left.
///
/// `button` is the status item's rectangle on that screen; without one the panel hangs at the top
/// centre. The result may overflow a screen narrower than `panelSize`: the left edge wins.
[[nodiscard]] Rect placePanel(std::optional<Rect> button, const Rect& visibleFrame, Size panelSize);

/// `frame`, moved as little as it takes to lie in `visibleFrame`; where that is too small, its top left corner does.
[[nodiscard]] Rect pulledInside(const Rect& frame, const Rect& visibleFrame);

/// Owns the floating panel: places it under the status item, shows it without taking the focus, keeps it
/// on the screen when screens change, and hides it when the user presses the mouse elsewhere.
///
/// Main thread only.
class TimerPanelController {
public:
    using PanelFactory = std::function<std::unique_ptr<PanelWindow>(PomodoroTimer&, AppSettings&, Size)>;

    /// Builds no panel yet. All references must outlive this.
    TimerPanelController(PomodoroTimer& timer, AppSettings& settings, Screens& screens, EventMonitor& eventMonitor,
        PanelFactory makePanel);

    static constexpr Size panelSize{360, 420};

    /// Created on first access, then kept.
    [[nodiscard]] PanelWindow& panel();

    /// Places the panel under `button` and brings it to the front. Without a button, or with one
    /// that is nowhere, it hangs at the top centre of the main screen; without any screen it is
    /// shown where it was.
    void show(const StatusItemButton* button);
    /// Harmless on a hidden panel.
    void hide();

private:
    void positionPanel(const StatusItemButton* button);
    void installOutsideMonitor();
    void keepOnScreen();

    PomodoroTimer& m_timer;
    AppSettings& m_settings;
    Screens& m_screens;
    EventMonitor& m_eventMonitor;
    PanelFactory m_makePanel;
    std::unique_ptr<PanelWindow> m_panel;
    Subscription m_screenChanges;
    std::optional<Subscription> m_outsideMonitor;
};

} // namespace velto
