// SPDX-License-Identifier: MIT
#pragma once

#include "settings_form/SettingsForm.h"
#include "style/ViewRefresher.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLayout;
class QScrollArea;

namespace velto {

class Button;
class EditableNumberField;
class ToggleSwitch;

/// The settings form on a card: every setting on one page that scrolls, "Cancel" and "Apply" below it.
///
/// Escape and closing it are Cancel, Return outside a field is Apply; a press beside the controls ends editing.
class SettingsSheet : public QWidget {
    Q_OBJECT

public:
    /// `dismiss` runs as the last step of Cancel and of Apply. The references must outlive this.
    SettingsSheet(AppSettings& settings, PomodoroTimer& timer, RunLoop& runLoop, std::function<void()> dismiss);
    ~SettingsSheet() override;

    /// Lower where there is less room; the page then scrolls further.
    static constexpr QSize preferredSize{500, 650};

    [[nodiscard]] QSize sizeHint() const override { return preferredSize; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct ClosedRange {
        int lowerBound;
        int upperBound;
    };

    void apply();
    void cancel();
    void refresh();
    void keepPageStill();

    QLayout* durations();
    QLayout* behavior();
    QLayout* sounds();
    QLayout* music();
    QWidget* durationSlider(const QString& title, Published<std::int64_t>& value, ClosedRange range);
    QLayout* soundPicker(const QString& title, Published<SoundOption>& selection);
    QLayout* phaseMusic(const QString& title, const QString& otherTitle, Published<bool>& isOn,
        Published<MusicPreset>& preset, Published<std::string>& customURL);
    QWidget* volumeSlider();
    ToggleSwitch* toggle(const QString& title, Published<bool>& isOn);

    SettingsForm m_form;
    std::function<void()> m_dismiss;
    std::vector<EditableNumberField*> m_numberFields;
    std::vector<std::function<void()>> m_readings; ///< Each shows one value of the form.
    QScrollArea* m_page;
    Button* m_apply;
    ViewRefresher m_refresher;
};

} // namespace velto
