// SPDX-License-Identifier: MIT
#include "observation/NotificationCenter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

class NotificationCenterTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    Subscription listen(const std::string& who, const std::string& name)
    {
        return center.addObserver(name, [this, who](const Notification& notification) {
            const auto* number = std::any_cast<int>(&notification.object);
            heard.push_back(who + ' ' + notification.name + ' ' + (number ? std::to_string(*number) : "-"));
        });
    }

    NotificationCenter center;
    Lines heard;
};

TEST_F(NotificationCenterTest, PostsSynchronouslyInTheOrderOfRegistration)
{
    const auto a = listen("a", "bell");
    const auto b = listen("b", "bell");

    center.post("bell", 7);

    EXPECT_EQ(heard, (Lines{"a bell 7", "b bell 7"}));
}

TEST_F(NotificationCenterTest, ReachesOnlyObserversOfItsName)
{
    const auto a = listen("a", "bell");

    center.post("gong", 7);
    center.post("Bell", 7);

    EXPECT_TRUE(heard.empty());
}

TEST_F(NotificationCenterTest, CarriesNoObjectByDefault)
{
    const auto a = listen("a", "bell");

    center.post("bell");

    EXPECT_EQ(heard, Lines{"a bell -"});
}

TEST_F(NotificationCenterTest, ADroppedObserverHearsNothingMore)
{
    auto a = listen("a", "bell");

    a.cancel();
    center.post("bell");

    EXPECT_TRUE(heard.empty());
}

TEST_F(NotificationCenterTest, AnObserverMayRegisterAndPostDuringADelivery)
{
    Subscription gong;
    const auto a = center.addObserver("bell", [&](const Notification&) {
        gong = listen("late", "gong");
        center.post("gong", 1);
    });

    center.post("bell");

    EXPECT_EQ(heard, Lines{"late gong 1"});
}

TEST_F(NotificationCenterTest, TheProcessHasOne)
{
    EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

} // namespace velto
