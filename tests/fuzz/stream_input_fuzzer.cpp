// SPDX-License-Identifier: MIT
#include "stream/VolumeLine.h"
#include "stream/WebAddress.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

/// Whatever comes in, no address but one of the web is taken, and the volume is always one that can be played.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::istringstream input{std::string{reinterpret_cast<const char*>(data), size}};
    std::string line;
    std::getline(input, line);
    if (velto::isWebAddress(line) && line[0] != 'h' && line[0] != 'H')
        std::abort();
    while (std::getline(input, line)) {
        const float volume = velto::volumeIn(line).value_or(0);
        if (!(volume >= 0 && volume <= 1))
            std::abort();
    }
    return 0;
}
