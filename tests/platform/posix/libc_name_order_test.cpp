#include "platform/posix/libc_name_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace vantor::libc_name_order_test {
namespace {

using testing::ElementsAre;

/// In the one locale that every machine has.
std::vector<std::string> sorted(std::vector<std::string> names,
                                const std::string& locale = "C.UTF-8") {
    const auto ranks = LibcNameOrder(locale).ranks(names);
    std::vector<std::string> result(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        result.at(ranks[i]) = names[i];
    return result;
}

TEST(LibcNameOrder, HasNumbersByTheirValue) {
    EXPECT_THAT(sorted({"disk10", "disk2", "disk", "disk 10", "disk 9"}),
                ElementsAre("disk", "disk 9", "disk 10", "disk2", "disk10"));
    EXPECT_THAT(sorted({"br1.10", "br1.9", "en10a1", "en2a9"}),
                ElementsAre("br1.9", "br1.10", "en2a9", "en10a1"));
    EXPECT_THAT(sorted({"a100000000000000000000", "a99999999999999999999", "a0", "a00001"}),
                ElementsAre("a0", "a00001", "a99999999999999999999", "a100000000000000000000"));
}

TEST(LibcNameOrder, HasTheSameNumberWithZerosBeforeItAsEqual) {
    const std::vector<std::string> names{"a007", "a7", "a8", "a000"};
    EXPECT_THAT(LibcNameOrder("C.UTF-8").ranks(names), ElementsAre(1, 1, 2, 0));
}

TEST(LibcNameOrder, IsThatOfTheLanguageWhereTheMachineIsSetUpForIt) {
    if (!::newlocale(LC_COLLATE_MASK, "de_DE.UTF-8", nullptr))
        GTEST_SKIP() << "this machine is not set up for that language";
    EXPECT_THAT(sorted({"Zoo", "\u00C4rla", "Arla", "arla10", "Arla2"}, "de_DE.UTF-8"),
                ElementsAre("Arla", "\u00C4rla", "Arla2", "arla10", "Zoo"));
}

TEST(LibcNameOrder, WithoutTheLocaleIsThatOfTheBytes) {
    EXPECT_THAT(sorted({"b2", "a10", "B", "a9"}, "xx_not a locale"),
                ElementsAre("B", "a9", "a10", "b2"));
}

TEST(LibcNameOrder, TakesBytesThatAreNoTextAndLongNames) {
    EXPECT_THAT(sorted({"b", "a\xFF\xFE", "a", ""}), ElementsAre("", "a", "a\xFF\xFE", "b"));
    EXPECT_THAT(sorted({std::string(5000, 'x'), std::string(4999, 'x')}),
                ElementsAre(std::string(4999, 'x'), std::string(5000, 'x')));
}

}  // namespace
}  // namespace vantor::libc_name_order_test
