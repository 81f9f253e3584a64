// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace velto {

/// Whether `text` is the complete address of something on the web: http or https, a host, at most
/// 8 KiB, written as RFC 3986 has it. So no blanks, control characters or letters beyond ASCII
/// that are not percent-encoded.
[[nodiscard]] bool isStreamAddress(std::string_view text);

} // namespace velto
