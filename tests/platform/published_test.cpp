#include "platform/published.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace vantor::published_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PublishedTest : public testing::Test {
  protected:
    auto recorder() {
        return [this](int value) { seen.push_back(value); };
    }

    Published<int> number{1};
    std::vector<int> seen;
};

TEST_F(PublishedTest, TellsOfTheNewValueWhileTheOldOneStillHolds) {
    std::vector<int> held;
    const auto subscription = number.observe([&](int value) {
        seen.push_back(value);
        held.push_back(number.value());
    });
    number.set(2);
    number.set(3);
    EXPECT_THAT(seen, ElementsAre(2, 3));
    EXPECT_THAT(held, ElementsAre(1, 2));
    EXPECT_EQ(number.value(), 3);
}

TEST_F(PublishedTest, DoesNotTellOfThePresentValue) {
    const auto subscription = number.observe(recorder());
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(PublishedTest, TellsOfEqualValuesButNotAsChanges) {
    std::vector<int> changes;
    const auto all = number.observe(recorder());
    const auto changed = number.observeChanges([&](int value) { changes.push_back(value); });
    for (const int value : {1, 2, 2, 1})
        number.set(value);
    EXPECT_THAT(seen, ElementsAre(1, 2, 2, 1));
    EXPECT_THAT(changes, ElementsAre(2, 1));
}

TEST_F(PublishedTest, TellsInTheOrderOfSubscription) {
    const auto first = number.observe([this](int value) { seen.push_back(10 * value); });
    const auto second = number.observe(recorder());
    number.set(2);
    EXPECT_THAT(seen, ElementsAre(20, 2));
}

TEST_F(PublishedTest, SwapsTheOldValueOutWhenAskedTo) {
    Published<std::string> text{"old"};
    std::string heard, held;
    const auto subscription = text.observe([&](const std::string& value) {
        heard = value;
        held = text.value();
    });
    std::string next = "new";
    text.publish(next);
    EXPECT_EQ(heard, "new");
    EXPECT_EQ(held, "old");
    EXPECT_EQ(text.value(), "new");
    EXPECT_EQ(next, "old");
}

TEST_F(PublishedTest, TellsNobodyWhoseSubscriptionHasEnded) {
    auto subscription = number.observe(recorder());
    number.set(2);
    subscription.cancel();
    subscription.cancel();
    EXPECT_FALSE(subscription);
    number.set(3);
    EXPECT_THAT(seen, ElementsAre(2));
}

TEST_F(PublishedTest, LetsAnObserverEndItsOwnSubscription) {
    Subscription subscription;
    auto captured = std::make_shared<int>(0);
    const std::weak_ptr<int> alive = captured;
    subscription = number.observe([&, captured = std::move(captured)](int value) {
        subscription.cancel();
        // What the observer captured must last until it returns.
        ASSERT_FALSE(alive.expired());
        seen.push_back(value);
    });
    number.set(2);
    number.set(3);
    EXPECT_THAT(seen, ElementsAre(2));
    EXPECT_TRUE(alive.expired());
}

TEST_F(PublishedTest, DoesNotTellAnObserverThatAnotherOneHasJustEnded) {
    Subscription second;
    const auto first = number.observe([&](int) { second.cancel(); });
    second = number.observe(recorder());
    number.set(2);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(PublishedTest, TellsAnObserverThatCameMeanwhileFromTheNextValueOn) {
    Subscription late;
    const auto first = number.observe([&](int) {
        if (!late) late = number.observe(recorder());
    });
    number.set(2);
    EXPECT_THAT(seen, IsEmpty());
    number.set(3);
    EXPECT_THAT(seen, ElementsAre(3));
}

TEST_F(PublishedTest, HoldsTheOuterValueWhenAnObserverSetsAnother) {
    const auto setter = number.observe([this](int value) {
        if (value == 2) number.set(7);
    });
    const auto subscription = number.observe(recorder());
    number.set(2);
    EXPECT_THAT(seen, ElementsAre(7, 2));
    EXPECT_EQ(number.value(), 2);
}

TEST(SubscriptionTest, MayOutliveWhatItObserves) {
    Subscription subscription;
    {
        Published<int> number{1};
        subscription = number.observe([](int) {});
    }
    EXPECT_TRUE(subscription);
    subscription.cancel();
}

TEST(SubscriptionTest, EndsOnceWhereverItWasMoved) {
    int ends = 0;
    {
        Subscription first{[&] { ++ends; }};
        Subscription second{std::move(first)};
        Subscription third;
        third = std::move(second);
        EXPECT_TRUE(third);
        EXPECT_EQ(ends, 0);
    }
    EXPECT_EQ(ends, 1);
}

TEST(SubscriptionTest, EndsWhenAnotherOneTakesItsPlace) {
    int ends = 0;
    Subscription subscription{[&] { ++ends; }};
    subscription = Subscription{};
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(subscription);
}

}  // namespace
}  // namespace vantor::published_test
