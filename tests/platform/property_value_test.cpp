#include "platform/property_value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "support/named_row.h"

namespace vantor::property_value_test {
namespace {

struct Row : NamedRow {
    PropertyValue value;
    std::optional<std::int64_t> integer;
    std::optional<bool> boolean;
    std::optional<std::string> text;
};

class PropertyValueKind : public testing::TestWithParam<Row> {};

constexpr auto none = std::nullopt;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

INSTANTIATE_TEST_SUITE_P(
    Rows, PropertyValueKind,
    testing::Values(
        Row{{"Integer"}, 7, 7, none, none}, Row{{"Negative"}, -7, -7, none, none},
        Row{{"Largest"}, most, most, none, none}, Row{{"Smallest"}, least, least, none, none},
        Row{{"WholeFloat"}, 12.0, 12, none, none}, Row{{"NegativeZero"}, -0.0, 0, none, none},
        Row{{"BrokenFloat"}, 12.5, none, none, none},
        Row{{"FloatAtTheBound"}, 9223372036854775808.0, none, none, none},
        Row{{"FloatBelowTheBound"},
            std::nextafter(9223372036854775808.0, 0.0),
            std::int64_t{9223372036854774784},
            none,
            none},
        Row{{"SmallestFloat"}, -9223372036854775808.0, least, none, none},
        Row{{"FloatBelowTheSmallest"},
            std::nextafter(-9223372036854775808.0, -infinity),
            none,
            none,
            none},
        Row{{"Infinite"}, infinity, none, none, none},
        Row{{"NotANumber"}, std::numeric_limits<double>::quiet_NaN(), none, none, none},
        Row{{"True"}, true, none, true, none}, Row{{"False"}, false, none, false, none},
        Row{{"Text"}, "12", none, none, "12"},
        Row{{"StandardText"}, std::string("a"), none, none, "a"},
        Row{{"EmptyText"}, "", none, none, ""},
        Row{{"Data"}, PropertyValue(PropertyValue::Data{std::byte{1}}), none, none, none},
        Row{{"Array"}, PropertyValue(PropertyValue::Array{1, 2}), none, none, none},
        Row{{"Dictionary"}, PropertyValue(PropertyDictionary{{"a", 1}}), none, none, none}),
    rowName<Row>);

TEST_P(PropertyValueKind, IsOnlyWhatItIs) {
    const Row& row = GetParam();
    EXPECT_EQ(row.value.integer(), row.integer);
    EXPECT_EQ(row.value.boolean(), row.boolean);
    const std::string* const text = row.value.text();
    EXPECT_EQ(text ? std::optional(*text) : std::nullopt, row.text);
    EXPECT_EQ(row.value.dictionary() != nullptr, row.name == "Dictionary");
}

TEST(PropertyDictionary, FindsValuesByKey) {
    const PropertyDictionary dictionary{{"number", 7},
                                        {"truth", true},
                                        {"text", "seven"},
                                        {"inner", PropertyValue(PropertyDictionary{{"deep", 9}})}};
    EXPECT_EQ(find(dictionary, "missing"), nullptr);
    EXPECT_EQ(find(dictionary, "Number"), nullptr) << "letters of either case are different keys";
    EXPECT_EQ(findInteger(dictionary, "number"), 7);
    EXPECT_EQ(findInteger(dictionary, "text"), std::nullopt);
    EXPECT_EQ(findInteger(dictionary, "missing"), std::nullopt);
    EXPECT_EQ(findBoolean(dictionary, "truth"), true);
    EXPECT_EQ(findBoolean(dictionary, "number"), std::nullopt);
    EXPECT_EQ(findBoolean(dictionary, "missing"), std::nullopt);
    ASSERT_NE(findText(dictionary, "text"), nullptr);
    EXPECT_EQ(*findText(dictionary, "text"), "seven");
    EXPECT_EQ(findText(dictionary, "truth"), nullptr);
    EXPECT_EQ(findText(dictionary, "missing"), nullptr);
    ASSERT_NE(find(dictionary, "inner"), nullptr);
    EXPECT_EQ(findInteger(*find(dictionary, "inner")->dictionary(), "deep"), 9);
}

TEST(PropertyDictionary, FindsTheFirstOfTwoValuesUnderOneKey) {
    EXPECT_EQ(findInteger({{"a", 1}, {"a", 2}}, "a"), 1);
}

}  // namespace
}  // namespace vantor::property_value_test
