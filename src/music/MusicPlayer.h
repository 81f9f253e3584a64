// SPDX-License-Identifier: MIT
#pragma once

#include "observation/Published.h"
#include "platform/StreamPlayer.h"

#include <memory>
#include <optional>
#include <string>

namespace velto {

/// Plays one Internet audio stream at a time.
///
/// Reports what was asked for, not what is heard: a stream that can't be reached plays, silently.
/// Main thread only.
class MusicPlayer : public ObservableObject {
public:
    /// `players` must outlive this.
    explicit MusicPlayer(StreamPlayerFactory& players) : m_players(players) { }

    /// From a successful `play()` until the next `pause()`, `stop()` or `play()`.
    ReadOnlyPublished<bool, MusicPlayer> isPlaying{*this, false};
    /// The address given to the last successful `play()`; absent after `stop()`.
    ReadOnlyPublished<std::optional<std::string>, MusicPlayer> currentURL{*this, std::nullopt};

    /// Stops what is playing, then opens `url` anew, even if that was playing. An unusable
    /// address leaves the player stopped. Reports either on standard output.
    /// `volume`: linear amplitude, handed on as it is.
    void play(const std::string& url, float volume);
    /// Halts and discards the stream.
    void stop();
    /// Halts the stream but keeps it and its address.
    void pause();
    /// Linear amplitude, limited to 0...1. No effect without a stream.
    void setVolume(float volume);

private:
    StreamPlayerFactory& m_players;
    std::unique_ptr<StreamPlayer> m_player;
};

} // namespace velto
