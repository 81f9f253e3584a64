// SPDX-License-Identifier: MIT
#include "Recording.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <map>
#include <numbers>
#include <numeric>

namespace velto {
namespace {

const QStringList names{"Basso", "Blow", "Bottle", "Frog", "Funk", "Glass", "Hero", "Morse", "Ping", "Pop", "Purr",
    "Sosumi", "Submarine", "Tink"};

QByteArray contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The samples of a sound of the build tree.
std::vector<float> load(const QString& name)
{
    const auto bytes = contents(QString(VELTO_SOUNDS) + "/" + name + ".wav");
    constexpr qsizetype headerSize = 44;
    std::vector<float> samples;
    for (qsizetype i = headerSize; i + 1 < bytes.size(); i += 2) {
        const auto value = static_cast<std::int16_t>(
            static_cast<std::uint8_t>(bytes[i]) | static_cast<std::uint8_t>(bytes[i + 1]) << 8);
        samples.push_back(static_cast<float>(value) / 32768);
    }
    return samples;
}

float peak(const std::vector<float>& samples)
{
    return std::transform_reduce(
        samples.begin(), samples.end(), 0.0F, [](float a, float b) { return std::max(a, b); },
        [](float sample) { return std::abs(sample); });
}

/// The discrete Fourier transform; the size is a power of two.
std::vector<std::complex<double>> transformed(const std::vector<std::complex<double>>& signal)
{
    if (signal.size() == 1)
        return signal;
    std::array<std::vector<std::complex<double>>, 2> halves;
    for (std::size_t i = 0; i < signal.size(); ++i)
        halves[i % 2].push_back(signal[i]);
    const auto even = transformed(halves[0]);
    const auto odd = transformed(halves[1]);
    std::vector<std::complex<double>> result(signal.size());
    for (std::size_t i = 0; i < even.size(); ++i) {
        const auto turned = odd[i]
            * std::polar(1.0, -2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(signal.size()));
        result[i] = even[i] + turned;
        result[i + even.size()] = even[i] - turned;
    }
    return result;
}

/// How the energy of a sound is spread over bands of a third of an octave, as a vector of length 1.
std::vector<double> spectrum(const std::vector<float>& samples)
{
    std::vector<std::complex<double>> padded(1 << 17);
    std::ranges::copy(samples, padded.begin());
    const auto lines = transformed(padded);

    std::vector<double> bands(40);
    for (std::size_t i = 1; i < lines.size() / 2; ++i) {
        const double frequency = static_cast<double>(i) * Recording::sampleRate / static_cast<double>(lines.size());
        const double band = 3 * std::log2(frequency / 20);
        if (band >= 0 && band < static_cast<double>(bands.size()))
            bands[static_cast<std::size_t>(band)] += std::norm(lines[i]);
    }
    const double energy = std::accumulate(bands.begin(), bands.end(), 0.0);
    for (auto& band : bands)
        band = std::sqrt(band / energy);
    return bands;
}

/// 0 for the same spectrum, 1 for spectra that have nothing in common.
double distance(const std::vector<double>& a, const std::vector<double>& b)
{
    return 1 - std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

TEST(AlertSoundsTest, AreFourteenWaveFilesOfFullQuality)
{
    for (const auto& name : names) {
        const auto bytes = contents(QString(VELTO_SOUNDS) + "/" + name + ".wav");
        EXPECT_EQ(bytes.mid(0, 4), "RIFF") << name.toStdString();
        EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ");
        EXPECT_EQ(bytes.mid(20, 16).toHex(), "0100010080bb00000077010002001000"); // Plain, mono, 48 kHz, 16 bit.
        EXPECT_EQ(bytes.mid(36, 4), "data");
    }
}

TEST(AlertSoundsTest, AreNeitherTooLoudNorTooQuiet)
{
    for (const auto& name : names) {
        const double decibels = 20 * std::log10(peak(load(name)));
        EXPECT_GE(decibels, -6) << name.toStdString();
        EXPECT_LE(decibels, -1) << name.toStdString();
    }
}

TEST(AlertSoundsTest, StartAtOnce)
{
    for (const auto& name : names) {
        const auto samples = load(name);
        const auto loud = 0.05F * peak(samples);
        const auto first = std::ranges::find_if(samples, [&](float sample) { return std::abs(sample) > loud; });
        EXPECT_LT(first - samples.begin(), Recording::sampleRate * 5 / 1000) << name.toStdString();
        EXPECT_LT(std::abs(samples.front()), 0.01F) << name.toStdString() << " starts with a click";
    }
}

TEST(AlertSoundsTest, EndInSilenceWithoutAClick)
{
    for (const auto& name : names) {
        const auto samples = load(name);
        EXPECT_EQ(samples.back(), 0) << name.toStdString();
        const std::vector<float> lastMillisecond(samples.end() - Recording::sampleRate / 1000, samples.end());
        EXPECT_LT(peak(lastMillisecond), 0.02F * peak(samples)) << name.toStdString();
    }
}

TEST(AlertSoundsTest, LastNoLongerThanTheirUseAllows)
{
    for (const auto& name : names) {
        const auto milliseconds = load(name).size() * 1000 / Recording::sampleRate;
        EXPECT_LT(milliseconds, name == "Tink" || name == "Pop" ? 150U : 2000U) << name.toStdString();
        EXPECT_GT(milliseconds, 50U) << name.toStdString();
    }
}

TEST(AlertSoundsTest, AreToldApartByTheirSpectrum)
{
    std::map<QString, std::vector<double>> spectra;
    for (const auto& name : names)
        spectra[name] = spectrum(load(name));

    for (const auto& [name, a] : spectra) {
        for (const auto& [other, b] : spectra) {
            if (name < other) {
                EXPECT_GT(distance(a, b), 0.1) << name.toStdString() << " and " << other.toStdString();
            }
        }
    }
}

TEST(AlertSoundsTest, AreTheSameAtEveryRendering)
{
    const QTemporaryDir folder;
    const auto renderer = startProcess(VELTO_RENDER_SOUNDS, {folder.path()});
    ASSERT_TRUE(renderer->waitForFinished());
    ASSERT_EQ(renderer->exitCode(), 0);

    for (const auto& name : names) {
        const auto file = "/" + name + ".wav";
        EXPECT_EQ(contents(folder.path() + file), contents(VELTO_SOUNDS + file)) << name.toStdString();
    }
}

} // namespace
} // namespace velto
