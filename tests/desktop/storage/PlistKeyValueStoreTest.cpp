// SPDX-License-Identifier: MIT
#include "storage/PlistKeyValueStoreFixture.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <vector>

#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velto {

namespace {

class PlistKeyValueStoreTest : public PlistKeyValueStoreFixture { };

/// Runs `work` in a process of its own; true when it returned true.
bool inAnotherProcess(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Permissions say nothing to the superuser, so somebody else becomes the owner of `paths`.
bool leaveTheSuperuser(const std::vector<fs::path>& paths)
{
    constexpr uid_t nobody = 65534;
    if (::geteuid() != 0)
        return true;
    return std::ranges::all_of(paths, [](const auto& path) { return ::chown(path.c_str(), nobody, nobody) == 0; })
        && ::setuid(nobody) == 0;
}

} // namespace

TEST_F(PlistKeyValueStoreTest, NothingIsWrittenBeforeTheFirstAssignment)
{
    const PlistKeyValueStore store{file};

    EXPECT_EQ(store.object("focusMinutes"), std::nullopt);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(PlistKeyValueStoreTest, WhatIsAssignedIsThereInTheNextRun)
{
    {
        PlistKeyValueStore store{file};
        assign(store, "focusMinutes", std::int64_t{50});
        assign(store, "autoTransition", true);
        assign(store, "musicVolume", 1.7F);
        assign(store, "focusCustomURL", std::string{"https://example.org/?a=1&b=<2>"});
        assign(store, "focusEndSound", Blob{0x22, 'N', 'o', 'n', 'e', 0x22});
        assign(store, "focusMinutes", std::int64_t{-3});
    }

    const PlistKeyValueStore store{file};
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), -3);
    EXPECT_EQ(store.value<bool>("autoTransition"), true);
    EXPECT_EQ(store.value<float>("musicVolume"), 1.7F);
    EXPECT_EQ(store.value<std::string>("focusCustomURL"), "https://example.org/?a=1&b=<2>");
    EXPECT_EQ(store.value<Blob>("focusEndSound"), (Blob{0x22, 'N', 'o', 'n', 'e', 0x22}));
    EXPECT_EQ(store.value<bool>("focusMinutes"), std::nullopt);
    EXPECT_EQ(store.value<std::int64_t>("musicVolume"), std::nullopt);
}

TEST_F(PlistKeyValueStoreTest, TheFileIsAnXmlPropertyList)
{
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    assign(store, "autoTransition", true);
    assign(store, "musicVolume", 0.25F);

    const std::string xml = read(file);
    EXPECT_TRUE(xml.starts_with("<?xml")) << xml;
    EXPECT_NE(xml.find("<key>focusMinutes</key>\n\t<integer>50</integer>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<key>autoTransition</key>\n\t<true/>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<key>musicVolume</key>\n\t<real>0.25</real>"), std::string::npos) << xml;
}

TEST_F(PlistKeyValueStoreTest, TheLastOfManyAssignmentsWins)
{
    {
        PlistKeyValueStore store{file};
        for (std::int64_t number = 0; number <= 1000; ++number)
            store.set("number", number);
        EXPECT_EQ(store.value<std::int64_t>("number"), 1000);
    }

    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("number"), 1000);
}

TEST_F(PlistKeyValueStoreTest, WhatCouldNotBeWrittenIsTriedAgainAtTheEnd)
{
    const fs::path inTheWay = folder.path() / "config";
    write("a file where the folder belongs", inTheWay);
    {
        PlistKeyValueStore store{file};
        assign(store, "focusMinutes", std::int64_t{50});
        fs::remove(inTheWay);
    }

    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("focusMinutes"), 50);
}

TEST_F(PlistKeyValueStoreTest, OnlyTheUserMayReadIt)
{
    const mode_t before = ::umask(0);
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    fs::permissions(file, fs::perms{0644});
    assign(store, "focusMinutes", std::int64_t{51});
    ::umask(before);

    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_EQ(modeOf(file.parent_path()), 0700U);
    EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{"defaults.plist"});
}

TEST_F(PlistKeyValueStoreTest, EntriesOfOthersStay)
{
    write("<plist version=\"1.0\"><dict><key>theirs</key><array><integer>1</integer></array>"
          "<key>focusMinutes</key><string>many</string></dict></plist>",
        file);
    PlistKeyValueStore store{file};
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), std::nullopt);
    EXPECT_EQ(store.object("theirs"), std::nullopt);

    assign(store, "breakMinutes", std::int64_t{7});

    const std::string xml = read(file);
    EXPECT_NE(xml.find("<key>theirs</key>\n\t<array>\n\t\t<integer>1</integer>\n\t</array>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<string>many</string>"), std::string::npos) << xml;
    EXPECT_NE(xml.find("<integer>7</integer>"), std::string::npos) << xml;
    EXPECT_TRUE(corruptOnes().empty());
}

