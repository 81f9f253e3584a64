// SPDX-License-Identifier: MIT
#include "desktop/session/QtRunLoop.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>

#include <chrono>
#include <csignal>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace velto {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

namespace {

constexpr int patience = 20000; // ms

class QtRunLoopTest : public testing::Test {
protected:
    QtRunLoop runLoop;
};

} // namespace

TEST_F(QtRunLoopTest, ARepeatingWorkKeepsItsBeat)
{
    const auto start = steady_clock::now();
    std::vector<steady_clock::time_point> runs;
    const auto timer = runLoop.every(20ms, [&] {
        runs.push_back(steady_clock::now());
        // Each run is late for whatever comes in its turn; the beat is not.
        std::this_thread::sleep_for(7ms);
    });

    ASSERT_TRUE(QTest::qWaitFor([&] { return runs.size() >= 50; }, patience));

    for (std::size_t i = 0; i < runs.size(); ++i)
        EXPECT_GE(runs[i] - start, 20ms * (i + 1)) << "too early";
    // However late single ones were, on this machine, some of the last fell on the beat.
    auto latest = steady_clock::duration::max();
    for (auto run = runs.end() - 10; run != runs.end(); ++run)
        latest = std::min(latest, (*run - start) % 20ms);
    EXPECT_LT(latest, 5ms);
}

TEST_F(QtRunLoopTest, MissedRunsAreNotMadeUpFor)
{
    std::vector<steady_clock::time_point> runs;
    const auto start = steady_clock::now();
    const auto timer = runLoop.every(50ms, [&] { runs.push_back(steady_clock::now()); });

    std::this_thread::sleep_for(530ms);
    ASSERT_TRUE(QTest::qWaitFor([&] { return runs.size() >= 3; }, patience));

    EXPECT_GE(runs[0] - start, 530ms);
    EXPECT_GE(runs[1] - start, 550ms);
    EXPECT_GE(runs[2] - start, 600ms);
}

TEST_F(QtRunLoopTest, ATimerSurvivesTheSuspensionOfTheProcess)
{
    int runs = 0;
    const auto timer = runLoop.every(20ms, [&] { ++runs; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return runs >= 1; }, patience));

    const pid_t self = ::getpid();
    const pid_t helper = ::fork();
    if (helper == 0) {
        ::kill(self, SIGSTOP);
        std::this_thread::sleep_for(600ms);
        ::kill(self, SIGCONT);
        ::_exit(0);
    }
    ASSERT_EQ(::waitpid(helper, nullptr, 0), helper);
    const int before = runs;
    QCoreApplication::processEvents();

    EXPECT_LE(runs, before + 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs >= before + 3; }, patience));
}

TEST_F(QtRunLoopTest, ADelayedWorkRunsOnceAndNotBeforeItsTime)
{
    const auto start = steady_clock::now();
    std::vector<steady_clock::duration> runs;
    const auto pending = runLoop.after(60ms, [&] { runs.push_back(steady_clock::now() - start); });
    bool isLater = false;
    const auto later = runLoop.after(200ms, [&] { isLater = true; });

    ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }, patience));

    ASSERT_EQ(runs.size(), 1U);
    EXPECT_GE(runs.front(), 60ms);
}

TEST_F(QtRunLoopTest, DelaysLongerThanAnyQtTimerAreAccepted)
{
    bool hasRun = false;
    const auto pending = runLoop.after(24h * 365, [&] { hasRun = true; });
    bool isLater = false;
    const auto later = runLoop.after(50ms, [&] { isLater = true; });

    ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }, patience));

    EXPECT_FALSE(hasRun);
}

TEST_F(QtRunLoopTest, DroppingTheHandleCancels)
{
    std::string runs;
    auto repeating = runLoop.every(10ms, [&] { runs += 'r'; });
    auto delayed = runLoop.after(10ms, [&] { runs += 'd'; });
    auto next = runLoop.nextTurn([&] { runs += 'n'; });
    repeating = {};
    delayed = {};
    next = {};

    bool isLater = false;
    const auto later = runLoop.after(100ms, [&] { isLater = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }, patience));

    EXPECT_EQ(runs, "");
}

TEST_F(QtRunLoopTest, AWorkMayDropItsOwnHandle)
{
    int repeated = 0;
    std::optional<Subscription> repeating;
    repeating = runLoop.every(5ms, [&, big = std::vector<int>(1000, 7)] {
        repeating.reset();
        repeated += big.back() == 7 ? 1 : 0;
    });
    int delayed = 0;
    std::optional<Subscription> once;
    once = runLoop.after(5ms, [&] {
        once.reset();
        ++delayed;
    });
    int turned = 0;
    std::optional<Subscription> next;
    next = runLoop.nextTurn([&] {
        next.reset();
        ++turned;
    });

    bool isLater = false;
    const auto later = runLoop.after(100ms, [&] { isLater = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isLater; }, patience));

    EXPECT_EQ(repeated, 1);
    EXPECT_EQ(delayed, 1);
    EXPECT_EQ(turned, 1);
}

TEST_F(QtRunLoopTest, AWorkMayDropItsHandleWithinALoopOfItsOwn)
{
    int runs = 0;
    bool isMenuOpen = false;
    std::optional<Subscription> repeating;
    repeating = runLoop.every(5ms, [&, big = std::vector<int>(1000, 7)] {
        if (std::exchange(isMenuOpen, true))
            return;
        QEventLoop menu;
        const auto close = runLoop.after(30ms, [&] {
            repeating.reset();
            menu.quit();
        });
        menu.exec();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        runs += big.back() == 7 ? 1 : 0;
    });

    ASSERT_TRUE(QTest::qWaitFor([&] { return runs > 0; }, patience));
    EXPECT_EQ(runs, 1);
}

TEST_F(QtRunLoopTest, TimersRunWhileAMenuIsOpen)
{
    int ticks = 0;
    const auto timer = runLoop.every(10ms, [&] { ++ticks; });
    QEventLoop menu;
    const auto close = runLoop.every(10ms, [&] {
        if (ticks >= 5)
            menu.quit();
    });

    menu.exec();

    EXPECT_GE(ticks, 5);
}

TEST_F(QtRunLoopTest, WorksOfTheNextTurnRunInTheOrderAskedForAndNotBefore)
{
    std::string runs;
    std::vector<Subscription> handles;
    handles.push_back(runLoop.nextTurn([&] {
        runs += 'a';
        handles.push_back(runLoop.nextTurn([&] { runs += 'c'; }));
    }));
    handles.push_back(runLoop.nextTurn([&] { runs += 'b'; }));
    EXPECT_EQ(runs, "");

    ASSERT_TRUE(QTest::qWaitFor([&] { return runs.size() == 3; }, patience));
    EXPECT_EQ(runs, "abc");
}

} // namespace velto

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
