// SPDX-License-Identifier: MIT
#include "Resources.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace velto {

Resources Resources::now()
{
    Resources resources;
    for ([[maybe_unused]] const auto& thread : std::filesystem::directory_iterator("/proc/self/task"))
        ++resources.threads;
    for (const auto& handle : std::filesystem::directory_iterator("/proc/self/fd")) {
        ++resources.handles;
        std::error_code error;
        const auto target = std::filesystem::read_symlink(handle.path(), error).string();
        resources.sockets += target.starts_with("socket:");
    }
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::size_t kibibytes = 0;
        if (word == "RssAnon:" && status >> kibibytes)
            resources.memory = kibibytes * 1024;
    }
    return resources;
}

std::ostream& operator<<(std::ostream& stream, const Resources& resources)
{
    return stream << resources.threads << " threads, " << resources.handles << " handles, " << resources.sockets
                  << " sockets, " << resources.memory / 1024 << " KiB";
}

} // namespace velto
