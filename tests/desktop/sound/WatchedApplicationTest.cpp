// SPDX-License-Identifier: MIT
#include "WatchedApplication.h"

#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <thread>

namespace velto {
namespace {

using namespace std::chrono_literals;

class WatchedApplicationTest : public testing::Test {
protected:
    void runInAnEvent(const std::function<void()>& work)
    {
        application.startWatching();
        bool done = false;
        QTimer::singleShot(0, [&] {
            work();
            done = true;
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return done; }, 10000));
    }

    WatchedApplication& application = WatchedApplication::instance();
};

TEST_F(WatchedApplicationTest, SeesAnEventThatWaits)
{
    runInAnEvent([] { std::this_thread::sleep_for(100ms); });
    EXPECT_GE(application.longestTurn(), 60ms);
    EXPECT_LT(application.longestTurn(), 200ms);

    runInAnEvent([] { std::this_thread::sleep_for(1s); });
    EXPECT_FALSE(application.isNeverHeldUp());
}

TEST_F(WatchedApplicationTest, SeesAnEventThatComputes)
{
    const auto processorTime = [] { return std::chrono::microseconds(clock() * 1000000 / CLOCKS_PER_SEC); };
    runInAnEvent([&] {
        for (const auto start = processorTime(); processorTime() - start < 100ms;) { }
    });
    EXPECT_GE(application.longestTurn(), 60ms);
    EXPECT_LT(application.longestTurn(), 200ms);
}

TEST_F(WatchedApplicationTest, TakesNoTimeWithoutEventsForATurn)
{
    application.startWatching();
    QTest::qWait(100);
    EXPECT_LT(application.longestTurn(), 20ms);
    EXPECT_TRUE(application.isNeverHeldUp());
}

} // namespace
} // namespace velto
