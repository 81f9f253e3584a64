// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StreamPlayer.h"

#include <memory>
#include <string>

namespace velto {

class BackgroundThreads;
class GstStreamSession;

/// Plays a web stream through the desktop's sound server.
class GstStreamPlayer final : public StreamPlayer {
public:
    /// `threads` must outlive this.
    GstStreamPlayer(std::string url, BackgroundThreads& threads);
    ~GstStreamPlayer() override;

    void setVolume(float volume) override;
    /// A live stream is never resumed: each call opens it anew.
    void play() override;
    void pause() override;

private:
    std::string m_url;
    float m_volume = 1;
    BackgroundThreads& m_threads;
    std::shared_ptr<GstStreamSession> m_session; ///< Null while not told to play.
};

} // namespace velto
