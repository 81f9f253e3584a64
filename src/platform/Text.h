// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace velto {

// Texts outside the views are English. Whoever shows one looks it up (translated(), in style/Translation.h). These mark
// what there is to look up, for the tool that collects it; a context says where it is shown.

[[nodiscard]] constexpr const char* translatable(const char* /*context*/, const char* text)
{
    return text;
}

/// A text whose form depends on the number in place of its %n.
[[nodiscard]] constexpr const char* translatableCount(const char* /*context*/, const char* text)
{
    return text;
}

/// The text with a number in place of each of its %1, %2 or of its %n, in this order.
[[nodiscard]] inline std::string withNumbers(std::string text, std::initializer_list<std::int64_t> numbers)
{
    std::size_t at = 0;
    for (const auto number : numbers) {
        const auto digits = std::to_string(number);
        at = text.find('%', at);
        text.replace(at, 2, digits);
        at += digits.size();
    }
    return text;
}

} // namespace velto
