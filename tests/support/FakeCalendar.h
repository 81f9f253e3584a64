// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Calendar.h"

namespace velto {

class FakeCalendar final : public Calendar {
public:
    int currentYear() const override { return year; }

    int year = 2025;
};

} // namespace velto
