// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"

#include <functional>
#include <map>
#include <string>

namespace velto {

class FakeBundle final : public Bundle {
public:
    std::optional<std::string> string(std::string_view key) const override
    {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::string, std::string, std::less<>> values;
};

} // namespace velto
