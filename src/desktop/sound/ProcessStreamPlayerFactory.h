// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StreamPlayer.h"

#include <filesystem>

namespace velto {

class RunLoop;

/// Makes players that each run a separate program. Must outlive them.
class ProcessStreamPlayerFactory final : public StreamPlayerFactory {
public:
    /// That program, relative to the folder of this one.
    [[nodiscard]] static std::filesystem::path programOf(const std::filesystem::path& executableFolder);

    /// `runLoop` must outlive this. Without `program`, all streams are silent.
    ProcessStreamPlayerFactory(std::filesystem::path program, RunLoop& runLoop);

    [[nodiscard]] bool accepts(const std::string& url) const override;
    [[nodiscard]] std::unique_ptr<StreamPlayer> makePlayer(const std::string& url) override;

private:
    std::filesystem::path m_program;
    RunLoop& m_runLoop;
};

} // namespace velto
