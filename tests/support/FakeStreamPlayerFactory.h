// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StreamPlayer.h"

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace velto {

/// Makes players that play nothing, and remembers what is done to them.
class FakeStreamPlayerFactory final : public StreamPlayerFactory {
public:
    bool accepts(const std::string& url) const override
    {
        return url.starts_with("http://") || url.starts_with("https://");
    }

    std::unique_ptr<StreamPlayer> makePlayer(const std::string& url) override
    {
        opened.push_back(url);
        return std::make_unique<FakeStreamPlayer>(*this, opened.size());
    }

    /// The addresses that players were made for. The first one is player 1.
    std::vector<std::string> opened;
    /// In order, over all players: "1 made", "1 volume 0.25", "1 play", "1 pause", "1 gone".
    std::vector<std::string> calls;
    std::function<void()> onCall; ///< Runs after each call; may be empty.

private:
    class FakeStreamPlayer final : public StreamPlayer {
    public:
        FakeStreamPlayer(FakeStreamPlayerFactory& factory, std::size_t number) :
            m_factory(factory),
            m_name(std::to_string(number))
        {
            log("made");
        }
        ~FakeStreamPlayer() override { log("gone"); }

        void setVolume(float volume) override
        {
            std::ostringstream text;
            text << "volume " << volume;
            log(text.str());
        }
        void play() override { log("play"); }
        void pause() override { log("pause"); }

    private:
        void log(const std::string& call)
        {
            m_factory.calls.push_back(m_name + ' ' + call);
            if (m_factory.onCall)
                m_factory.onCall();
        }

        FakeStreamPlayerFactory& m_factory;
        std::string m_name;
    };
};

} // namespace velto
