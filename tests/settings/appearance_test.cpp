#include "settings/appearance.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::appearance_test {
namespace {

TEST(Appearance, OffersItsCasesInOrder) {
    ASSERT_EQ(allAppearances.size(), 3U);
    EXPECT_EQ(appearanceText(allAppearances[0]), "system");
    EXPECT_EQ(appearanceText(allAppearances[1]), "dark");
    EXPECT_EQ(appearanceText(allAppearances[2]), "light");
}

TEST(Appearance, IsFoundAgainByItsText) {
    for (const Appearance appearance : allAppearances) {
        EXPECT_EQ(appearanceFromText(appearanceText(appearance)), appearance);
    }
}

struct Row {
    const char* name;
    const char* text;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class OtherText : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(Rows, OtherText,
                         testing::Values(Row{"Empty", ""}, Row{"CapitalisedLight", "Light"},
                                         Row{"CapitalisedSystem", "System"}, Row{"Blank", "light "},
                                         Row{"Front", "sys"}, Row{"Unknown", "sepia"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(OtherText, IsDark) {
    EXPECT_EQ(appearanceFromText(GetParam().text), Appearance::dark);
}

}  // namespace
}  // namespace vantor::appearance_test
