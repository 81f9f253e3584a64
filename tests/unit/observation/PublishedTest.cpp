// SPDX-License-Identifier: MIT
#include "observation/Published.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace velto {

namespace {

struct Model : ObservableObject {
    Published<int> number{*this, 1};
    Published<int> other{*this, 7};
    ReadOnlyPublished<int, Model> own{*this, 3};

    void assignOwn(int value) { own.set(value); }
};

template <class P>
concept Assignable = requires(P& published)
{
    published.set(1);
};

static_assert(Assignable<decltype(Model::number)>);
static_assert(!Assignable<decltype(Model::own)>, "only its owner assigns it");
static_assert(!std::is_convertible_v<decltype(Model::own)&, Published<int>&>, "nor does anybody through a base");
static_assert(!Assignable<PublishedValue<int>>, "what observers are given can be read only");

} // namespace

class PublishedTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    Subscription listen(const std::string& name)
    {
        return model->number.changes([this, name](int value) {
            heard.push_back(name + std::to_string(value) + " over " + std::to_string(model->number()));
        });
    }

    std::optional<Model> model{std::in_place};
    Lines heard;
};

TEST_F(PublishedTest, DeliversTheCurrentValueOnSubscription)
{
    const auto a = listen("a");

    EXPECT_EQ(heard, Lines{"a1 over 1"});
}

TEST_F(PublishedTest, LaterChangesLeaveOutTheCurrentValue)
{
    const auto a = model->number.laterChanges([this](int value) { heard.push_back(std::to_string(value)); });
    EXPECT_TRUE(heard.empty());

    model->number.set(1);

    EXPECT_EQ(heard, Lines{"1"});
}

TEST_F(PublishedTest, NotifiesInOrderBeforeItStores)
{
    const auto a = listen("a");
    const auto b = listen("b");
    heard.clear();

    model->number.set(2);

    EXPECT_EQ(heard, (Lines{"a2 over 1", "b2 over 1"}));
    EXPECT_EQ(model->number(), 2);
}

TEST_F(PublishedTest, AnAssignmentOfAnEqualValueNotifiesToo)
{
    const auto a = listen("a");

    model->number.set(1);

    EXPECT_EQ(heard, (Lines{"a1 over 1", "a1 over 1"}));
}

TEST_F(PublishedTest, TheObjectAnnouncesEachChangeBeforeTheValueDoes)
{
    const auto value = listen("a");
    const auto object
        = model->willChange([this] { heard.push_back("object over " + std::to_string(model->number())); });
    heard.clear();

    model->number.set(2);
    model->other.set(8);

    EXPECT_EQ(heard, (Lines{"object over 1", "a2 over 1", "object over 2"}));
}

TEST_F(PublishedTest, OnlyTheOwnerAssignsAReadOnlyValue)
{
    const auto a = model->own.laterChanges([this](int value) { heard.push_back(std::to_string(value)); });

    model->assignOwn(4);

    EXPECT_EQ(heard, Lines{"4"});
    EXPECT_EQ(model->own(), 4);
}

TEST_F(PublishedTest, ASubscriptionMadeDuringANotificationMissesNothing)
{
    Subscription late;
    const auto a = model->number.changes([&](int value) {
        if (value == 2)
            late = listen("late");
    });

    model->number.set(2);

    EXPECT_EQ(heard, (Lines{"late1 over 1", "late2 over 1"}));
}

TEST_F(PublishedTest, ASubscriptionDroppedDuringANotificationHearsNothingMore)
{
    Subscription later;
    const auto a = model->number.changes([&](int) { later.cancel(); });
    later = listen("later");
    heard.clear();

    model->number.set(2);

    EXPECT_TRUE(heard.empty());
}

TEST_F(PublishedTest, AnAssignmentDuringANotificationIsOverwrittenByTheOneInProgress)
{
    const auto a = model->number.changes([&](int value) {
        if (value == 2)
            model->number.set(3);
    });
    const auto b = listen("b");
    heard.clear();

    model->number.set(2);

    EXPECT_EQ(heard, (Lines{"b3 over 1", "b2 over 3"}));
    EXPECT_EQ(model->number(), 2);
}

TEST_F(PublishedTest, AnObserverKeepsItsStateBetweenTheFirstValueAndTheNextOnes)
{
    const auto a
        = model->number.changes([this, count = 0](int) mutable { heard.push_back("call " + std::to_string(++count)); });

    model->number.set(2);

    EXPECT_EQ(heard, (Lines{"call 1", "call 2"}));
}

TEST_F(PublishedTest, SubscriptionsMayOutliveTheModel)
{
    auto a = listen("a");
    auto object = model->willChange([] {});

    model.reset();
    a.cancel();
    object.cancel();

    EXPECT_EQ(heard, Lines{"a1 over 1"});
}

} // namespace velto
