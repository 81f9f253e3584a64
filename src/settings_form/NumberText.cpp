// SPDX-License-Identifier: MIT
#include "settings_form/NumberText.h"

#include "settings/Minutes.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace velto {

namespace {

std::u32string decimal(std::int64_t number)
{
    const auto text = std::to_string(number);
    return {text.begin(), text.end()};
}

/// Absent for anything but ASCII digits and for what does not fit.
std::optional<std::int64_t> parse(const std::u32string& text)
{
    if (!std::ranges::all_of(text, [](char32_t c) { return c < 0x80; }))
        return std::nullopt;
    const std::string ascii(text.begin(), text.end());
    std::int64_t number = 0;
    const auto* end = ascii.data() + ascii.size();
    const auto [rest, error] = std::from_chars(ascii.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

} // namespace

NumberText::NumberText(Published<std::int64_t>& value, IsNumeric isNumeric) :
    m_value(value),
    m_isNumeric(isNumeric),
    m_text(decimal(value()))
{
    m_valueChanges = value.laterChanges([this](std::int64_t newValue) {
        if (newValue != m_value())
            setText(decimal(newValue));
    });
}

void NumberText::setText(const std::u32string& text)
{
    if (text == m_text)
        return;
    m_text.clear();
    std::ranges::copy_if(text, std::back_inserter(m_text), m_isNumeric);
}

void NumberText::endEditing()
{
    if (const auto number = parse(m_text); number && *number >= 1 && minutesFitSeconds(*number))
        m_value.set(*number);
    setText(decimal(m_value()));
}

} // namespace velto
