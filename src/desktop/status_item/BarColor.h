// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/status_item/PlasmaPanelColor.h"

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QElapsedTimer>
#include <QObject>
#include <QRect>
#include <QTimer>

#include <optional>
#include <vector>

#include <xcb/xcb.h>

namespace velto {

/// The colour of the panel bar behind the status item, as seen on the X screen; in a Wayland session, where nobody can
/// look at a bar, as Plasma's settings have it.
///
/// Looks again when asked to, and when something changes that may change the bar, such as a theme, a wallpaper or a
/// dock. Idle while nothing changes. Main thread only.
class BarColor final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    BarColor();

    /// Absent if no bar can be seen and no settings tell.
    [[nodiscard]] const std::optional<QColor>& color() const { return m_color; }

    /// Where the item stands, in points. Until this is called, the end of the longest bar counts.
    void setItem(const QRect& item);
    /// Looks again if the last look was a while ago. Cheap.
    void refresh();
    /// Looks at once, and again when things have settled.
    void lookNow();

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

public slots:
    /// Looks again once things have settled.
    void lookSoon();

signals:
    void changed();

private:
    struct Bar {
        QRect area; ///< In points.
        xcb_window_t window = XCB_WINDOW_NONE;
        bool operator==(const Bar&) const = default;
    };

    [[nodiscard]] static std::vector<Bar> bars();
    void findPlace();
    void look();
    void lookAfterChange();

    std::optional<QRect> m_item;
    std::vector<Bar> m_bars;
    std::optional<Bar> m_place; ///< The part of a bar to look at.
    std::optional<QColor> m_color;
    std::optional<PlasmaPanelColor> m_plasma; ///< In a session of Plasma.
    QTimer m_settle;
    std::size_t m_looksToCome = 0;
    QElapsedTimer m_lastLook;
};

} // namespace velto
