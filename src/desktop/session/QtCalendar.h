// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Calendar.h"

namespace velto {

/// The system's clock and time zone.
class QtCalendar final : public Calendar {
public:
    [[nodiscard]] int currentYear() const override;
};

} // namespace velto
