// SPDX-License-Identifier: MIT
#include "stream/VolumeLine.h"

#include <charconv>

namespace velto {

std::optional<float> volumeIn(std::string_view line)
{
    float volume = 0;
    const auto* lineEnd = line.data() + line.size();
    const auto [end, error] = std::from_chars(line.data(), lineEnd, volume);
    const bool isVolume = error == std::errc{} && end == lineEnd && volume >= 0 && volume <= 1;
    return isVolume ? std::optional{volume} : std::nullopt;
}

} // namespace velto
