#include "probes/process_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "platform/simulated/simulated_process_table.h"

namespace vantor::process_names_test {
namespace {

struct PathRow {
    const char* title;
    std::string path;
    std::string name;
    std::string reportedName;
    std::string reportedCommand;

    friend void PrintTo(const PathRow& row, std::ostream* out) { *out << row.title; }
};

std::string withZero(std::string before, const std::string& after) {
    before.push_back('\0');
    return before + after;
}

const std::string longest(4096 - 3, 'p');

class ProcessNaming : public testing::TestWithParam<PathRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ProcessNaming,
    testing::Values(
        PathRow{"Plain", "/usr/bin/sleep", "kernel", "sleep", "/usr/bin/sleep"},
        PathRow{"AtTheRoot", "/init", "", "init", "/init"},
        PathRow{"WithoutASlash", "tool", "", "tool", "tool"},
        PathRow{"RelativePieces", "a/../b", "", "b", "a/../b"},
        PathRow{"EndsInASlash", "/opt/app/", "kernel", "app", "/opt/app/"},
        PathRow{"EndsInSlashes", "/opt/app///", "kernel", "app", "/opt/app///"},
        PathRow{"DoubledSlashes", "//opt//app", "kernel", "app", "//opt//app"},
        PathRow{"OnlyASlash", "/", "kernel", "kernel", "/"},
        PathRow{"OnlySlashes", "///", "kernel", "kernel", "///"},
        PathRow{"OnlySlashesAndNoName", "///", "", "PID 42", "///"},
        PathRow{"Blanks", "/opt/My App/run it", "", "run it", "/opt/My App/run it"},
        PathRow{"ABlankForAName", "/opt/ ", "kernel", " ", "/opt/ "},
        PathRow{"NewlineInside", "/tmp/a\nb", "", "a\nb", "/tmp/a\nb"},
        PathRow{"BytesAfterAZero", withZero("/bin/cat", "/bin/dog"), "", "cat", "/bin/cat"},
        PathRow{"ZeroFirst", withZero("", "/bin/dog"), "kernel", "kernel", "kernel"},
        PathRow{"InvalidPath", "/tmp/\xFF/x\xC3", "", "x\xEF\xBF\xBD",
                "/tmp/\xEF\xBF\xBD/x\xEF\xBF\xBD"},
        PathRow{"ACutCharacterBeforeASlash", "/tmp/\xE2\x80/x", "", "x", "/tmp/\xEF\xBF\xBD/x"},
        PathRow{"UTF8", "/opt/\xC3\xA9t\xC3\xA9", "", "\xC3\xA9t\xC3\xA9",
                "/opt/\xC3\xA9t\xC3\xA9"},
        PathRow{"NoPath", "", "kworker/0:1", "kworker/0:1", "kworker/0:1"},
        PathRow{"NoPathAndAnInvalidName", "", "bad\xFEname", "bad\xEF\xBF\xBDname",
                "bad\xEF\xBF\xBDname"},
        PathRow{"NoPathAndAZeroInTheName", "", withZero("short", "er"), "short", "short"},
        PathRow{"InvalidOnlySlashes", "/", "\xFF", "\xEF\xBF\xBD", "/"},
        PathRow{"NoPathAndNoName", "", "", "PID 42", "PID 42"},
        PathRow{"NoPathAndAnEmptyName", "", withZero("", "x"), "PID 42", "PID 42"},
        PathRow{"AsLongAsTheBuffer", "/a/" + longest, "", longest, "/a/" + longest}),
    [](const auto& row) { return std::string(row.param.title); });

TEST_P(ProcessNaming, FollowsThePathAndElseTheKernel) {
    SimulatedProcessTable table;
    table.add(42, GetParam().path).name = GetParam().name;
    ProcessNames names(table);
    ProcessMetadata metadata;
    names.lookUp(42, metadata);
    EXPECT_EQ(metadata.name.string(), GetParam().reportedName);
    EXPECT_EQ(metadata.command.string(), GetParam().reportedCommand);
}

class ProcessNamesTest : public testing::Test {
  protected:
    void lookUp() { names.lookUp(7, metadata); }

