// SPDX-License-Identifier: MIT
#include "app/VeltoApp.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace velto {

using namespace std::chrono_literals;

TEST(VeltoAppTest, AtLaunchTheTimerShowsTheStoredFocusDurationAndWaits)
{
    FakePlatform world;
    world.defaults.values["focusMinutes"] = std::int64_t{40};
    VeltoApp app{world.platform};

    app.appDelegate().applicationDidFinishLaunching();
    world.runLoop.advance(399ms);
    EXPECT_EQ(world.panel, nullptr);
    world.runLoop.advance(1ms);

    EXPECT_TRUE(world.panel->isVisible());
    EXPECT_EQ(world.statusItem->button()->title(), "40:00");
    EXPECT_EQ(app.timer().remainingSeconds(), 2400);
    EXPECT_FALSE(app.timer().isRunning());
    EXPECT_FALSE(app.timer().hasStarted());
}

} // namespace velto
