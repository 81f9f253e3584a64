// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"

#include <cstdint>
#include <string>

namespace velto {

/// What a number field shows, and when what was typed becomes the number.
///
/// While typing, characters that are not numeric are dropped; at the end of editing a whole
/// number of 1 or more is taken, as long as that many minutes can be counted in seconds, and
/// anything else gives way to the value again. A new value from elsewhere replaces what was typed. Main thread only.
class NumberText {
public:
    /// Whether a character is a number in any script, fractions included.
    using IsNumeric = bool (*)(char32_t);

    /// `value` must outlive this.
    NumberText(Published<std::int64_t>& value, IsNumeric isNumeric);

    [[nodiscard]] const std::u32string& text() const { return m_text; }

    /// Takes the whole text after a keystroke or a paste.
    void setText(const std::u32string& text);

    /// The field has lost the keyboard.
    void endEditing();

private:
    Published<std::int64_t>& m_value;
    IsNumeric m_isNumeric;
    std::u32string m_text;
    Subscription m_valueChanges;
};

} // namespace velto
