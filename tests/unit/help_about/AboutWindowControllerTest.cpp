// SPDX-License-Identifier: MIT
#include "help_about/AboutWindowController.h"
#include "support/FakeWindow.h"

#include <gtest/gtest.h>

namespace velto {

namespace {

TEST(AboutWindowControllerTest, MakesItsWindowOnFirstAccessAndKeepsIt)
{
    int made = 0;
    AboutWindowController controller{[&] {
        ++made;
        return std::make_unique<FakeWindow>();
    }};
    EXPECT_EQ(made, 0);

    auto& first = controller.panel();
    auto& second = controller.panel();

    EXPECT_EQ(&first, &second);
    EXPECT_EQ(made, 1);
}

} // namespace

} // namespace velto
