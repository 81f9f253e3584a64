// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <initializer_list>
#include <vector>

namespace velto::sounds {

/// One channel at `sampleRate`, of any loudness. Times are in seconds, frequencies in Hz.
using Signal = std::vector<double>;
/// A value that changes over the time of a signal.
using Curve = std::function<double(double time)>;

constexpr int sampleRate = 48000;

/// A vibration that dies away: `decay` is the time in which it falls to 1/e.
struct Partial {
    double frequency;
    double amplitude;
    double decay;
};

/// Something struck: all its partials start at once.
[[nodiscard]] Signal struck(double length, std::initializer_list<Partial> partials);

/// A steady tone of `harmonics` overtones; the n-th has the amplitude `overtone(n)` at a time.
[[nodiscard]] Signal tone(
    double length, const Curve& frequency, int harmonics, const std::function<double(int n, double time)>& overtone);

/// A plain sine.
[[nodiscard]] Signal sine(double length, const Curve& frequency);

/// A plucked string; `brightness` is between 0 and 1.
[[nodiscard]] Signal plucked(double length, double frequency, double brightness);

/// White noise, the same at every run.
[[nodiscard]] Signal noise(double length);

/// What lies around `frequency`; the greater `quality`, the narrower.
[[nodiscard]] Signal bandPass(const Signal& signal, const Curve& frequency, double quality);
[[nodiscard]] Signal lowPass(const Signal& signal, double frequency);

/// The signal at another loudness over time.
[[nodiscard]] Signal shaped(Signal signal, const Curve& loudness);

/// Adds `other` to `signal` from `time` on, which grows to hold it.
void mix(Signal& signal, const Signal& other, double time, double gain = 1);

/// Rises from 0 within `attack`, then falls with `decay`.
[[nodiscard]] Curve pluckShape(double attack, double decay);
/// Rises within `attack`, stays, and falls back within `release` before `length`.
[[nodiscard]] Curve heldShape(double length, double attack, double release);
[[nodiscard]] Curve constant(double value);
/// Goes from one value to the other within `length`, in equal ratios in equal times.
[[nodiscard]] Curve glide(double from, double to, double length);

/// Fades the last `fade` seconds to nothing and gives it the peak `decibels` (relative to full scale).
[[nodiscard]] Signal finished(Signal signal, double fade, double decibels);

} // namespace velto::sounds
