// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyValueStore.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace velto {

/// Values in memory, and every write in order.
class FakeKeyValueStore final : public KeyValueStore {
public:
    std::optional<StoredValue> object(std::string_view key) const override
    {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    void set(std::string_view key, StoredValue value) override
    {
        writes.emplace_back(key, value);
        values.insert_or_assign(std::string(key), std::move(value));
        if (onWrite)
            onWrite();
    }

    std::map<std::string, StoredValue, std::less<>> values;
    std::vector<std::pair<std::string, StoredValue>> writes;
    std::function<void()> onWrite; ///< Runs after each write; may be empty.
};

} // namespace velto
