// SPDX-License-Identifier: MIT
#include "music/MusicPlayer.h"

#include <algorithm>
#include <iostream>

namespace velto {

namespace {

/// The address on one line, whatever it contains.
std::string inOneLine(const std::string& url)
{
    std::string line;
    for (const char c : url) {
        if (c == '\n')
            line += "%0A";
        else if (c == '\r')
            line += "%0D";
        else
            line += c;
    }
    return line;
}

} // namespace

void MusicPlayer::play(const std::string& url, float volume)
{
    stop();
    if (url.empty() || !m_players.accepts(url)) {
        std::cout << "Invalid music URL: " << inOneLine(url) << std::endl;
        return;
    }

    currentURL.set(url);
    m_player = m_players.makePlayer(url);
    m_player->setVolume(volume);
    m_player->play();
    isPlaying.set(true);
    std::cout << "Started playing music from: " << inOneLine(url) << std::endl;
}

void MusicPlayer::stop()
{
    if (m_player)
        m_player->pause();
    m_player.reset();
    isPlaying.set(false);
    currentURL.set(std::nullopt);
}

void MusicPlayer::pause()
{
    if (m_player)
        m_player->pause();
    isPlaying.set(false);
}

void MusicPlayer::setVolume(float volume)
{
    if (m_player)
        m_player->setVolume(std::min(std::max(volume, 0.0F), 1.0F));
}

} // namespace velto
