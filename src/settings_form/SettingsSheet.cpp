// SPDX-License-Identifier: MIT
#include "settings_form/SettingsSheet.h"

#include "settings_form/EditableNumberField.h"
#include "style/Button.h"
#include "style/Divider.h"
#include "style/Drawing.h"
#include "style/Paragraph.h"
#include "style/PopUpPicker.h"
#include "style/ScrollBar.h"
#include "style/Slider.h"
#include "style/Stack.h"
#include "style/TextField.h"
#include "style/TextLabel.h"
#include "style/ToggleSwitch.h"
#include "style/Translation.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <utility>

namespace velto {

namespace {

constexpr int padding = 16;
constexpr int controlWidth = 300;
constexpr int numberWidth = 50;
constexpr int soundWidth = 140;

/// Announces only what is new.
template <class T>
void assign(Published<T>& published, const T& value)
{
    if (published() != value)
        published.set(value);
}

/// Shows the raw values of `options`, translated in `context`; what is chosen goes into `selection`.
template <class Option, std::size_t Count>
PopUpPicker* picker(
    const QString& title, const char* context, const std::array<Option, Count>& options, Published<Option>& selection)
{
    auto* picker = new PopUpPicker(title);
    for (const auto option : options)
        picker->addItem(translated(context, rawValue(option)));
    QObject::connect(picker, &QComboBox::currentIndexChanged, picker, [&options, &selection](int index) {
        if (index >= 0)
            assign(selection, options.at(static_cast<std::size_t>(index)));
    });
    return picker;
}

/// A plain widget around a layout, of one width if that is given.
QWidget* box(QLayout* layout, int width = 0)
{
    auto* widget = new QWidget;
    layout->setContentsMargins({});
    widget->setLayout(layout);
    if (width > 0)
        widget->setFixedWidth(width);
    return widget;
}

QLayout* section(const QString& title, QLayout* content)
{
    return column({.spacing = 16}, new TextLabel(title, TextStyle::headline), filling(content));
}

} // namespace

SettingsSheet::SettingsSheet(
    AppSettings& settings, PomodoroTimer& timer, RunLoop& runLoop, std::function<void()> dismiss) :
    m_form(settings, timer),
    m_dismiss(std::move(dismiss)),
    m_page(new QScrollArea),
    m_apply(new Button(ButtonKind::prominent, tr("Apply"))),
    m_refresher(*this, runLoop, [this] { refresh(); })
{
    auto* title = new TextLabel(tr("Settings"), TextStyle::headline);
    auto* sections = box(column({.spacing = 24}, filling(section(tr("Durations"), durations())), filling(new Divider),
        filling(section(tr("Behavior"), behavior())), filling(new Divider), filling(section(tr("Sounds"), sounds())),
        filling(new Divider), filling(section(tr("Music"), music())), spacer));
    auto* cancelButton = new Button(ButtonKind::bordered, tr("Cancel"));
    auto* indicator = new ScrollBar;
    // The same room on both sides keeps the page in the middle of the card.
    const int side = padding + indicator->sizeHint().width();
    sections->layout()->setContentsMargins(side, padding, padding, padding);
    m_page->setWidget(sections);
    sections->setAutoFillBackground(false);

    setLayout(column({.spacing = 0, .alignment = {}}, column({.padding = {padding, padding, padding, padding}}, title),
        new Divider, m_page, new Divider, row({.padding = {padding, 12, padding, 12}}, spacer, cancelButton, m_apply)));

    setWindowTitle(tr("Settings"));
    m_page->setVerticalScrollBar(indicator);
    m_page->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_page->setWidgetResizable(true);
    m_page->setFrameShape(QFrame::NoFrame);
    m_page->setFocusPolicy(Qt::NoFocus);
    m_page->viewport()->setAutoFillBackground(false);
    connect(m_page->verticalScrollBar(), &QScrollBar::valueChanged, this, &SettingsSheet::keepPageStill);
    connect(cancelButton, &QPushButton::clicked, this, &SettingsSheet::cancel);
    connect(m_apply, &QPushButton::clicked, this, &SettingsSheet::apply);
    m_refresher.observe(m_form);
    refresh();
}

SettingsSheet::~SettingsSheet()
{
    // A field that has the keyboard would end its editing when the form is gone.
    hide();
}

void SettingsSheet::apply()
{
    for (auto* field : m_numberFields)
        field->endEditing();
    if (!m_form.canApply())
        return;
    m_form.apply();
    m_dismiss();
}

void SettingsSheet::cancel()
{
    m_form.cancel();
    m_dismiss();
}

void SettingsSheet::closeEvent(QCloseEvent*)
{
    cancel();
}

void SettingsSheet::paintEvent(QPaintEvent* event)
{
    drawCard(*this, event->region());
}

void SettingsSheet::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        cancel();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        apply();
    else
        QWidget::keyPressEvent(event);
}