TEST_F(PlistKeyValueStoreTest, AFileThatIsNotAPropertyListIsMovedAside)
{
    for (const std::string content : {"", "no property list", "<plist><array/></plist>"}) {
        fs::remove_all(file.parent_path());
        write(content, file);

        PlistKeyValueStore store{file};
        EXPECT_EQ(store.object("focusMinutes"), std::nullopt);
        EXPECT_EQ(read(file), content) << "touched before the first assignment";
        assign(store, "focusMinutes", std::int64_t{50});

        ASSERT_EQ(corruptOnes().size(), 1U);
        EXPECT_EQ(read(corruptOnes().front()), content);
        EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("focusMinutes"), 50);
        assign(store, "focusMinutes", std::int64_t{51});
        EXPECT_EQ(corruptOnes().size(), 1U);
    }
}

TEST_F(PlistKeyValueStoreTest, NoFileMovedAsideIsEverOverwritten)
{
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round) {
        write("broken " + std::to_string(round), file);
        PlistKeyValueStore{file}.set("focusMinutes", std::int64_t{round});
    }

    std::vector<std::string> contents;
    for (const auto& path : corruptOnes())
        contents.push_back(read(path));
    std::ranges::sort(contents);
    std::vector<std::string> expected;
    for (int round = 0; round < rounds; ++round)
        expected.push_back("broken " + std::to_string(round));
    std::ranges::sort(expected);
    EXPECT_EQ(contents, expected);
}

TEST_F(PlistKeyValueStoreTest, AFileThatIsNotRegularDoesNotHoldUpTheStart)
{
    fs::create_directories(file.parent_path());
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);

    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});

    EXPECT_EQ(corruptOnes().size(), 1U);
    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("focusMinutes"), 50);
}

TEST_F(PlistKeyValueStoreTest, AFolderInTheWayCostsNothingInMemory)
{
    fs::create_directories(file);

    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});

    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 50);
    EXPECT_TRUE(fs::is_directory(file));
    EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{"defaults.plist"});
}

TEST_F(PlistKeyValueStoreTest, ASymbolicLinkStaysOneAndItsTargetIsReplaced)
{
    const fs::path target = folder.path() / "dotfiles" / "velto.plist";
    fs::create_directories(target.parent_path());
    fs::create_directories(file.parent_path());
    fs::create_symlink("../../dotfiles/velto.plist", file);

    PlistKeyValueStore{file}.set("focusMinutes", std::int64_t{50});
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target)));
    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("focusMinutes"), 50);

    write("broken", target);
    PlistKeyValueStore{file}.set("focusMinutes", std::int64_t{51});
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(namesIn(target.parent_path()).size(), 2U);
    EXPECT_EQ(PlistKeyValueStore{target}.value<std::int64_t>("focusMinutes"), 51);
}

TEST_F(PlistKeyValueStoreTest, ALinkToItselfCostsNothingInMemory)
{
    fs::create_directories(file.parent_path());
    fs::create_symlink("defaults.plist", file);

    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});

    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 50);
}

TEST_F(PlistKeyValueStoreTest, AFullDiskCostsNothingAndTheNextAssignmentTriesAgain)
{
    PlistKeyValueStore{file}.set("focusMinutes", std::int64_t{50});
    const std::string before = read(file);

    const bool held = inAnotherProcess([&] {
        // A limit on the size of files fails like a full disk does.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = 64;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        PlistKeyValueStore store{file};

        assign(store, "breakMinutes", std::int64_t{7});
        const bool isInMemory = store.value<std::int64_t>("breakMinutes") == 7;
        const bool isUntouched = read(file) == before && namesIn(file.parent_path()).size() == 1;

        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        assign(store, "autoTransition", true);
        return isInMemory && isUntouched;
    });

    EXPECT_TRUE(held);
    const PlistKeyValueStore store{file};
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 50);
    EXPECT_EQ(store.value<std::int64_t>("breakMinutes"), 7);
    EXPECT_EQ(store.value<bool>("autoTransition"), true);
    EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{"defaults.plist"});
}

TEST_F(PlistKeyValueStoreTest, AReadOnlyFolderCostsNothingAndTheNextAssignmentTriesAgain)
{
    PlistKeyValueStore{file}.set("focusMinutes", std::int64_t{50});
    fs::permissions(folder.path(), fs::perms{0755});

    const bool held = inAnotherProcess([&] {
        if (!leaveTheSuperuser({file.parent_path().parent_path(), file.parent_path(), file}))
            return false;
        fs::permissions(file.parent_path(), fs::perms{0500});
        PlistKeyValueStore store{file};

        assign(store, "breakMinutes", std::int64_t{7});
        const bool isInMemory = store.value<std::int64_t>("breakMinutes") == 7;
        const bool isUntouched = !PlistKeyValueStore{file}.object("breakMinutes");

        fs::permissions(file.parent_path(), fs::perms{0700});
        assign(store, "breakMinutes", std::int64_t{7});
        return isInMemory && isUntouched;
    });

    EXPECT_TRUE(held);
    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("breakMinutes"), 7);
}

