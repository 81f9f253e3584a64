// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"
#include "platform/Screens.h"

#include <QTimer>

class QScreen;

namespace velto {

/// The screens of the desktop, with the room that panel bars and docks leave on each.
class QtScreens final : public Screens {
public:
    QtScreens();

    [[nodiscard]] std::optional<Screen> mainScreen() const override;
    [[nodiscard]] std::optional<Screen> screenOf(const Rect& rect) const override;
    Subscription changes(std::function<void()> changed) override;

private:
    void watch(QScreen* screen);

    Broadcast<> m_changes;
    QTimer m_changed; ///< Runs out once after any number of changes.
};

} // namespace velto