void SettingsSheet::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    setFocus();
}

void SettingsSheet::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    keepPageStill();
}

void SettingsSheet::refresh()
{
    for (const auto& read : m_readings)
        read();
    m_apply->setEnabled(m_form.canApply());
}

/// A page that gets shorter must not slide under the pointer: it stays as high as what is on show.
void SettingsSheet::keepPageStill()
{
    m_page->widget()->setMinimumHeight(m_page->verticalScrollBar()->value() + m_page->viewport()->height());
}

QLayout* SettingsSheet::durations()
{
    auto* focus = durationSlider(tr("Focus"), m_form.focusMinutes, {25, 120});
    auto* breakTime = durationSlider(tr("Break"), m_form.breakMinutes, {5, 30});
    return column({.spacing = 16}, focus, breakTime);
}

QWidget* SettingsSheet::durationSlider(const QString& title, Published<std::int64_t>& value, ClosedRange range)
{
    auto* number = new EditableNumberField(title, value);
    auto* slider = new Slider(range.lowerBound, range.upperBound);
    auto* unit = new TextLabel({}, TextStyle::body, ColorName::secondaryLabel);
    number->setFixedWidth(numberWidth);
    slider->setAccessibleName(title);
    m_numberFields.push_back(number);

    connect(number, &QLineEdit::returnPressed, this, [this] { setFocus(); });
    connect(slider, &Slider::chosen, this, [&value](int minutes) { assign<std::int64_t>(value, minutes); });
    m_readings.emplace_back([slider, unit, &value] {
        slider->showValue(static_cast<double>(value()));
        unit->setText(tr("minutes", nullptr, static_cast<int>(std::clamp<std::int64_t>(value(), 0, INT_MAX))));
        slider->setAccessibleDescription(unit->text());
    });
    return box(column({.spacing = 6, .alignment = {}}, row({}, new TextLabel(title), spacer, number, unit), slider),
        controlWidth);
}

QLayout* SettingsSheet::behavior()
{
    auto* autoTransition = toggle(tr("Auto-Transition"), m_form.autoTransition);
    auto* explanation = new Paragraph(tr("Automatically start the next phase when timer reaches 0"),
        TextStyle::footnote, ColorName::secondaryLabel, Qt::AlignHCenter);
    return column({.spacing = 8}, autoTransition, filling(explanation));
}

QLayout* SettingsSheet::sounds()
{
    auto* countdown = soundPicker(tr("Countdown Tick"), m_form.countdownSound);
    auto* focusEnd = soundPicker(tr("Focus End"), m_form.focusEndSound);
    auto* breakEnd = soundPicker(tr("Break End"), m_form.breakEndSound);
    return column({.spacing = 16}, countdown, focusEnd, breakEnd);
}

QLayout* SettingsSheet::soundPicker(const QString& title, Published<SoundOption>& selection)
{
    auto* sound = picker(title, "SoundOption", allSoundOptions, selection);
    auto* play = new Button(ButtonKind::borderless, {}, "play.circle.fill");
    auto* label = new TextLabel(title);
    sound->setFixedWidth(soundWidth);
    play->setAccessibleName(tr("Play %1").arg(title));

    connect(play, &QPushButton::clicked, this, [this, &selection] { m_form.preview(selection()); });
    m_readings.emplace_back([sound, play, &selection] {
        sound->setCurrentIndex(static_cast<int>(selection()));
        play->setEnabled(selection() != SoundOption::none);
    });
    return column({.spacing = 8}, label, row({.spacing = 8}, sound, play));
}

