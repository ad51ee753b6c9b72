#include "platform/sysctl.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/simulated/simulated_kernel_values.h"

namespace vantor::sysctl_test {
namespace {

std::vector<std::byte> bytes(std::string_view text) {
    std::vector<std::byte> result;
    for (const char c : text)
        result.push_back(static_cast<std::byte>(c));
    return result;
}

class SysctlTest : public testing::Test {
  protected:
    SimulatedKernelValues values;
    Sysctl sysctl{values};
};

TEST_F(SysctlTest, GivesATextWithoutItsFinalZero) {
    values.setText("hw.model", "SimBook1,1");
    EXPECT_EQ(sysctl.string("hw.model"), "SimBook1,1");
}

TEST_F(SysctlTest, EndsATextAtItsFirstZeroByte) {
    values.setBytes("name", bytes(std::string_view("abc\0def", 7)));
    EXPECT_EQ(sysctl.string("name"), "abc");
}

TEST_F(SysctlTest, TakesATextThatHasNoZeroByte) {
    values.setBytes("name", bytes("abc"));
    EXPECT_EQ(sysctl.string("name"), "abc");
}

TEST_F(SysctlTest, GivesAnEmptyTextForAZeroByteAlone) {
    values.setText("name", "");
    EXPECT_EQ(sysctl.string("name"), "");
}

TEST_F(SysctlTest, GivesNothingForAValueOfNoBytes) {
    values.setBytes("name", {});
    EXPECT_EQ(sysctl.string("name"), std::nullopt);
    EXPECT_EQ(values.valueReads("name"), 0);
}

TEST_F(SysctlTest, GivesNothingForAnUnknownName) {
    EXPECT_EQ(sysctl.string("no.such"), std::nullopt);
    EXPECT_EQ(sysctl.int32("no.such"), std::nullopt);
    EXPECT_EQ(sysctl.uint64("no.such"), std::nullopt);
}

TEST_F(SysctlTest, GivesNothingForBytesThatAreNotUTF8) {
    values.setText("name", "Caf\xE9");
    EXPECT_EQ(sysctl.string("name"), std::nullopt);
}

TEST_F(SysctlTest, DoesNotMindBrokenBytesAfterTheZero) {
    values.setBytes("name", bytes(std::string_view("abc\0\xFF", 5)));
    EXPECT_EQ(sysctl.string("name"), "abc");
}

struct GrowthRow {
    const char* name;
    int growths;
    std::optional<std::string> text;
    int reads;

    friend void PrintTo(const GrowthRow& row, std::ostream* out) { *out << row.name; }
};

class SysctlGrowth : public testing::TestWithParam<GrowthRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, SysctlGrowth,
                         testing::Values(GrowthRow{"Never", 0, "end", 1},
                                         GrowthRow{"Once", 1, "xxend", 2},
                                         GrowthRow{"Twice", 2, "xxxxend", 3},
                                         GrowthRow{"ThreeTimes", 3, std::nullopt, 3},
                                         GrowthRow{"AtEveryQuestion", 100, std::nullopt, 3}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(SysctlGrowth, OfATextIsFollowedForThreeReads) {
    SimulatedKernelValues values;
    values.setText("name", "end");
    values.growAfterSizeQuestion("name", 2, GetParam().growths);
    EXPECT_EQ(Sysctl(values).string("name"), GetParam().text);
    EXPECT_EQ(values.valueReads("name"), GetParam().reads);
}

struct FailureRow {
    const char* name;
    std::deque<int> errors;  ///< of the calls in turn: size, value, size, value …
    std::optional<std::string> text;
    int reads;

    friend void PrintTo(const FailureRow& row, std::ostream* out) { *out << row.name; }
};

class SysctlFailure : public testing::TestWithParam<FailureRow> {};

// A value that did not grow although its buffer was too small would be read for ever.
INSTANTIATE_TEST_SUITE_P(
    Rows, SysctlFailure,
    testing::Values(FailureRow{"OfTheSizeQuestion", {EPERM}, std::nullopt, 0},
                    FailureRow{"ENOMEMOfTheSizeQuestion", {ENOMEM}, std::nullopt, 0},
                    FailureRow{"OfTheRead", {0, EPERM}, std::nullopt, 1},
                    FailureRow{"TooSmallWithoutGrowth", {0, ENOMEM}, std::nullopt, 1},
                    FailureRow{"OfTheSecondSizeQuestion", {0, ENOMEM, EPERM}, std::nullopt, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(SysctlFailure, GivesNothingAtOnce) {
    SimulatedKernelValues values;
    values.setText("name", "end");
    values.failNext("name", GetParam().errors);
    EXPECT_EQ(Sysctl(values).string("name"), GetParam().text);
    EXPECT_EQ(values.valueReads("name"), GetParam().reads);
}

TEST_F(SysctlTest, GivesNothingWhenTheReadAfterAGrowthFailsOtherwise) {
    values.setText("name", "end");
    values.growAfterSizeQuestion("name", 2, 1);
    values.failNext("name", {0, 0, 0, EPERM});
    EXPECT_EQ(sysctl.string("name"), std::nullopt);
    EXPECT_EQ(values.valueReads("name"), 2);
}

TEST_F(SysctlTest, ReadsIntegersOfTheirExactSize) {
    values.setInt32("four", -7);
    values.setUInt64("eight", 18'000'000'000'000'000'000U);
    EXPECT_EQ(sysctl.int32("four"), -7);
    EXPECT_EQ(sysctl.uint64("eight"), 18'000'000'000'000'000'000U);
}

struct SizeRow {
    const char* name;
    std::size_t size;

    friend void PrintTo(const SizeRow& row, std::ostream* out) { *out << row.name; }
};

class SysctlIntegerSize : public testing::TestWithParam<SizeRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, SysctlIntegerSize,
                         testing::Values(SizeRow{"None", 0}, SizeRow{"OneByte", 1},
                                         SizeRow{"TwoBytes", 2}, SizeRow{"ThreeBytes", 3},
                                         SizeRow{"FourBytes", 4}, SizeRow{"FiveBytes", 5},
                                         SizeRow{"SevenBytes", 7}, SizeRow{"EightBytes", 8},
                                         SizeRow{"NineBytes", 9}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(SysctlIntegerSize, MustBeTheOneAskedFor) {
    SimulatedKernelValues values;
    values.setBytes("name", std::vector<std::byte>(GetParam().size));
    EXPECT_EQ(Sysctl(values).int32("name").has_value(), GetParam().size == 4);
    EXPECT_EQ(Sysctl(values).uint64("name").has_value(), GetParam().size == 8);
}

TEST_F(SysctlTest, GivesNoIntegerWhenTheCallFails) {
    values.setInt32("four", 1);
    values.failNext("four", {EPERM});
    EXPECT_EQ(sysctl.int32("four"), std::nullopt);
    EXPECT_EQ(sysctl.int32("four"), 1);
}

}  // namespace
}  // namespace vantor::sysctl_test
