// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velto {

using Blob = std::vector<std::uint8_t>;

/// A stored value. Types are kept apart: an integer 1 is not a Boolean, a float 25.0 is no integer.
using StoredValue = std::variant<std::int64_t, bool, float, std::string, Blob>;

/// The user's persistent values. Main thread only.
class KeyValueStore {
public:
    virtual ~KeyValueStore() = default;

    /// Absent when there is nothing under `key`, or something of a kind not listed above.
    [[nodiscard]] virtual std::optional<StoredValue> object(std::string_view key) const = 0;

    /// The value is in memory in any case, and durable when this returns unless the medium
    /// refuses; then the next call tries again.
    virtual void set(std::string_view key, StoredValue value) = 0;

    /// Absent also when the value is of another type.
    template <class T>
    [[nodiscard]] std::optional<T> value(std::string_view key) const
    {
        if (auto stored = object(key))
            if (auto* typed = std::get_if<T>(&*stored))
                return std::move(*typed);
        return std::nullopt;
    }
};

} // namespace velto
