// SPDX-License-Identifier: MIT
#pragma once

#include "settings/MusicPreset.h"

#include <cstdint>
#include <optional>
#include <variant>

namespace velto {

// What the items of the status menu stand for.

struct DurationChoice {
    std::int64_t minutes = 0;
};

struct DurationPreset {
    std::int64_t focus = 0;     ///< Minutes.
    std::int64_t breakTime = 0; ///< Minutes.
    bool operator==(const DurationPreset&) const = default;
};

struct MusicChoice {
    std::optional<MusicPreset> preset; ///< Absent for no music.
};

// What becomes of a phase's music.

struct MusicUnchanged { };
struct MusicOff { };
using MusicChange = std::variant<MusicUnchanged, MusicOff, MusicPreset>;

} // namespace velto
