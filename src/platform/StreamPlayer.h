// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

namespace velto {

/// Plays one audio stream. Main thread only; no call waits for the network.
class StreamPlayer {
public:
    virtual ~StreamPlayer() = default;

    /// Linear amplitude: 0 is silent, 1 is the stream's own loudness. Values outside that range
    /// are accepted and limited to it.
    virtual void setVolume(float volume) = 0;

    /// Opens the stream if its address is on the web (http or https), else does nothing. Until `pause()` the player
    /// reconnects by itself after any failure.
    virtual void play() = 0;

    /// Halts and drops the connection at once.
    virtual void pause() = 0;
};

class StreamPlayerFactory {
public:
    virtual ~StreamPlayerFactory() = default;

    /// Whether `url` can be read as a URL.
    [[nodiscard]] virtual bool accepts(const std::string& url) const = 0;

    /// `url` must be one that is accepted. Never null.
    [[nodiscard]] virtual std::unique_ptr<StreamPlayer> makePlayer(const std::string& url) = 0;
};

} // namespace velto
