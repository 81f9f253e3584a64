// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundLibrary.h"

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace velto {

/// Has a sound for every name but the missing ones, and remembers what it was asked for and what was played.
class FakeSoundLibrary final : public SoundLibrary {
public:
    std::unique_ptr<Sound> soundNamed(std::string_view name) override
    {
        asked.emplace_back(name);
        return missing.contains(asked.back()) ? nullptr : std::make_unique<FakeSound>(*this, asked.back());
    }

    std::vector<std::string> asked;
    std::vector<std::string> played;
    std::set<std::string> missing;
    std::function<void()> onPlay; ///< Runs after each start of a sound; may be empty.

private:
    class FakeSound final : public Sound {
    public:
        FakeSound(FakeSoundLibrary& library, std::string name) : m_library(library), m_name(std::move(name)) { }

        void play() override
        {
            m_library.played.push_back(m_name);
            if (m_library.onPlay)
                m_library.onPlay();
        }

    private:
        FakeSoundLibrary& m_library;
        std::string m_name;
    };
};

} // namespace velto
