// SPDX-License-Identifier: MIT
// One fault at every call to the disk, one run of the program for each.
#include "desktop/storage/PlistKeyValueStore.h"

#include "fixtures/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace velto {

namespace {

/// In the order in which they are assigned.
constexpr std::array keys{"focusMinutes", "breakMinutes", "autoTransition", "countdownSound", "focusEndSound",
    "breakEndSound", "focusMusicPreset", "breakMusicPreset", "focusCustomURL", "breakCustomURL", "enableFocusMusic",
    "enableBreakMusic", "musicVolume"};

std::string read(const fs::path& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

/// A settings file before, during and after a run of which one call fails.
class Disk {
public:
    [[nodiscard]] fs::path file() const { return folder() / "defaults.plist"; }

    /// What the file holds; absent without one.
    [[nodiscard]] std::optional<PropertyList> list() const { return PropertyList::parse(read(file())); }

    void start(std::string_view content) const
    {
        fs::remove_all(m_folder.path());
        fs::create_directories(content.empty() ? m_folder.path() : folder());
        if (!content.empty())
            std::ofstream{file(), std::ios::binary} << content;
    }

    /// The status of waitpid().
    [[nodiscard]] int run(const std::string& fault, int call) const
    {
        const pid_t child = ::fork();
        if (child == 0) {
            ::setenv("LD_PRELOAD", FAULTY_DISK, 1);
            ::setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
            ::setenv("FAULTY_DISK_FOLDER", (m_folder.path() / "config").c_str(), 1);
            ::setenv("FAULTY_DISK_FAULT", fault.c_str(), 1);
            ::setenv("FAULTY_DISK_CALL", std::to_string(call).c_str(), 1);
            ::setenv("FAULTY_DISK_REACHED", reached().c_str(), 1);
            ::dup2(::open(said().c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
            ::execl(STORE_LIFE, STORE_LIFE, file().c_str(), nullptr);
            ::_exit(127);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return status;
    }

    [[nodiscard]] bool wasReached() const { return fs::exists(reached()); }

    [[nodiscard]] std::ptrdiff_t linesOnStandardError() const { return std::ranges::count(read(said()), '\n'); }

    /// Whether a file there, the settings or one beside them, has this content.
    [[nodiscard]] bool has(std::string_view content) const
    {
        return std::ranges::any_of(
            fs::directory_iterator{folder()}, [&](const auto& entry) { return read(entry.path()) == content; });
    }

    [[nodiscard]] bool hasTemporaries() const
    {
        return fs::exists(folder()) && std::ranges::any_of(fs::directory_iterator{folder()}, [](const auto& entry) {
            return entry.path().string().find(".tmp-") != std::string::npos;
        });
    }

private:
    [[nodiscard]] fs::path folder() const { return m_folder.path() / "config" / "velto"; }
    [[nodiscard]] fs::path reached() const { return m_folder.path() / "reached"; }
    [[nodiscard]] fs::path said() const { return m_folder.path() / "said"; }

    TemporaryFolder m_folder;
};

/// How many settings of `list` are those of a whole run; the rest must be as in `before`.
std::optional<std::size_t> assignedIn(const PropertyList& list, const PropertyList& before, const PropertyList& after)
{
    std::size_t count = 0;
    while (count < keys.size() && list.value(keys[count]) == after.value(keys[count]))
        ++count;
    for (auto i = count; i < keys.size(); ++i)
        if (list.value(keys[i]) != before.value(keys[i]))
            return std::nullopt;
    return count;
}

class FaultsTest : public testing::TestWithParam<std::string> { };

/// Runs with a fault at the first call, the second, and so on, until there are no more.
void failEachCall(const std::string& fault, const std::string& start, const PropertyList& before)
{
    const Disk disk;
    disk.start("");
    ASSERT_EQ(disk.run(fault, 0), 0);
    const auto after = disk.list();
    ASSERT_TRUE(after);

    int call = 1;
    for (;; ++call) {
        SCOPED_TRACE(fault + " at call " + std::to_string(call));
        disk.start(start);
        const int status = disk.run(fault, call);
        if (!disk.wasReached())
            break;

        const bool isThere = fs::exists(disk.file());
        const auto list = disk.list();
        ASSERT_TRUE(list || !isThere || read(disk.file()) == start) << read(disk.file());
        ASSERT_TRUE(isThere || start.empty() || start == "broken") << "gone";
        if (list) {
            ASSERT_TRUE(assignedIn(*list, before, *after)) << read(disk.file());
            ASSERT_EQ(list->value("theirs"), before.value("theirs"));
        }
        ASSERT_TRUE(start != "broken" || disk.has("broken"));
        if (fault == "kill") {
            ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        } else {
            ASSERT_EQ(status, 0);
            ASSERT_TRUE(list);
            ASSERT_EQ(assignedIn(*list, before, *after), keys.size()) << "one fault must cost nothing";
            ASSERT_LE(disk.linesOnStandardError(), 1);
        }
        const PlistKeyValueStore next{disk.file()};
        ASSERT_FALSE(disk.hasTemporaries());
    }
    std::cout << fault << ": " << call - 1 << " calls" << std::endl;
    EXPECT_GT(call, 40);
}

} // namespace

TEST_P(FaultsTest, OneAtAnyCallLeavesTheFileAsItWas)
{
    PropertyList before;
    for (const char* key : {"focusMinutes", "breakMinutes"})
        before.set(key, std::int64_t{1});
    for (const char* key : {"autoTransition", "enableFocusMusic", "enableBreakMusic"})
        before.set(key, false);
    before.set("musicVolume", 0.125F);
    before.set("theirs", std::string{"kept"});

    failEachCall(GetParam(), before.toXml(), before);
}

TEST_P(FaultsTest, OneAtAnyCallOfTheFirstRunLeavesNoHalfFile)
{
    failEachCall(GetParam(), "", PropertyList{});
}

TEST_P(FaultsTest, OneAtAnyCallLosesNoFileThatIsMovedAside)
{
    failEachCall(GetParam(), "broken", PropertyList{});
}

INSTANTIATE_TEST_SUITE_P(Every, FaultsTest, testing::Values("EIO", "ENOSPC", "EMFILE", "EINTR", "short", "kill"),
    [](const auto& fault) { return fault.param; });

} // namespace velto
