// SPDX-License-Identifier: MIT
#include "Resources.h"

#include <unistd.h>

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
    std::ifstream children("/proc/self/task/" + std::to_string(getpid()) + "/children");
    for (pid_t child = 0; children >> child;)
        ++resources.children;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::size_t kibibytes = 0;
        if (word == "RssAnon:" && status >> kibibytes)
            resources.memory = kibibytes * 1024;
    }
    return resources;
}

bool Resources::areNoMoreThan(const Resources& others) const
{
    return threads <= others.threads && handles <= others.handles && sockets <= others.sockets
        && children <= others.children;
}

std::ostream& operator<<(std::ostream& stream, const Resources& resources)
{
    return stream << resources.threads << " threads, " << resources.handles << " handles, " << resources.sockets
                  << " sockets, " << resources.children << " children, " << resources.memory / 1024 << " KiB";
}

} // namespace velto
