// SPDX-License-Identifier: MIT
#pragma once

#include "Synthesis.h"

#include <string>
#include <vector>

namespace velto::sounds {

struct Recipe {
    std::string name;
    Signal (*make)();
};

[[nodiscard]] const std::vector<Recipe>& recipes();

} // namespace velto::sounds
