// SPDX-License-Identifier: MIT
#include "desktop/bus/SessionBus.h"
#include "fixtures/Bus.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace velto {

class SessionBusTest : public testing::Test {
protected:
    /// The bus is there again, but hangs.
    void comeBackHanging()
    {
        Bus::current().stop();
        ASSERT_TRUE(QTest::qWaitFor([&] { return lost.size() == 1; }, patience));
        Bus::current().start();
        Bus::current().pause();
    }

    /// How long the event loop stood still at the most, in milliseconds.
    static qint64 longestStandstill(int milliseconds)
    {
        qint64 longest = 0;
        QElapsedTimer sinceLast;
        QTimer beat;
        beat.callOnTimeout([&] { longest = std::max(longest, sinceLast.restart()); });
        sinceLast.start();
        beat.start(10);
        QTest::qWait(milliseconds);
        return std::max(longest, sinceLast.elapsed());
    }

    std::unique_ptr<SessionBus> bus = std::make_unique<SessionBus>(QStringLiteral("program"));
    QSignalSpy lost{bus.get(), &SessionBus::lost};
    QSignalSpy found{bus.get(), &SessionBus::found};
};

TEST_F(SessionBusTest, ABusThatComesBackAndHangsHoldsNothingUp)
{
    comeBackHanging();

    EXPECT_LT(longestStandstill(2500), 2000);
    EXPECT_EQ(found.size(), 0);
    EXPECT_FALSE(bus->connection().isConnected());

    Bus::current().resume();
    EXPECT_TRUE(QTest::qWaitFor([&] { return found.size() == 1; }, patience));
    EXPECT_TRUE(bus->connection().isConnected());
}

TEST_F(SessionBusTest, ABusThatHungAndWentIsFoundWhenTheNextOneComes)
{
    comeBackHanging();
    QTest::qWait(1500);

    Bus::current().stop();
    Bus::current().start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return found.size() == 1; }, patience));
}

TEST_F(SessionBusTest, AHangingBusIsNotWaitedForAtTheEnd)
{
    comeBackHanging();
    QTest::qWait(1500);

    QElapsedTimer end;
    end.start();
    bus.reset();
    EXPECT_LT(end.elapsed(), 500);
    Bus::current().resume();
}

} // namespace velto
