// SPDX-License-Identifier: MIT

// render_sounds <folder>: writes every alert sound as <folder>/<name>.wav, 48 kHz, 16 bit, mono.

#include "Sounds.h"

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using velto::sounds::sampleRate;

void append(std::string& bytes, std::uint32_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xff);
}

std::string waveFile(const velto::sounds::Signal& signal)
{
    const auto size = static_cast<std::uint32_t>(signal.size() * 2);
    std::string bytes = "RIFF";
    append(bytes, 36 + size, 4);
    bytes += "WAVEfmt ";
    append(bytes, 16, 4); // Size of the format.
    append(bytes, 1, 2);  // Plain samples.
    append(bytes, 1, 2);  // One channel.
    append(bytes, sampleRate, 4);
    append(bytes, sampleRate * 2, 4);
    append(bytes, 2, 2); // Bytes a frame.
    append(bytes, 16, 2);
    bytes += "data";
    append(bytes, size, 4);
    for (const double sample : signal)
        append(bytes, static_cast<std::uint32_t>(std::lround(sample * 32767)), 2);
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: render_sounds FOLDER\n";
        return 2;
    }
    for (const auto& [name, make] : velto::sounds::recipes()) {
        std::ofstream file(std::filesystem::path(argv[1]) / (name + ".wav"), std::ios::binary);
        file << waveFile(make());
        if (!file.flush()) {
            std::cerr << "cannot write " << name << ".wav\n";
            return 1;
        }
    }
    return 0;
}
