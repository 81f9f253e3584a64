// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/storage/PlistKeyValueStore.h"
#include "fixtures/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace velto {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// A folder for a settings file that is not there yet, and a look at what is in it.
class PlistKeyValueStoreFixture : public testing::Test {
protected:
    void write(const std::string& content, const fs::path& path)
    {
        fs::create_directories(path.parent_path());
        std::ofstream{path, std::ios::binary} << content;
    }

    static std::string read(const fs::path& path)
    {
        std::ifstream file{path, std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }

    static mode_t modeOf(const fs::path& path)
    {
        struct stat status { };
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    static std::vector<std::string> namesIn(const fs::path& path)
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator{path})
            names.push_back(entry.path().filename());
        std::ranges::sort(names);
        return names;
    }

    [[nodiscard]] std::vector<fs::path> corruptOnes() const
    {
        std::vector<fs::path> found;
        for (const auto& entry : fs::directory_iterator{file.parent_path()})
            if (entry.path().filename().string().starts_with("defaults.plist.corrupt-"))
                found.push_back(entry.path());
        std::ranges::sort(found);
        return found;
    }

    static constexpr const char* storedFocus
        = "<plist><dict><key>focusMinutes</key><integer>40</integer></dict></plist>";
    TemporaryFolder folder;
    const fs::path file = folder.path() / "config" / "velto" / "defaults.plist";
};

inline void assign(PlistKeyValueStore& store, std::string_view key, StoredValue value)
{
    store.set(key, std::move(value));
    ASSERT_TRUE(store.waitUntilWritten(30s));
}

} // namespace velto
