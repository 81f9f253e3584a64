// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace velto {

// Whole-number arithmetic that ends the process, after a message on standard error, rather than wrap.

[[nodiscard]] std::int64_t checkedMultiply(std::int64_t a, std::int64_t b);
[[nodiscard]] std::int64_t checkedSubtract(std::int64_t a, std::int64_t b);

} // namespace velto
