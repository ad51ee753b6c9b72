#include "platform/reusable_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vantor::reusable_list_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ReusableList, HoldsWhatWasAddedSinceItWasCleared) {
    ReusableList<std::string> list;
    EXPECT_THAT(list.all(), IsEmpty());
    list.add() = "a";
    list.add() = "b";
    EXPECT_EQ(list.back(), "b");
    EXPECT_THAT(list.all(), ElementsAre("a", "b"));
    list.clear();
    EXPECT_TRUE(list.empty());
    EXPECT_THAT(list.all(), IsEmpty());
    list.add() = "c";
    EXPECT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0], "c");
}

TEST(ReusableList, KeepsTheStorageOfEntriesThatGo) {
    ReusableList<std::string> list;
    const std::string text(100, 'x');
    list.add() = text;
    list.add() = text;
    const char* const storage = list[1].data();
    list.clear();
    list.add() = "short";
    list.clear();
    list.add() = text;
    list.add() = text;
    EXPECT_EQ(list[1].data(), storage);
}

TEST(ReusableList, GivesUpPlacesThatMostlyStayVacant) {
    ReusableList<std::string> list;
    const std::string text(100, 'x');
    for (int i = 0; i < 1000; ++i)
        list.add() = text;
    list.clear();
    list.add() = text;
    list.clear();
    list.add();
    EXPECT_EQ(list.add(), "") << "nothing is left there";
}

}  // namespace
}  // namespace vantor::reusable_list_test
