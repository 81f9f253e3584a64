// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"

namespace velto {

/// What the build knows about the program: its name, version and build number.
class BuildBundle final : public Bundle {
public:
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
};

} // namespace velto
