// SPDX-License-Identifier: MIT
#include "desktop/GstStreamPlayerFactory.h"

#include "desktop/GstStreamPlayer.h"
#include "music/StreamAddress.h"

namespace velto {

bool GstStreamPlayerFactory::accepts(const std::string& url) const
{
    return isStreamAddress(url);
}

std::unique_ptr<StreamPlayer> GstStreamPlayerFactory::makePlayer(const std::string& url)
{
    return std::make_unique<GstStreamPlayer>(url, m_threads);
}

} // namespace velto
