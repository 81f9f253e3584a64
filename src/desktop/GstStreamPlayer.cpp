// SPDX-License-Identifier: MIT
#include "desktop/GstStreamPlayer.h"

#include "desktop/BackgroundThreads.h"
#include "desktop/GstStreamSession.h"

#include <algorithm>
#include <utility>

namespace velto {

GstStreamPlayer::GstStreamPlayer(std::string url, BackgroundThreads& threads) :
    m_url(std::move(url)),
    m_threads(threads)
{
}

GstStreamPlayer::~GstStreamPlayer()
{
    pause();
}

void GstStreamPlayer::setVolume(float volume)
{
    m_volume = volume > 0 ? std::min(volume, 1.0F) : 0.0F; // Also silent for what is no number.
    if (m_session)
        m_session->setVolume(m_volume);
}

void GstStreamPlayer::play()
{
    pause();
    m_session = std::make_shared<GstStreamSession>(m_url, m_volume);
    m_threads.run([session = m_session] { session->run(); });
}

void GstStreamPlayer::pause()
{
    if (m_session)
        m_session->stop();
    m_session.reset();
}

} // namespace velto
