// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Broadcast.h"
#include "platform/OncePerTurn.h"
#include "platform/Screens.h"

#include <QObject>

class QScreen;

namespace velto {

/// The screens of the desktop, with the room that panel bars and docks leave on each.
class QtScreens final : public Screens {
public:
    /// `runLoop` must outlive this.
    explicit QtScreens(RunLoop& runLoop);

    [[nodiscard]] std::optional<Screen> mainScreen() const override;
    [[nodiscard]] std::optional<Screen> screenOf(const Rect& rect) const override;
    Subscription changes(std::function<void()> changed) override;

private:
    void watch(QScreen* screen);

    Broadcast<> m_changes;
    OncePerTurn m_changed;
    QObject m_connections; ///< Ends them when it goes.
};

} // namespace velto
