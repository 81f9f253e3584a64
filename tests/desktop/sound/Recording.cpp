// SPDX-License-Identifier: MIT
#include "Recording.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <numbers>

namespace velto {

Recording::Recording()
{
    // One of the two channels, since sound servers differ in how they mix both into one.
    m_process = startProcess("parec",
        {"--raw", "--format=s16le", "--rate=48000", "--channels=1", "--channel-map=front-left", "--no-remix",
            "--device=void.monitor", "--latency-msec=10"});
    QObject::connect(m_process.get(), &QProcess::readyReadStandardOutput, [this] { read(); });
    EXPECT_TRUE(eventually([this] { return m_samples.size() > sampleRate / 10; })) << "nothing is recorded";
}

Recording::~Recording()
{
    m_process->disconnect();
    m_process->kill();
    m_process->waitForFinished();
}

const std::vector<float>& Recording::samples()
{
    read();
    return m_samples;
}

double Recording::amplitude(double frequency, std::chrono::milliseconds length)
{
    read();
    const auto count = static_cast<std::size_t>(length.count()) * sampleRate / 1000;
    if (m_samples.size() < count)
        return 0;
    return amplitudeOf(frequency, m_samples.data() + m_samples.size() - count, m_samples.data() + m_samples.size());
}

Recording::Clock::time_point Recording::firstSound()
{
    read();
    const auto first
        = std::find_if(m_samples.begin(), m_samples.end(), [](float sample) { return std::abs(sample) > audible; });
    return timeOf(static_cast<std::size_t>(first - m_samples.begin()) + 1);
}

Recording::Clock::time_point Recording::lastSound()
{
    read();
    const auto last
        = std::find_if(m_samples.rbegin(), m_samples.rend(), [](float sample) { return std::abs(sample) > audible; });
    return timeOf(static_cast<std::size_t>(m_samples.rend() - last));
}

bool Recording::isSilent()
{
    read();
    return std::ranges::all_of(m_samples, [](float sample) { return std::abs(sample) <= audible; });
}

void Recording::read()
{
    m_pending += m_process->readAllStandardOutput();
    const auto count = static_cast<std::size_t>(m_pending.size()) / 2;
    if (count == 0)
        return;
    std::vector<std::int16_t> values(count);
    std::memcpy(values.data(), m_pending.data(), count * 2);
    m_pending.remove(0, static_cast<qsizetype>(count) * 2);
    for (const auto value : values)
        m_samples.push_back(static_cast<float>(value) / 32768);
    m_arrivals.emplace_back(m_samples.size(), Clock::now());
}

Recording::Clock::time_point Recording::timeOf(std::size_t sample) const
{
    const auto arrival = std::ranges::find_if(m_arrivals, [=](const auto& entry) { return entry.first >= sample; });
    return arrival == m_arrivals.end() ? Clock::now() : arrival->second;
}

double amplitudeOf(double frequency, const float* begin, const float* end)
{
    const double step = 2 * std::numbers::pi * frequency / Recording::sampleRate;
    std::complex<double> sum = 0;
    for (const float* sample = begin; sample != end; ++sample)
        sum += static_cast<double>(*sample) * std::polar(1.0, -step * static_cast<double>(sample - begin));
    return 2 * std::abs(sum) / static_cast<double>(end - begin);
}

} // namespace velto
