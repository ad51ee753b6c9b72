#include "platform/macos/system/mac_name_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/macos/frameworks/frameworks_test_support.h"

namespace vantor::mac_name_order_test {
namespace {

using testing::ElementsAre;

using MacNameOrderTest = FakeDarwinTest;

const std::vector<std::string> names{"beta", "Alpha", "alpha", "Beta2", "Alpha"};

TEST_F(MacNameOrderTest, HasCaseDecideWhereNothingElseDoes) {
    MacNameOrder order(darwin.frameworks());
    EXPECT_THAT(order.ranks(names), ElementsAre(2, 0, 1, 3, 0));
}

TEST_F(MacNameOrderTest, WithoutTheFrameworkIsThatOfTheBytes) {
    const auto frameworks = darwin.frameworks();
    frameworks->coreFoundation.stringCompare = nullptr;
    MacNameOrder order(frameworks);
    EXPECT_THAT(order.ranks(names), ElementsAre(3, 0, 2, 1, 0));
}

TEST_F(MacNameOrderTest, SurvivesEachFunctionMissing) {
    withEachFunctionMissing([](const std::shared_ptr<const Frameworks>& some) {
        MacNameOrder order(some);
        EXPECT_EQ(order.ranks(names).size(), names.size());
    });
}

TEST_F(MacNameOrderTest, SurvivesEachCallFailing) {
    withEachCallFailing(6, [](const std::shared_ptr<const Frameworks>& some) {
        MacNameOrder order(some);
        EXPECT_EQ(order.ranks(names).size(), names.size());
    });
}

TEST_F(MacNameOrderTest, KeepsNothingOfManyQuestions) {
    MacNameOrder order(darwin.frameworks());
    manyTimes([&] { order.ranks(names); });
}

}  // namespace
}  // namespace vantor::mac_name_order_test
