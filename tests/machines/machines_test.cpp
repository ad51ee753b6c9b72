#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <string>

#include "support/line_difference.h"
#include "support/recorded_tree.h"

#include "machines/machine_document.h"

/// Everything that is said of each recorded machine, compared with what was agreed upon.
///
/// With VANTOR_UPDATE_GOLDENS in the environment, what is said becomes what is agreed upon; the
/// target update_goldens sets it.
namespace vantor::machines_test {
namespace {

std::string testNameOf(const testing::TestParamInfo<std::string>& machine) {
    std::string name = machine.param;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
}

class RecordedMachineDocument : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Of, RecordedMachineDocument, testing::ValuesIn(RecordedTree::names()),
                         testNameOf);

TEST_P(RecordedMachineDocument, IsAsAgreed) {
    const auto path = RecordedTree::recording(GetParam()) / "golden.json";
    const std::string actual = describeRecordedMachine(GetParam());
    if (std::getenv("VANTOR_UPDATE_GOLDENS")) {
        std::ofstream(path, std::ios::binary) << actual;
        return;
    }
    const std::string agreed = std::filesystem::exists(path) ? readRecordedFile(path) : "";
    EXPECT_TRUE(agreed == actual) << path.string() << ": - is agreed, + is said now\n"
                                  << lineDifference(agreed, actual);
}

TEST_P(RecordedMachineDocument, IsTheSameEveryTime) {
    EXPECT_EQ(describeRecordedMachine(GetParam()), describeRecordedMachine(GetParam()));
}

TEST(LineDifference, IsEmptyForEqualTexts) {
    EXPECT_EQ(lineDifference("a\nb\n", "a\nb\n"), "");
    EXPECT_EQ(lineDifference("", ""), "");
}

TEST(LineDifference, TellsWhatOnlyOneOfThemHas) {
    EXPECT_EQ(lineDifference("a\nb\nc\n", "a\nx\nc\n"), "@@ line 1 @@\n a\n-b\n+x\n c\n");
    EXPECT_EQ(lineDifference("", "a\n"), "@@ line 1 @@\n+a\n");
}

TEST(LineDifference, PassesOverWhatIsFarFromADifference) {
    EXPECT_EQ(lineDifference("a\n1\n2\n3\n4\n5\n6\n7\n8\nb\n", "x\n1\n2\n3\n4\n5\n6\n7\n8\ny\n"),
              "@@ line 1 @@\n-a\n+x\n 1\n 2\n 3\n@@ line 8 @@\n 6\n 7\n 8\n-b\n+y\n");
}

}  // namespace
}  // namespace vantor::machines_test
