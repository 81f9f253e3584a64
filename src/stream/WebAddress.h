// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace velto {

/// Whether `text` is an absolute URL with the scheme http or https and a host.
[[nodiscard]] bool isWebAddress(const std::string& text);

} // namespace velto
