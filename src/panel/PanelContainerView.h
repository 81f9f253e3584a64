// SPDX-License-Identifier: MIT
#pragma once

#include "panel/ContentView.h"
#include "platform/Geometry.h"

#include <QPainterPath>
#include <QWidget>

namespace velto {

/// The card in the panel: the timer view on a rounded background, and nothing outside of it.
///
/// Its window has to let what is not painted show through, or to be masked with `outline()`.
class PanelContainerView : public QWidget {
    Q_OBJECT

public:
    /// `size` is the whole card, in points. All references must outlive this.
    PanelContainerView(PomodoroTimer& timer, AppSettings& settings, Size size, RunLoop& runLoop, const Bundle& bundle,
        SettingsSheetFactory makeSettingsSheet);

    /// The edge of the card, in this widget's coordinates.
    [[nodiscard]] QPainterPath outline() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velto
