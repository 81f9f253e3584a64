// SPDX-License-Identifier: MIT
#include "panel/ContentView.h"

#include "core/PomodoroTimer.h"
#include "core/TimeText.h"
#include "observation/NotificationCenter.h"
#include "panel/CircularProgressView.h"
#include "panel/PhaseTitle.h"
#include "panel/RollingTime.h"
#include "panel/TimerPanelController.h"
#include "platform/Bundle.h"
#include "style/Button.h"
#include "style/Stack.h"
#include "style/SymbolView.h"
#include "style/TextLabel.h"
#include "style/Translation.h"

#include <utility>

namespace velto {

namespace {

constexpr QSize viewSize(320, 380);
constexpr int ringDiameter = 220;
constexpr int titleAboveCenter = 50;
/// What is left of the dial's 10 points of padding beside the half of the stroke outside the ring's frame.
constexpr int dialPadding = 10 - CircularProgressView::lineWidth / 2;

} // namespace

ContentView::ContentView(PomodoroTimer& timer, AppSettings& settings, RunLoop& runLoop, const Bundle& bundle,
    SettingsSheetFactory makeSettingsSheet) :
    m_timer(timer),
    m_settings(settings),
    m_makeSettingsSheet(std::move(makeSettingsSheet)),
    m_ring(new CircularProgressView(ringDiameter)),
    m_title(new PhaseTitle),
    m_time(new RollingTime(ringDiameter - 2 * CircularProgressView::lineWidth)),
    m_start(new Button(ButtonKind::prominent, tr("Start"), "play.fill", ColorName::green)),
    m_pause(new Button(ButtonKind::prominent, tr("Pause"), "pause.fill", ColorName::orange)),
    m_reset(new Button(ButtonKind::destructive, tr("Reset"), "arrow.counterclockwise")),
    m_durations(new TextLabel({}, TextStyle::footnote, ColorName::secondaryLabel)),
    m_refresher(*this, runLoop, [this] { refresh(); })
{
    auto* timerSymbol = new SymbolView("timer", TextStyle::footnote, ColorName::secondaryLabel);
    auto* name = new TextLabel(
        QString::fromStdString(applicationName(bundle)), TextStyle::footnote, ColorName::secondaryLabel);

    setFixedSize(viewSize);
    // What is higher than the view overflows its padding evenly.
    setLayout(column({.spacing = 0, .padding = {16, 0, 16, 0}, .alignment = {}}, spacer,
        column({.spacing = 12},
            layers({.padding = {0, dialPadding, 0, dialPadding}}, m_ring,
                column({.padding = {0, 0, 0, 2 * titleAboveCenter}}, m_title), m_time),
            filling(row({.spacing = 12}, filling(m_start), filling(m_pause), filling(m_reset))),
            row({.spacing = 6, .padding = {0, 20, 0, 0}}, timerSymbol, m_durations), //
            name),
        spacer));

    connect(m_start, &QAbstractButton::clicked, this, [this] { m_timer.start(); });
    connect(m_pause, &QAbstractButton::clicked, this, [this] { m_timer.pause(); });
    connect(m_reset, &QAbstractButton::clicked, this, [this] { m_timer.reset(); });
    m_refresher.observe(timer);
    refresh();
}

ContentView::~ContentView()
{
    delete m_settingsSheet;
}

void ContentView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_settingsRequests = NotificationCenter::defaultCenter().addObserver(
        statusBarShowSettings, [this](const Notification&) { presentSettings(); });
    if (m_settingsSheet)
        m_settingsSheet->show();
}

void ContentView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_settingsRequests.cancel();
    if (m_settingsSheet)
        m_settingsSheet->hide();
}

void ContentView::refresh()
{
    const bool isFocus = m_timer.phase() == PomodoroPhase::focus;
    const auto phaseColor = isFocus ? ColorName::teal : ColorName::label;
    const auto remaining = m_timer.remainingSeconds();

    m_ring->setColor(phaseColor);
    m_ring->setProgress(phaseProgress(remaining, isFocus ? m_timer.focusDuration() : m_timer.breakDuration()));
    m_title->setTitle(isFocus ? tr("Focus") : tr("Break"), phaseColor);
    m_time->setTime(QString::fromStdString(timeText(remaining)), timeFontSize(remaining));
    showControls(controlsForm(m_timer.isRunning(), m_timer.hasStarted()));
    const auto durations = translated("TimerDisplay", durationsLine(m_timer.focusDuration(), m_timer.breakDuration()));
    if (durations != m_durations->text())
        m_durations->setText(durations);
}

void ContentView::showControls(ControlsForm form)
{
    auto* const shown = form == ControlsForm::running ? m_pause : m_start;
    auto* const hidden = form == ControlsForm::running ? m_start : m_pause;
    const bool losesFocus = hidden->hasFocus() || (form == ControlsForm::fresh && m_reset->hasFocus());

    shown->setVisible(true);
    if (losesFocus)
        shown->setFocus(Qt::OtherFocusReason);
    hidden->setVisible(false);
    m_reset->setVisible(form != ControlsForm::fresh);
}

void ContentView::presentSettings()
{
    if (m_settingsSheet || !m_makeSettingsSheet)
        return;
    m_settingsSheet = m_makeSettingsSheet(m_settings, m_timer, *this, [this] { dismissSettings(); }).release();
    m_settingsSheet->show();
}

void ContentView::dismissSettings()
{
    if (auto* sheet = std::exchange(m_settingsSheet, nullptr).data()) {
        sheet->hide();
        sheet->deleteLater();
    }
}

} // namespace velto
