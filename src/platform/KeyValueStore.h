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

/// A stored value. Types are kept apart: an integer 1 is not a Boolean, a float 25.0 is not an integer.
using StoredValue = std::variant<std::int64_t, bool, float, std::string, Blob>;

/// The user's persistent values. Main thread only.
class KeyValueStore {
public:
    virtual ~KeyValueStore() = default;

    /// Absent when there is nothing under `key`, or something of a kind not listed above.
    [[nodiscard]] virtual std::optional<StoredValue> object(std::string_view key) const = 0;

    /// The value is in memory when this returns, and handed over to be written; the disk is never waited
    /// for. What can't be written is tried again with the next call and at the end of the program.
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
