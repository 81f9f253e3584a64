// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Subscription.h"
#include "panel/TimerDisplay.h"
#include "style/ViewRefresher.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace velto {

class AppSettings;
class Bundle;
class Button;
class CircularProgressView;
class PhaseTitle;
class PomodoroTimer;
class RollingTime;
class TextLabel;

/// Makes the settings form, hidden, as a window that attaches itself to that of `presenter`. The form
/// calls `dismiss` when it is done, also from within one of its own event handlers.
using SettingsSheetFactory = std::function<std::unique_ptr<QWidget>(
    AppSettings& settings, PomodoroTimer& timer, QWidget& presenter, std::function<void()> dismiss)>;

/// The timer view: phase, remaining time and ring, the buttons, the durations and the program's name.
///
/// While it is shown, the notification `statusBarShowSettings` opens the settings form over it. The
/// form hides and shows with this view and lives until it is dismissed.
class ContentView : public QWidget {
    Q_OBJECT

public:
    /// All references must outlive this. `makeSettingsSheet` may be empty: then nothing is opened.
    ContentView(PomodoroTimer& timer, AppSettings& settings, RunLoop& runLoop, const Bundle& bundle,
        SettingsSheetFactory makeSettingsSheet);
    ~ContentView() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void refresh();
    void showControls(ControlsForm form);
    void presentSettings();
    void dismissSettings();

    PomodoroTimer& m_timer;
    AppSettings& m_settings;
    SettingsSheetFactory m_makeSettingsSheet;

    CircularProgressView* m_ring;
    PhaseTitle* m_title;
    RollingTime* m_time;
    Button* m_start;
    Button* m_pause;
    Button* m_reset;
    TextLabel* m_durations;

    QPointer<QWidget> m_settingsSheet;
    Subscription m_settingsRequests;
    ViewRefresher m_refresher;
};

} // namespace velto
