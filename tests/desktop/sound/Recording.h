// SPDX-License-Identifier: MIT
#pragma once

#include "Process.h"

#include <chrono>
#include <cstdint>
#include <utility>
#include <vector>

namespace velto {

/// What is heard from the sound server, from now on; one channel at 48 kHz, full scale is 1.
class Recording {
public:
    using Clock = std::chrono::steady_clock;

    static constexpr int sampleRate = 48000;
    /// The loudness of anything that is not silence.
    static constexpr double audible = 0.005;

    /// Returns once it runs.
    Recording();
    ~Recording();

    [[nodiscard]] const std::vector<float>& samples();
    /// The amplitude of `frequency` during the last `length` of what was recorded; 0 before it is that long.
    [[nodiscard]] double amplitude(double frequency, std::chrono::milliseconds length = std::chrono::milliseconds(200));
    /// When the first sound came to be heard.
    [[nodiscard]] Clock::time_point firstSound();
    /// When the last sound so far came to be heard.
    [[nodiscard]] Clock::time_point lastSound();
    [[nodiscard]] bool isSilent();

private:
    void read();
    [[nodiscard]] Clock::time_point timeOf(std::size_t sample) const;

    std::unique_ptr<QProcess> m_process;
    QByteArray m_pending;
    std::vector<float> m_samples;
    std::vector<std::pair<std::size_t, Clock::time_point>> m_arrivals; ///< How much was there, and when.
};

/// The amplitude of `frequency` in samples at 48 kHz.
[[nodiscard]] double amplitudeOf(double frequency, const float* begin, const float* end);

} // namespace velto
