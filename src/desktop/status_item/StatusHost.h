// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace velto {

/// How the time gets into a panel bar, from the richest form to the most modest.
enum class TimeShape {
    label,         ///< The host draws the text itself, beside a picture that never changes.
    widePicture,   ///< One picture "24:59"; the host keeps its proportions.
    squarePicture, ///< One square picture, the minutes above the seconds.
};

/// What can be found out about the panel bars of a session.
struct StatusHostFacts {
    std::string desktop;                ///< Names separated by colons, as in XDG_CURRENT_DESKTOP.
    std::vector<std::string> processes; ///< The programs that take in or show status items; empty when unknown.
    bool operator==(const StatusHostFacts&) const = default;
};

/// How a host of status items behaves.
struct StatusHostTraits {
    TimeShape shape = TimeShape::squarePicture;
    bool barIsDark = false;          ///< By default, where it can't be seen; else it follows the colour scheme.
    bool leftClickOpensMenu = false; ///< A left click never reaches the item.
    bool tellsPlace = false;         ///< Clicks carry their place on the screen also where nobody else knows it.
    bool isAtTopRight = false;       ///< Of the main screen, unless a person wants it elsewhere.
    bool operator==(const StatusHostTraits&) const = default;
};

/// With several hosts at once, the shape that all of them can show.
[[nodiscard]] StatusHostTraits recognizeStatusHost(const StatusHostFacts& facts);

} // namespace velto
