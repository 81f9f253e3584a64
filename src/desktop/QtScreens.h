// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Screens.h"

namespace velto {

/// The screens of the desktop, with the room that panel bars and docks leave on each.
class QtScreens final : public Screens {
public:
    [[nodiscard]] std::optional<Screen> mainScreen() const override;
    [[nodiscard]] std::optional<Screen> screenOf(const Rect& rect) const override;
};

} // namespace velto
