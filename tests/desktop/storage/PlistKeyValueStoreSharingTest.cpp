// SPDX-License-Identifier: MIT
#include "storage/PlistKeyValueStoreFixture.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace velto {

namespace {

class PlistKeyValueStoreSharingTest : public PlistKeyValueStoreFixture { };

} // namespace

TEST_F(PlistKeyValueStoreSharingTest, WhatAnotherHandChangedStays)
{
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    PlistKeyValueStore other{file};
    assign(store, "breakMinutes", std::int64_t{7});

    assign(other, "focusMinutes", std::int64_t{40});
    assign(other, "theirs", std::string{"kept"});
    assign(store, "autoTransition", true);

    const PlistKeyValueStore next{file};
    EXPECT_EQ(next.value<std::int64_t>("focusMinutes"), 40);
    EXPECT_EQ(next.value<std::int64_t>("breakMinutes"), 7);
    EXPECT_EQ(next.value<std::string>("theirs"), "kept");
    EXPECT_EQ(next.value<bool>("autoTransition"), true);
}

TEST_F(PlistKeyValueStoreSharingTest, ManyWhoWriteAtOnceLoseNothing)
{
    constexpr int writers = 8;
    constexpr int assignments = 20;
    const auto keyOf = [](int writer, int i) { return std::to_string(writer).append(".").append(std::to_string(i)); };
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        children.push_back(::fork());
        if (children.back() == 0) {
            {
                PlistKeyValueStore store{file};
                for (int i = 0; i < assignments; ++i)
                    store.set(keyOf(writer, i), std::int64_t{i});
            }
            ::_exit(EXIT_SUCCESS);
        }
    }
    for (const pid_t child : children)
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);

    const PlistKeyValueStore store{file};
    for (int writer = 0; writer < writers; ++writer)
        for (int i = 0; i < assignments; ++i)
            EXPECT_EQ(store.value<std::int64_t>(keyOf(writer, i)), i);
    EXPECT_EQ(namesIn(file.parent_path()), std::vector<std::string>{"defaults.plist"});
}

TEST_F(PlistKeyValueStoreSharingTest, ABrokenFilePutThereMeanwhileIsMovedAsideAndNothingIsLost)
{
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    write("broken", file);

    assign(store, "breakMinutes", std::int64_t{7});

    ASSERT_EQ(corruptOnes().size(), 1U);
    EXPECT_EQ(read(corruptOnes().front()), "broken");
    const PlistKeyValueStore next{file};
    EXPECT_EQ(next.value<std::int64_t>("focusMinutes"), 50);
    EXPECT_EQ(next.value<std::int64_t>("breakMinutes"), 7);
}

TEST_F(PlistKeyValueStoreSharingTest, AFileThatWasRemovedMeanwhileIsWrittenWhole)
{
    PlistKeyValueStore store{file};
    assign(store, "focusMinutes", std::int64_t{50});
    fs::remove_all(file.parent_path());

    assign(store, "breakMinutes", std::int64_t{7});

    const PlistKeyValueStore next{file};
    EXPECT_EQ(next.value<std::int64_t>("focusMinutes"), 50);
    EXPECT_EQ(next.value<std::int64_t>("breakMinutes"), 7);
}

TEST_F(PlistKeyValueStoreSharingTest, WhatAKilledProcessLeftIsRemovedAtTheStart)
{
    write(storedFocus, file);
    write("half", file.string() + ".tmp-a1B2c3");
    write("mine", file.string() + ".backup");

    const PlistKeyValueStore store{file};

    EXPECT_EQ(namesIn(file.parent_path()), (std::vector<std::string>{"defaults.plist", "defaults.plist.backup"}));
}

TEST_F(PlistKeyValueStoreSharingTest, AKillAtAnyMomentLeavesTheLastCompleteAssignment)
{
    constexpr std::int64_t assignments = 1000;
    std::mt19937 random{std::random_device{}()};
    std::uniform_int_distribution<std::int64_t> anyCount{1, 40};
    std::uniform_int_distribution<int> anyPause{0, 500};
    PlistKeyValueStore{file}.set("theirs", std::string{"kept"});

    for (std::int64_t completed = 0; completed < assignments;) {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            ::dup2(pipe[1], STDOUT_FILENO);
            ::close(pipe[0]);
            ::execl(STORE_WRITER, STORE_WRITER, file.c_str(), std::to_string(completed + 1).c_str(), nullptr);
            ::_exit(127);
        }
        ::close(pipe[1]);
        const auto readNext = [&] {
            std::int64_t number = 0;
            if (::read(pipe[0], &number, sizeof number) != static_cast<ssize_t>(sizeof number))
                return false;
            completed = number;
            return true;
        };
        for (auto count = anyCount(random); count > 0; --count)
            ASSERT_TRUE(readNext());
        std::this_thread::sleep_for(std::chrono::microseconds{anyPause(random)});
        ::kill(child, SIGKILL);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
        while (readNext()) { }
        ::close(pipe[0]);

        ASSERT_TRUE(PropertyList::parse(read(file))) << read(file);
        const PlistKeyValueStore store{file};
        const auto number = store.value<std::int64_t>("number");
        ASSERT_TRUE(number);
        EXPECT_GE(*number, completed);
        EXPECT_LE(*number, completed + 1);
        EXPECT_EQ(store.value<std::string>("theirs"), "kept");
    }
    EXPECT_TRUE(corruptOnes().empty());
}

} // namespace velto