QLayout* SettingsSheet::music()
{
    const auto focusTitle = tr("Enable music during focus");
    const auto breakTitle = tr("Enable music during break");
    auto* focus
        = phaseMusic(focusTitle, breakTitle, m_form.enableFocusMusic, m_form.focusMusicPreset, m_form.focusCustomURL);
    auto* breakTime
        = phaseMusic(breakTitle, focusTitle, m_form.enableBreakMusic, m_form.breakMusicPreset, m_form.breakCustomURL);
    return column({.spacing = 24}, focus, breakTime, volumeSlider());
}

QLayout* SettingsSheet::phaseMusic(const QString& title, const QString& otherTitle, Published<bool>& isOn,
    Published<MusicPreset>& preset, Published<std::string>& customURL)
{
    auto* enable = toggle(title, isOn);
    enable->makeRoomFor(otherTitle);
    auto* source = picker(tr("Preset"), "Menu", allMusicPresets, preset);
    auto* about = new TextLabel({}, TextStyle::caption, ColorName::secondaryLabel);
    auto* url = new TextField(tr("Custom URL"));
    // The description stands in the room of the field, so that nothing moves when they change places.
    auto keepingRoom = url->sizePolicy();
    keepingRoom.setRetainSizeWhenHidden(true);
    url->setSizePolicy(keepingRoom);
    url->setFixedWidth(controlWidth);
    source->setFixedWidth(controlWidth);
    auto* options
        = box(column({.spacing = 12}, source, layers({.alignment = Qt::AlignHCenter | Qt::AlignTop}, about, url)),
            controlWidth);

    connect(url, &QLineEdit::returnPressed, this, [this] { setFocus(); });
    connect(url, &QLineEdit::textChanged, this,
        [&customURL](const QString& text) { assign(customURL, text.toStdString()); });
    m_readings.emplace_back([=, &isOn, &preset, &customURL] {
        options->setVisible(isOn());
        source->setCurrentIndex(static_cast<int>(preset()));
        about->setText(translated("MusicPreset", description(preset())));
        about->setVisible(preset() != MusicPreset::custom);
        url->setVisible(preset() == MusicPreset::custom);
        if (const auto text = QString::fromStdString(customURL()); text != url->text()) {
            const QSignalBlocker quiet(url); // A field that holds less than the whole address must not shorten it.
            url->setText(text);
            url->setCursorPosition(0);
        }
    });
    return column({.spacing = 12}, enable, options);
}

QWidget* SettingsSheet::volumeSlider()
{
    auto* percent = new TextLabel({}, TextStyle::body, ColorName::secondaryLabel);
    auto* slider = new Slider(0, 100);
    slider->setAccessibleName(tr("Volume"));
    slider->setAccessibleDescription(QStringLiteral("%"));

    connect(slider, &Slider::chosen, this,
        [this](int chosen) { assign(m_form.musicVolume, static_cast<float>(chosen / 100.0)); });
    m_readings.emplace_back([this, percent, slider] {
        auto number = QString::fromStdString(percentText(m_form.musicVolume()));
        number.chop(1);
        percent->setText(tr("%1%").arg(number));
        slider->showValue(100 * static_cast<double>(m_form.musicVolume()));
    });
    return box(column({.spacing = 6, .alignment = {}}, row({}, new TextLabel(tr("Volume")), spacer, percent), slider),
        controlWidth);
}

ToggleSwitch* SettingsSheet::toggle(const QString& title, Published<bool>& isOn)
{
    auto* toggle = new ToggleSwitch(title);
    connect(toggle, &QAbstractButton::toggled, this, [&isOn](bool on) { assign(isOn, on); });
    m_readings.emplace_back([toggle, &isOn] { toggle->setChecked(isOn()); });
    return toggle;
}

} // namespace velto
