// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

namespace velto {

/// A short sound, ready to play.
class Sound {
public:
    virtual ~Sound() = default;

    /// Starts it at the system's alert volume and returns at once. Sounds overlap freely, and one
    /// started plays to its end even if this object goes.
    virtual void play() = 0;
};

/// The named alert sounds.
class SoundLibrary {
public:
    virtual ~SoundLibrary() = default;

    /// Null when there is no sound of exactly that name. Never waits.
    [[nodiscard]] virtual std::unique_ptr<Sound> soundNamed(std::string_view name) = 0;
};

} // namespace velto
