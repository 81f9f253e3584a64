// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyValueStore.h"

#include <functional>
#include <map>
#include <string>

namespace velto
{

/// Values in memory.
class FakeKeyValueStore final : public KeyValueStore
{
public:
    std::optional<StoredValue> object(std::string_view key) const override
    {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    void set(std::string_view key, StoredValue value) override
    {
        values.insert_or_assign(std::string(key), std::move(value));
        ++writes;
        if (onWrite)
            onWrite();
    }

    std::map<std::string, StoredValue, std::less<>> values;
    int writes = 0;
    std::function<void()> onWrite; ///< Runs after each write; may be empty.
};

} // namespace velto
