// SPDX-License-Identifier: MIT
#include "observation/CombineLatest.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velto {

namespace {
struct Model : ObservableObject {
    Published<int> number{*this, 1};
    Published<std::string> word{*this, "a"};
};
} // namespace

class CombineLatestTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    Subscription listen()
    {
        return combineLatest(
            [this](int number, const std::string& word) { heard.push_back(std::to_string(number) + word); },
            model.number, model.word);
    }

    Model model;
    Lines heard;
};

TEST_F(CombineLatestTest, DeliversTheCurrentValuesOnce)
{
    const auto both = listen();

    EXPECT_EQ(heard, Lines{"1a"});
}

TEST_F(CombineLatestTest, DeliversTheLatestOfAllOnEveryAssignmentOfAny)
{
    const auto both = listen();

    model.number.set(2);
    model.word.set("b");
    model.word.set("b");

    EXPECT_EQ(heard, (Lines{"1a", "2a", "2b", "2b"}));
}

TEST_F(CombineLatestTest, EndsForAllOfThemWhenDropped)
{
    auto both = listen();

    both.cancel();
    model.number.set(2);
    model.word.set("b");

    EXPECT_EQ(heard, Lines{"1a"});
}

TEST_F(CombineLatestTest, MayBeDroppedFromWithin)
{
    Subscription both;
    both = combineLatest(
        [&](int number, const std::string&) {
            heard.push_back(std::to_string(number));
            both.cancel();
        },
        model.number, model.word);

    model.number.set(2);
    model.number.set(3);

    EXPECT_EQ(heard, (Lines{"1", "2"}));
}

} // namespace velto
