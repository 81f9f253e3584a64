// SPDX-License-Identifier: MIT
#include "help_about/HelpWindowController.h"
#include "support/FakeApplication.h"
#include "support/FakeKeyValueStore.h"
#include "support/FakeWindow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

namespace {

constexpr auto launchedBefore = "hasLaunchedBefore";

class HelpWindowControllerTest : public testing::Test {
protected:
    HelpWindowControllerTest()
    {
        store.onWrite = [this] { steps.push_back("write"); };
        application.onActivate = [this] { steps.push_back("activate"); };
    }

    void showWelcomeIfNeeded() { HelpWindowController::showWelcomeIfNeeded(store, application, makeWindow); }

    FakeKeyValueStore store;
    FakeApplication application;
    std::vector<std::string> steps;
    HelpWindowController::WindowFactory makeWindow = [this] {
        steps.push_back("make");
        return std::make_unique<FakeWindow>([this] { steps.push_back("front"); });
    };
};

TEST_F(HelpWindowControllerTest, MakesItsWindowOnFirstAccessAndKeepsIt)
{
    HelpWindowController controller{makeWindow};
    EXPECT_TRUE(steps.empty());

    auto& first = controller.panel();
    auto& second = controller.panel();

    EXPECT_EQ(&first, &second);
    EXPECT_EQ(steps, std::vector<std::string>{"make"});
}

TEST_F(HelpWindowControllerTest, EachControllerHasAWindowOfItsOwn)
{
    HelpWindowController one{makeWindow};
    HelpWindowController other{makeWindow};

    EXPECT_NE(&one.panel(), &other.panel());
}

TEST_F(HelpWindowControllerTest, TheFirstLaunchIsStoredThenShowsTheWelcomeInFront)
{
    showWelcomeIfNeeded();

    EXPECT_EQ(steps, (std::vector<std::string>{"write", "activate", "make", "front"}));
    EXPECT_EQ(store.object(launchedBefore), StoredValue(true));
}

TEST_F(HelpWindowControllerTest, TheSecondLaunchShowsNothing)
{
    showWelcomeIfNeeded();
    steps.clear();

    showWelcomeIfNeeded();

    EXPECT_TRUE(steps.empty());
}

TEST_F(HelpWindowControllerTest, AStoredFalseStillWelcomes)
{
    store.values[launchedBefore] = false;

    showWelcomeIfNeeded();

    EXPECT_EQ(steps.back(), "front");
    EXPECT_EQ(store.object(launchedBefore), StoredValue(true));
}

TEST_F(HelpWindowControllerTest, AValueOfAnotherKindCountsAsAbsent)
{
    store.values[launchedBefore] = std::string("yes");

    showWelcomeIfNeeded();

    EXPECT_EQ(steps.back(), "front");
    EXPECT_EQ(store.object(launchedBefore), StoredValue(true));
}

TEST_F(HelpWindowControllerTest, TheWelcomeIsNotTheWindowOfALaterHelp)
{
    showWelcomeIfNeeded();
    HelpWindowController help{makeWindow};
    steps.clear();

    help.panel().makeKeyAndOrderFront();

    EXPECT_EQ(steps, (std::vector<std::string>{"make", "front"}));
}

} // namespace

} // namespace velto
