// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bus/SettingsPortal.h"

#include <QDBusConnection>
#include <QFont>
#include <QObject>
#include <QRect>

#include <optional>

namespace velto {

/// The bar at the top of GNOME's main screen, which takes no status items by itself: where a window of ours fits
/// beside its clock.
///
/// GNOME does not say where its clock ends. This is worked out from the middle of the bar, the font, and what the clock
/// shows, which the settings portal knows; without a portal it is assumed to show everything. Main thread only.
class GnomeBar final : public QObject {
    Q_OBJECT

public:
    explicit GnomeBar(QDBusConnection bus);

    /// As high as the bar, in points. Absent on other desktops and where there is no room.
    [[nodiscard]] std::optional<QRect> placeFor(int width) const;

    /// The font of the bar's texts, as the desktop's font is now.
    [[nodiscard]] static QFont font();

signals:
    void changed();

private:
    [[nodiscard]] static std::optional<QRect> area();
    [[nodiscard]] double clockWidth() const;
    [[nodiscard]] bool shows(const char* key) const;

    SettingsPortal m_portal;
};

} // namespace velto
