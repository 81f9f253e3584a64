// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QRect>
#include <QTimer>

#include <optional>
#include <vector>

#include <xcb/xcb.h>

namespace velto {

/// The colour of the panel bar behind the status item, as seen on the X screen.
///
/// Looks again when asked to, and when something changes that may change the bar, such as a theme, a wallpaper or a
/// dock. Idle while nothing changes. Main thread only.
class BarColor final : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    BarColor();

    /// Absent if no bar can be seen.
    [[nodiscard]] const std::optional<QColor>& color() const { return m_color; }

    /// Where the item stands, in points. Until this is called, the end of the longest bar counts.
    void setItem(const QRect& item);
    /// Looks again if the last look was a while ago. Cheap.
    void refresh();

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
    QFileSystemWatcher m_plasmaSettings;
    QTimer m_settle;
    int m_looksToCome = 0;
    QElapsedTimer m_lastLook;
};

} // namespace velto
