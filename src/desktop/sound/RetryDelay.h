// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <random>

namespace velto {

/// How long to wait before a stream that has ended is tried again: one second at first, twice as long after each
/// further failure, half a minute at most. Slightly random, so that the listeners of a station that was down do not all
/// come back at once.
class RetryDelay {
public:
    explicit RetryDelay(std::minstd_rand::result_type seed) : m_random(seed) { }

    /// After an attempt that lasted that long. After a long one, the wait is short again.
    [[nodiscard]] std::chrono::milliseconds after(std::chrono::milliseconds attempt);

    /// The next failure counts as the first.
    void reset();

private:
    std::minstd_rand m_random;
    std::chrono::duration<double> m_delay = std::chrono::seconds(1); ///< After the next failure, before randomness.
};

} // namespace velto
