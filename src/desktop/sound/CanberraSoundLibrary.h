// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/sound/BackgroundThreads.h"
#include "platform/SoundLibrary.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>

namespace velto {

/// The alert sounds of a folder, one "<name>.wav" each, played through the desktop's sound server
/// in the role of events.
///
/// Talks to the server from the first sound on, and only from its own thread. A server that hangs plays what it missed
/// when it recovers, each sound once; without a server a sound is dropped.
class CanberraSoundLibrary final : public SoundLibrary {
public:
    /// The folder of the program's own sounds, relative to that of its executable.
    [[nodiscard]] static std::filesystem::path folderOf(const std::filesystem::path& executableFolder);

    explicit CanberraSoundLibrary(std::filesystem::path folder);
    ~CanberraSoundLibrary() override;

    [[nodiscard]] std::unique_ptr<Sound> soundNamed(std::string_view name) override;

private:
    class Player;

    std::filesystem::path m_folder;
    std::set<std::string, std::less<>> m_names;
    BackgroundThreads m_threads;
    std::shared_ptr<Player> m_player;
};

} // namespace velto