TEST_F(PlistKeyValueStoreTest, AFileThatMayNotBeReadStaysUntilItMay)
{
    write(storedFocus, file);
    fs::permissions(folder.path(), fs::perms{0755});

    const bool held = inAnotherProcess([&] {
        if (!leaveTheSuperuser({file.parent_path(), file}))
            return false;
        fs::permissions(file, fs::perms{0});
        PlistKeyValueStore store{file};
        assign(store, "breakMinutes", std::int64_t{7});
        const bool isUntouched = modeOf(file) == 0 && namesIn(file.parent_path()).size() == 1;

        fs::permissions(file, fs::perms{0600});
        assign(store, "autoTransition", true);
        return isUntouched;
    });

    EXPECT_TRUE(held);
    const PlistKeyValueStore store{file};
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 40);
    EXPECT_EQ(store.value<std::int64_t>("breakMinutes"), 7);
    EXPECT_EQ(store.value<bool>("autoTransition"), true);
}

TEST_F(PlistKeyValueStoreTest, AFileThatCannotBeReadNowStaysUntilItCan)
{
    write(storedFocus, file);

    const bool held = inAnotherProcess([&] {
        rlimit limit{};
        ::getrlimit(RLIMIT_NOFILE, &limit);
        const rlimit none{0, limit.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
        PlistKeyValueStore store{file};
        const bool isDefault = !store.object("focusMinutes");
        assign(store, "breakMinutes", std::int64_t{7});

        ::setrlimit(RLIMIT_NOFILE, &limit);
        const bool isUntouched = read(file) == storedFocus && namesIn(file.parent_path()).size() == 1;
        assign(store, "autoTransition", true);
        return isDefault && isUntouched;
    });

    EXPECT_TRUE(held);
    const PlistKeyValueStore store{file};
    EXPECT_EQ(store.value<std::int64_t>("focusMinutes"), 40);
    EXPECT_EQ(store.value<std::int64_t>("breakMinutes"), 7);
    EXPECT_EQ(store.value<bool>("autoTransition"), true);
    EXPECT_TRUE(corruptOnes().empty());
}

TEST_F(PlistKeyValueStoreTest, SettingsThatCannotBeSavedAreSaidOnce)
{
    fs::create_directories(file);
    testing::internal::CaptureStderr();

    {
        PlistKeyValueStore store{file};
        assign(store, "focusMinutes", std::int64_t{50});
        assign(store, "focusMinutes", std::int64_t{51});
    }

    EXPECT_EQ(
        testing::internal::GetCapturedStderr(), "velto: settings not saved: " + file.string() + ": Is a directory\n");
}

TEST_F(PlistKeyValueStoreTest, WhatCouldNotBeReadAgainIsNotWritten)
{
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    assign(store, "focusCustomURL", std::string(PropertyList::maximumSize, 'x'));

    EXPECT_EQ(PlistKeyValueStore{file}.value<std::int64_t>("focusMinutes"), 50);
    assign(store, "focusCustomURL", std::string{"short"});
    EXPECT_EQ(PlistKeyValueStore{file}.value<std::string>("focusCustomURL"), "short");
}

TEST(PlistKeyValueStorePathTest, IsInTheUsersConfigurationFolder)
{
    ::setenv("HOME", "/home/somebody", 1);
    ::setenv("XDG_CONFIG_HOME", "/elsewhere", 1);
    EXPECT_EQ(PlistKeyValueStore::defaultPath(), "/elsewhere/velto/defaults.plist");

    for (const char* unusable : {"", "relative/folder"}) {
        ::setenv("XDG_CONFIG_HOME", unusable, 1);
        EXPECT_EQ(PlistKeyValueStore::defaultPath(), "/home/somebody/.config/velto/defaults.plist");
    }
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(PlistKeyValueStore::defaultPath(), "/home/somebody/.config/velto/defaults.plist");

    const fs::path home{::getpwuid(::getuid())->pw_dir};
    for (const char* unusable : {"", "relative/folder"}) {
        ::setenv("HOME", unusable, 1);
        EXPECT_EQ(PlistKeyValueStore::defaultPath(), home / ".config/velto/defaults.plist");
    }
    ::unsetenv("HOME");
    EXPECT_EQ(PlistKeyValueStore::defaultPath(), home / ".config/velto/defaults.plist");
}

} // namespace velto
