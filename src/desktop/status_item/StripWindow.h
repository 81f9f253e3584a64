// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/FullScreenWatch.h"
#include "desktop/status_item/GnomeBar.h"
#include "desktop/windows/FloatingWindow.h"
#include "platform/Application.h"

#include <QFont>

#include <functional>

namespace velto {

/// The time in a small window of its own, for desktops without a place for status items.
///
/// Stands in GNOME's bar, beside the clock, like a text of the bar. Elsewhere it stands at the top of the main screen's
/// usable area, left of where windows have their buttons, until it is dragged along that edge. Hidden while a window
/// fills the screen. Never takes the focus. Main thread only.
class StripWindow final : public FloatingWindow {
    Q_OBJECT

public:
    using ClickHandler = std::function<void(ClickEvent::Kind kind, bool control)>;

    StripWindow(ClickHandler onClick, const QDBusConnection& bus);

    void setText(const QString& text);
    void setTextFont(const QFont& font);
    void setAppearsDisabled(bool disabled);

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    class Face;

    StripWindow(Face* face, const QDBusConnection& bus);

    void followScreen();
    void place();
    void dragTo(int x);

    Face* m_face;
    GnomeBar m_bar;
    FullScreenWatch m_fullScreen;
    QFont m_font; ///< Outside a bar.
    int m_distanceFromRight;
    bool m_isWanted = false;
};

} // namespace velto
