// SPDX-License-Identifier: MIT
#include "desktop/bus/BusProbe.h"
#include "fixtures/Bus.h"
#include "fixtures/BusClient.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace velto {

namespace {

QVariantList answerOf(const QByteArray& address)
{
    BusProbe probe(address);
    QSignalSpy answered(&probe, &BusProbe::answered);
    if (!answered.wait(patience))
        return {};
    return answered.takeFirst();
}

} // namespace

TEST(BusProbeTest, ABusIsThereHoweverFastItAnswers)
{
    for (int i = 0; i < 300; ++i)
        ASSERT_EQ(answerOf(qgetenv("DBUS_SESSION_BUS_ADDRESS")), QVariantList{true}) << i;
}

TEST(BusProbeTest, WhereThereIsNoneItSaysSo)
{
    EXPECT_EQ(answerOf("unix:path=/nonexistent/bus"), QVariantList{false});
    EXPECT_EQ(answerOf("nonsense"), QVariantList{false});
}

} // namespace velto
