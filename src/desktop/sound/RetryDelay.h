// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <random>

namespace velto {

/// How long a stream that ended is left alone before the next attempt to play it: one second after the first, twice
/// as long after each one more that fails, half a minute at most. A little of it is left to chance, so that the
/// listeners of a station that was down do not all come back at once.
class RetryDelay {
public:
    /// `seed` is where the chance comes from.
    explicit RetryDelay(std::minstd_rand::result_type seed) : m_random(seed) { }

    /// After an attempt that lasted for so long. One that went well for a while is the first again.
    [[nodiscard]] std::chrono::milliseconds after(std::chrono::milliseconds attempt);

    /// The next attempt that fails is the first.
    void reset();

private:
    std::minstd_rand m_random;
    std::chrono::duration<double> m_delay = std::chrono::seconds(1); ///< After the next failure, chance apart.
};

} // namespace velto
