// SPDX-License-Identifier: MIT
#pragma once

namespace velto {

/// The user's calendar.
class Calendar {
public:
    virtual ~Calendar() = default;

    /// The current year in the user's time zone.
    [[nodiscard]] virtual int currentYear() const = 0;
};

} // namespace velto
