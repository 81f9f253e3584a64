// SPDX-License-Identifier: MIT
#include "desktop/status_item/ClickGesture.h"
#include "desktop/status_item/XInputEventMonitor.h"
#include "support/FakeRunLoop.h"

#include <gtest/gtest.h>

namespace velto {

TEST(DismissalTest, ReachesWhoeverWatchesWhereThereIsNoXServer)
{
    FakeRunLoop runLoop;
    ClickGesture gesture(runLoop);
    XInputEventMonitor monitor(gesture);
    int dismissals = 0;

    auto token = monitor.addOutsidePressMonitor([&] { ++dismissals; });
    monitor.dismiss();
    EXPECT_EQ(dismissals, 1);

    token.reset();
    monitor.dismiss();
    EXPECT_EQ(dismissals, 1);
}

} // namespace velto