    SimulatedProcessTable table;
    SimulatedProcessTable::Process& process = table.add(7, "/usr/bin/tool");
    ProcessNames names{table};
    ProcessMetadata metadata;
};

TEST_F(ProcessNamesTest, APathOfNoBytesOrOfTooManyIsNoPath) {
    process.name = "kernel";
    for (const int length : {0, -1, -2147483647, 4097, 2147483647}) {
        SCOPED_TRACE(length);
        table.claimedPathLength = length;
        lookUp();
        EXPECT_EQ(metadata.name.string(), "kernel");
        EXPECT_EQ(metadata.command.string(), "kernel");
    }
}

TEST_F(ProcessNamesTest, ANameOfNoBytesOrOfTooManyIsNoName) {
    process.path.clear();
    process.name = "kernel";
    for (const int length : {0, -1, -2147483647, 1025, 2147483647}) {
        SCOPED_TRACE(length);
        table.claimedNameLength = length;
        lookUp();
        EXPECT_EQ(metadata.name.string(), "PID 7");
        EXPECT_EQ(metadata.command.string(), "PID 7");
    }
}

TEST_F(ProcessNamesTest, OnlyTheBytesThatWereWrittenCount) {
    lookUp();
    table.claimedPathLength = 8;  // "/usr/bin"
    lookUp();
    EXPECT_EQ(metadata.name.string(), "bin");
    EXPECT_EQ(metadata.command.string(), "/usr/bin");
}

TEST_F(ProcessNamesTest, NothingIsLeftOfALongerTextOfBefore) {
    process.path = "/a/very/long/path/to/something";
    lookUp();
    process.path = "/b";
    lookUp();
    EXPECT_EQ(metadata.command.string(), "/b");
}

TEST_F(ProcessNamesTest, AskTheKernelForItsNameOnlyWithoutAPath) {
    lookUp();
    EXPECT_EQ(table.nameLookups, 0);
    process.path = "//";
    lookUp();
    EXPECT_EQ(table.nameLookups, 1);
}

TEST_F(ProcessNamesTest, UnchangedTextsKeepTheirObjects) {
    lookUp();
    const ProcessMetadata before = metadata;
    lookUp();
    EXPECT_TRUE(metadata.name.isSame(before.name));
    EXPECT_TRUE(metadata.command.isSame(before.command));
    process.path = "/usr/local/bin/tool";
    lookUp();
    EXPECT_EQ(metadata.name.string(), before.name.string());
    EXPECT_EQ(metadata.command.string(), "/usr/local/bin/tool");
}

TEST_F(ProcessNamesTest, UnchangedKernelNamesKeepTheirObjectsToo) {
    process.path.clear();
    for (const char* name : {"kthreadd", "", "bad\xFF"}) {
        process.name = name;
        lookUp();
        const ProcessMetadata before = metadata;
        lookUp();
        EXPECT_TRUE(metadata.name.isSame(before.name)) << name;
        EXPECT_TRUE(metadata.command.isSame(before.name)) << name;
    }
}

TEST_F(ProcessNamesTest, ACommandThatIsTheNameSharesItsText) {
    process.path.clear();
    process.name = "kthreadd";
    lookUp();
    EXPECT_TRUE(metadata.command.isSame(metadata.name));
}

TEST(LastPathComponent, IsTheLastPieceThatIsNotEmpty) {
    EXPECT_EQ(lastPathComponent(""), "");
    EXPECT_EQ(lastPathComponent("/"), "");
    EXPECT_EQ(lastPathComponent("////"), "");
    EXPECT_EQ(lastPathComponent("a"), "a");
    EXPECT_EQ(lastPathComponent("/a"), "a");
    EXPECT_EQ(lastPathComponent("a/"), "a");
    EXPECT_EQ(lastPathComponent("/a/b/c//"), "c");
}

}  // namespace
}  // namespace vantor::process_names_test
