// SPDX-License-Identifier: MIT
#pragma once

#include "panel/ContentView.h"
#include "platform/Geometry.h"

#include <QWidget>

namespace velto {

/// The card in the panel: the timer view on a rounded background, and nothing outside of it.
///
/// Its window must be transparent where nothing is painted, or masked.
class PanelContainerView : public QWidget {
    Q_OBJECT

public:
    /// `size` is the whole card, in points. All references must outlive this.
    PanelContainerView(PomodoroTimer& timer, AppSettings& settings, Size size, RunLoop& runLoop, const Bundle& bundle,
        SettingsSheetFactory makeSettingsSheet);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velto
