#include "platform/macos/system/product_version.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace vantor::product_version_test {
namespace {

using Numbers = std::array<int, 3>;

std::optional<Numbers> numbersOf(std::string_view text) {
    const auto version = parseProductVersion(text);
    return version ? std::optional(Numbers{version->major, version->minor, version->patch})
                   : std::nullopt;
}

TEST(ProductVersion, HasTwoOrThreeNumbers) {
    EXPECT_EQ(numbersOf("14.5.1"), (Numbers{14, 5, 1}));
    EXPECT_EQ(numbersOf("11.0"), (Numbers{11, 0, 0})) << "the third is 0 where it is missing";
    EXPECT_EQ(numbersOf("10.16"), (Numbers{10, 16, 0}));
}

TEST(ProductVersion, IsAbsentWhenItIsAnythingElse) {
    for (const char* const text :
         {"", "14", "14.", ".5", "14..1", "14.5.", "14.5.1.2", "14.5 ", " 14.5", "14.x", "-1.5",
          "14.-5", "+14.5", "14.5beta", "99999999999.0", "14,5", "0x14.5"})
        EXPECT_EQ(numbersOf(text), std::nullopt) << text;
    EXPECT_EQ(numbersOf(std::string_view("14.5\0", 5)), std::nullopt);
}

TEST(ProductVersion, IsComparedNumberByNumber) {
    EXPECT_TRUE(isAtLeast({12, 0, 0}, {12, 0, 0}));
    EXPECT_TRUE(isAtLeast({12, 0, 1}, {12, 0, 0}));
    EXPECT_TRUE(isAtLeast({13, 0, 0}, {12, 9, 9}));
    EXPECT_TRUE(isAtLeast({12, 10, 0}, {12, 9, 0}));
    EXPECT_FALSE(isAtLeast({11, 7, 10}, {12, 0, 0}));
    EXPECT_FALSE(isAtLeast({12, 0, 0}, {12, 0, 1}));
    EXPECT_FALSE(isAtLeast({0, 0, 0}, {12, 0, 0})) << "one that is not known";
}

}  // namespace
}  // namespace vantor::product_version_test
