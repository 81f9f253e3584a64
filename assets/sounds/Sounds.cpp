// SPDX-License-Identifier: MIT
#include "Sounds.h"

#include <array>
#include <cmath>
#include <numbers>

namespace velto::sounds {

using std::numbers::pi;

namespace {

/// A low, dark brass note that sinks: something did not work.
Signal basso()
{
    constexpr double length = 0.7;
    const auto overtone = [](int n, double t) { return std::exp(-n * (0.25 + 1.2 * t)); };
    Signal signal;
    for (const double voice : {0.994, 1.0, 1.006})
        mix(signal, tone(length, glide(104 * voice, 92 * voice, length), 12, overtone), 0);
    return finished(shaped(signal, pluckShape(0.004, 0.3)), 0.15, -2);
}

/// A breath across the mouth of a pipe.
Signal blow()
{
    constexpr double length = 1.0;
    const Curve breath = [](double t) { return (0.25 + std::min(t / 0.14, 1.0)) * std::exp(-t / 0.32); };
    Signal signal = bandPass(noise(length), glide(950, 620, length), 2.5);
    mix(signal, bandPass(noise(length), constant(2900), 1.5), 0, 0.35);
    mix(signal, bandPass(noise(length), constant(622), 40), 0, 6);
    return finished(shaped(shaped(signal, breath), heldShape(length, 0.003, 0.1)), 0.3, -3);
}

/// Three swallows out of a bottle, each higher than the one before.
Signal bottle()
{
    Signal signal;
    double time = 0;
    for (const double pitch : {260.0, 310.0, 392.0}) {
        const auto gulp = sine(0.16, glide(pitch, pitch * 1.7, 0.09));
        mix(signal, shaped(gulp, pluckShape(0.004, 0.05)), time, 0.6 + time);
        time += 0.125;
    }
    return finished(signal, 0.05, -2);
}

/// A short croak and a longer, higher one.
Signal frog()
{
    const auto croak = [](double length, double rate, double throat) {
        Signal signal;
        for (double time = 0; time < length; time += 1 / rate) {
            const double strength = 0.35 + 0.65 * std::sin(pi * time / length);
            mix(signal, struck(0.05, {{throat, 1, 0.007}, {throat * 3.2, 0.6, 0.005}, {throat * 7.1, 0.25, 0.003}}),
                time, strength);
        }
        return signal;
    };
    Signal signal = croak(0.14, 48, 310);
    mix(signal, croak(0.24, 56, 370), 0.22, 1.1);
    return finished(signal, 0.03, -3);
}

/// Three notes of an electric bass through a wah pedal.
Signal funk()
{
    struct Note {
        double time, length, pitch;
    };
    Signal signal;
    for (const auto& note : std::array<Note, 3>{{{0, 0.11, 82.4}, {0.16, 0.1, 164.8}, {0.3, 0.3, 98}}}) {
        const auto string = tone(note.length, constant(note.pitch), 40, [](int n, double) { return 1.0 / n; });
        const auto pedal = bandPass(string, glide(2600, 380, note.length), 3.5);
        const auto shape = heldShape(note.length, 0.003, 0.04);
        mix(signal, shaped(pedal, shape), note.time);
        mix(signal, shaped(lowPass(string, 220), shape), note.time, 0.7);
    }
    return finished(signal, 0.08, -3);
}

/// Two glasses touched lightly, ringing on.
Signal glass()
{
    const auto ring = [](double pitch) {
        return struck(1.8,
            {{pitch, 1, 0.55}, {pitch * 1.003, 0.7, 0.6}, {pitch * 2.32, 0.55, 0.34}, {pitch * 4.25, 0.35, 0.16},
                {pitch * 6.63, 0.2, 0.07}, {pitch * 9.38, 0.12, 0.03}});
    };
    Signal signal = ring(1175);
    mix(signal, shaped(ring(1319), constant(0.55)), 0.045);
    signal.resize(static_cast<std::size_t>(1.8 * sampleRate));
    return finished(signal, 0.5, -3);
}

/// Three rising notes of horns that come together in a chord.
Signal hero()
{
    struct Note {
        double time, length, pitch, strength;
    };
    constexpr std::array<Note, 5> notes{{{0, 0.17, 392.0, 0.8}, {0.15, 0.17, 523.25, 0.9}, {0.3, 1.05, 783.99, 0.5},
        {0.3, 1.05, 659.26, 0.5}, {0.3, 1.05, 523.25, 0.5}}};
    Signal signal;
    for (const auto& note : notes) {
        const auto overtone = [&note](int n, double t) {
            const double brightness = 0.35 + 0.5 * std::min(t / 0.05, 1.0) - 0.35 * t / note.length;
            return std::pow(brightness, n - 1);
        };
        const Curve pitch
            = [&note](double t) { return note.pitch * (1 + 0.004 * std::min(t, 0.5) * std::sin(2 * pi * 5.5 * t)); };
        mix(signal, shaped(tone(note.length, pitch, 10, overtone), heldShape(note.length, 0.008, note.length * 0.6)),
            note.time, note.strength);
    }
    return finished(signal, 0.3, -3);
}

/// The letter V, as a wireless operator sends it.
Signal morse()
{
    constexpr double unit = 0.065;
    Signal signal;
    double time = 0;
    for (const int units : {1, 1, 1, 3}) {
        const double length = units * unit;
        const auto key = tone(length, constant(880), 3, [](int n, double) { return n == 2 ? 0 : 1.0 / (n * n); });
        mix(signal, shaped(key, heldShape(length, 0.004, 0.006)), time);
        time += length + unit;
    }
    return finished(signal, 0.015, -5.5);
}

/// One clear, high note.
Signal ping()
{
    const auto signal
        = struck(1.3, {{1568, 1, 0.32}, {1570, 0.5, 0.36}, {3136, 0.3, 0.12}, {4704, 0.08, 0.05}, {784, 0.12, 0.2}});
    return finished(signal, 0.4, -3);
}

/// A bubble that bursts.
Signal pop()
{
    Signal signal = shaped(sine(0.1, glide(420, 1050, 0.035)), pluckShape(0.002, 0.016));
    mix(signal, shaped(noise(0.006), pluckShape(0.0005, 0.001)), 0, 0.25);
    return finished(signal, 0.04, -3);
}

/// A contented cat, once in and once out.
Signal purr()
{
    const auto breath = [](double length, double rate, double pitch) {
        const Signal rumble = bandPass(noise(length), constant(pitch), 1);
        const Curve rattle = [=](double t) { return std::pow(0.5 + 0.5 * std::cos(2 * pi * rate * t), 2) + 0.06; };
        const Curve swell = [=](double t) { return 0.4 + 0.6 * std::sin(pi * t / length); };
        return shaped(shaped(shaped(rumble, rattle), swell), heldShape(length, 0.003, 0.08));
    };
    Signal signal = breath(0.65, 25, 280);
    mix(signal, breath(0.75, 22, 220), 0.68);
    return finished(signal, 0.12, -3);
}

/// A chord plucked on a small harp.
Signal sosumi()
{
    Signal signal;
    double time = 0;
    for (const double pitch : {440.0, 554.37, 659.26, 880.0}) {
        mix(signal, plucked(1.2 - time, pitch, 0.55), time);
        time += 0.028;
    }
    return finished(shaped(signal, pluckShape(0.001, 0.45)), 0.3, -3);
}

/// A sonar pulse under water, and what comes back of it.
Signal submarine()
{
    const Curve pitch = [](double t) { return 466 * (1 - 0.02 * std::min(t, 1.0)); };
    const auto pulse = tone(0.9, pitch, 2, [](int n, double) { return n == 1 ? 1 : 0.12; });
    const auto call = shaped(pulse, pluckShape(0.006, 0.22));
    Signal signal = call;
    mix(signal, lowPass(call, 500), 0.38, 0.5);
    mix(signal, lowPass(lowPass(call, 400), 400), 0.76, 0.3);
    return finished(signal, 0.5, -2);
}

/// The tip of a fingernail on thin metal.
Signal tink()
{
    const auto signal = struck(0.12, {{2637, 1, 0.02}, {4186, 0.55, 0.014}, {6645, 0.35, 0.008}, {9400, 0.2, 0.004}});
    return finished(signal, 0.05, -5.5);
}

} // namespace

const std::vector<Recipe>& recipes()
{
    static const std::vector<Recipe> all{{"Basso", basso}, {"Blow", blow}, {"Bottle", bottle}, {"Frog", frog},
        {"Funk", funk}, {"Glass", glass}, {"Hero", hero}, {"Morse", morse}, {"Ping", ping}, {"Pop", pop},
        {"Purr", purr}, {"Sosumi", sosumi}, {"Submarine", submarine}, {"Tink", tink}};
    return all;
}

} // namespace velto::sounds
