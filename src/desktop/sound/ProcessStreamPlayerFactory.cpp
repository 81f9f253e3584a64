// SPDX-License-Identifier: MIT
#include "desktop/sound/ProcessStreamPlayerFactory.h"

#include "desktop/sound/ProcessStreamPlayer.h"
#include "desktop/sound/StreamUrl.h"

#include <utility>

namespace velto {

std::filesystem::path ProcessStreamPlayerFactory::programOf(const std::filesystem::path& executableFolder)
{
    return executableFolder / VELTO_STREAM_FROM_EXECUTABLE;
}

ProcessStreamPlayerFactory::ProcessStreamPlayerFactory(std::filesystem::path program, RunLoop& runLoop) :
    m_program(std::move(program)),
    m_runLoop(runLoop)
{
}

bool ProcessStreamPlayerFactory::accepts(const std::string& url) const
{
    return streamUrl(url).isValid();
}

std::unique_ptr<StreamPlayer> ProcessStreamPlayerFactory::makePlayer(const std::string& url)
{
    return std::make_unique<ProcessStreamPlayer>(streamUrl(url), m_program, m_runLoop);
}

} // namespace velto
