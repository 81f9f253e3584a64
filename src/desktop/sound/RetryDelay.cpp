// SPDX-License-Identifier: MIT
#include "desktop/sound/RetryDelay.h"

#include <algorithm>

namespace velto {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

namespace {

constexpr Seconds shortest = 1s;
constexpr Seconds longest = 30s;
/// An attempt this long has played something: silence is given up earlier.
constexpr auto steady = 15s;

} // namespace

std::chrono::milliseconds RetryDelay::after(std::chrono::milliseconds attempt)
{
    if (attempt >= steady)
        reset();
    std::uniform_real_distribution chance(0.8, 1.25);
    const auto delay = std::clamp<Seconds>(m_delay * chance(m_random), shortest, longest);
    m_delay = std::min(m_delay * 2, longest);
    return std::chrono::duration_cast<std::chrono::milliseconds>(delay);
}

void RetryDelay::reset()
{
    m_delay = shortest;
}

} // namespace velto
