// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velto {

/// What the installed program says about itself.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// Known keys: "CFBundleName", "CFBundleShortVersionString", "CFBundleVersion". Absent when
    /// there is no such key or its value is not a string.
    [[nodiscard]] virtual std::optional<std::string> string(std::string_view key) const = 0;
};

/// The name people see.
[[nodiscard]] inline std::string applicationName(const Bundle& bundle)
{
    return bundle.string("CFBundleName").value_or("velto");
}

} // namespace velto
