// SPDX-License-Identifier: MIT
#include "Synthesis.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace velto::sounds {

using std::numbers::pi;

namespace {

std::size_t samples(double seconds)
{
    return static_cast<std::size_t>(std::lround(seconds * sampleRate));
}
double timeOf(std::size_t sample)
{
    return static_cast<double>(sample) / sampleRate;
}

} // namespace

Signal struck(double length, std::initializer_list<Partial> partials)
{
    Signal signal(samples(length));
    for (const auto& partial : partials) {
        for (std::size_t i = 0; i < signal.size(); ++i) {
            const double t = timeOf(i);
            signal[i] += partial.amplitude * std::exp(-t / partial.decay) * std::sin(2 * pi * partial.frequency * t);
        }
    }
    return signal;
}

Signal tone(
    double length, const Curve& frequency, int harmonics, const std::function<double(int n, double time)>& overtone)
{
    Signal signal(samples(length));
    double phase = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double t = timeOf(i);
        for (int n = 1; n <= harmonics; ++n)
            signal[i] += overtone(n, t) * std::sin(n * phase);
        phase += 2 * pi * frequency(t) / sampleRate;
    }
    return signal;
}

Signal sine(double length, const Curve& frequency)
{
    return tone(length, frequency, 1, [](int, double) { return 1.0; });
}

Signal plucked(double length, double frequency, double brightness)
{
    Signal signal(samples(length));
    Signal string = lowPass(noise(1 / frequency), 1000 + 9000 * brightness);
    double last = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        auto& here = string[i % string.size()];
        signal[i] = here;
        here = 0.998 * (brightness * here + (1 - brightness) * (here + last) / 2);
        last = signal[i];
    }
    return signal;
}

Signal noise(double length)
{
    Signal signal(samples(length));
    std::mt19937 random(20250101);
    for (auto& sample : signal)
        sample = static_cast<double>(random()) / 2147483648.0 - 1;
    return signal;
}

Signal bandPass(const Signal& signal, const Curve& frequency, double quality)
{
    Signal result(signal.size());
    double low = 0;
    double band = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double g = std::tan(pi * frequency(timeOf(i)) / sampleRate);
        const double high = (signal[i] - (1 / quality + g) * band - low) / (1 + g / quality + g * g);
        const double output = g * high + band;
        band = g * high + output;
        low = g * output + (g * output + low);
        result[i] = output / quality;
    }
    return result;
}

Signal lowPass(const Signal& signal, double frequency)
{
    Signal result(signal.size());
    const double weight = 1 - std::exp(-2 * pi * frequency / sampleRate);
    double value = 0;
    for (std::size_t i = 0; i < signal.size(); ++i)
        result[i] = value += weight * (signal[i] - value);
    return result;
}

Signal shaped(Signal signal, const Curve& loudness)
{
    for (std::size_t i = 0; i < signal.size(); ++i)
        signal[i] *= loudness(timeOf(i));
    return signal;
}

void mix(Signal& signal, const Signal& other, double time, double gain)
{
    const auto start = samples(time);
    signal.resize(std::max(signal.size(), start + other.size()));
    for (std::size_t i = 0; i < other.size(); ++i)
        signal[start + i] += gain * other[i];
}

Curve pluckShape(double attack, double decay)
{
    return [=](double t) { return t < attack ? t / attack : std::exp(-(t - attack) / decay); };
}

Curve heldShape(double length, double attack, double release)
{
    return [=](double t) { return std::clamp(std::min(t / attack, (length - t) / release), 0.0, 1.0); };
}

Curve constant(double value)
{
    return [=](double) { return value; };
}

Curve glide(double from, double to, double length)
{
    return [=](double t) { return from * std::pow(to / from, std::clamp(t / length, 0.0, 1.0)); };
}

Signal finished(Signal signal, double fade, double decibels)
{
    const double end = timeOf(signal.size() - 1);
    signal = shaped(std::move(signal), [=](double t) {
        const double left = std::clamp((end - t) / fade, 0.0, 1.0);
        return (1 - std::cos(pi * left)) / 2;
    });
    const auto louder = [](double a, double b) { return std::abs(a) < std::abs(b); };
    const double peak = std::abs(*std::ranges::max_element(signal, louder));
    return shaped(std::move(signal), constant(std::pow(10, decibels / 20) / peak));
}

} // namespace velto::sounds
