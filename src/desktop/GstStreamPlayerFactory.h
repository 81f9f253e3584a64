// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/BackgroundThreads.h"
#include "platform/StreamPlayer.h"

namespace velto {

/// Makes players on GStreamer, which is not touched before the first of them plays. Must outlive
/// the players.
class GstStreamPlayerFactory final : public StreamPlayerFactory {
public:
    [[nodiscard]] bool accepts(const std::string& url) const override;
    [[nodiscard]] std::unique_ptr<StreamPlayer> makePlayer(const std::string& url) override;

private:
    BackgroundThreads m_threads;
};

} // namespace velto
