// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StreamPlayer.h"

#include <filesystem>

namespace velto {

class RunLoop;

/// Makes players that leave the playing to another program. Must outlive them.
class ProcessStreamPlayerFactory final : public StreamPlayerFactory {
public:
    /// Where that program stands, seen from the folder of this one.
    [[nodiscard]] static std::filesystem::path programOf(const std::filesystem::path& executableFolder);

    /// `runLoop` must outlive this. Without the `program` all streams are silent.
    ProcessStreamPlayerFactory(std::filesystem::path program, RunLoop& runLoop);

    [[nodiscard]] bool accepts(const std::string& url) const override;
    [[nodiscard]] std::unique_ptr<StreamPlayer> makePlayer(const std::string& url) override;

private:
    std::filesystem::path m_program;
    RunLoop& m_runLoop;
};

} // namespace velto
