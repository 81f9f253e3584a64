// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bus/SettingsPortal.h"
#include "style/Colors.h"

#include <QObject>
#include <QPalette>

namespace velto {

class SessionBus;

/// Makes the application look as the desktop wishes: light or dark, plain or high contrast, with or
/// without motion, in the size of its font, now and whenever the wish changes.
///
/// The desktop's settings portal is asked first, without waiting for it, and again whenever the session bus
/// comes back; what it leaves open follows the palette that the desktop gave the application. One object, created right
/// after the application and living as long. Views read the outcome from their palette and from `mayAnimate`.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Follows the palette alone.
    Appearance();
    /// `bus` is where the portal lives; it must outlive this.
    explicit Appearance(SessionBus& bus);

    [[nodiscard]] Theme theme() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool reducesMotion() const;
    void apply();

    QPalette m_desktopPalette;
    bool m_isApplying = false;
    SettingsPortal m_portal;
};

} // namespace velto
