// SPDX-License-Identifier: MIT
#include "desktop/bus/SessionBus.h"
#include "desktop/session/SingleInstance.h"
#include "fixtures/Bus.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QSignalSpy>

namespace velto {

TEST(SingleInstanceReturnTest, TakesItsNameAgainWhenTheBusIsBack)
{
    SessionBus bus{QStringLiteral("program")};
    SingleInstance instance{bus, [] {}};
    ASSERT_EQ(instance.claim(), std::nullopt);
    QSignalSpy lost{&bus, &SessionBus::lost};

    Bus::current().stop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return lost.size() == 1; }, patience));
    Bus::current().start();

    BusClient other{QString()};
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return other.bus().interface()->isServiceRegistered(QStringLiteral("org.velto.Velto")); }, patience));
}

} // namespace velto
