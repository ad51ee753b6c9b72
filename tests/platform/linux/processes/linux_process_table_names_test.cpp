#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/linux/processes/process_tree.h"

/// What processes are called, and when that may have changed.
namespace vantor::linux_process_table_names_test {
namespace {

class LinuxProcessTableNamesTest : public testing::Test, protected ProcessTree {
  protected:
    LinuxProcessTableNamesTest() { start(50); }

    std::string path(std::int32_t pid = 50) {
        const int count = processes.path(pid, buffer);
        return count < 1 ? "none" : std::string(buffer.data(), static_cast<std::size_t>(count));
    }
    std::string name(std::size_t room = 1024) {
        const int count = processes.name(50, std::span(buffer).first(room));
        return count < 1 ? "none" : std::string(buffer.data(), static_cast<std::size_t>(count));
    }
    void pass() {
        ProcessTable::TaskAllInfo info;
        processes.listAllPIDs({});
        processes.taskAllInfo(50, info);
    }

    std::array<char, 4096> buffer{};
    LinuxProcessTable processes = ownTable();
};

TEST_F(LinuxProcessTableNamesTest, ThePathIsWhereTheExecutableLinkPoints) {
    tree.linkProc("50/exe", "/usr/bin/sleep");
    EXPECT_EQ(path(), "/usr/bin/sleep");
}

TEST_F(LinuxProcessTableNamesTest, ADeletedExecutableKeepsItsPath) {
    tree.linkProc("50/exe", "/tmp/my tool (deleted)");
    EXPECT_EQ(path(), "/tmp/my tool");
    tree.linkProc("50/exe", "/tmp/tool (deleted) (deleted)");
    EXPECT_EQ(path(), "/tmp/tool (deleted)");
    tree.linkProc("50/exe", "/tmp/(deleted)");
    EXPECT_EQ(path(), "/tmp/(deleted)");
    tree.linkProc("50/exe", " (deleted)");
    EXPECT_EQ(path(), "none");
}

TEST_F(LinuxProcessTableNamesTest, WithoutTheLinkThereIsNoPath) {
    EXPECT_EQ(path(), "none");
    EXPECT_EQ(path(51), "none");
    tree.proc("50/exe", "no link");
    EXPECT_EQ(path(), "none");
}

TEST_F(LinuxProcessTableNamesTest, APathOfFourThousandBytesIsTakenWhole) {
    const std::string target = "/" + std::string(3999, 'p');
    tree.linkProc("50/exe", target);
    EXPECT_EQ(path(), target);
    tree.linkProc("50/exe", target + std::string(95, 'q'));  // as long as a link can be
    EXPECT_EQ(path(), target + std::string(95, 'q'));
}

TEST_F(LinuxProcessTableNamesTest, ALinkThatFillsTheBufferMayBeCutAndIsNone) {
    tree.linkProc("50/exe", "/usr/bin/sleep");
    std::array<char, 14> tight{};
    EXPECT_LT(processes.path(50, tight), 1);
    std::array<char, 15> enough{};
    EXPECT_EQ(processes.path(50, enough), 14);
    EXPECT_LT(processes.path(50, {}), 1);
}

TEST_F(LinuxProcessTableNamesTest, HostileBytesOfAPathPassUnchanged) {
    tree.linkProc("50/exe", "/tmp/) R 1 (\n\xFF");
    EXPECT_EQ(path(), "/tmp/) R 1 (\n\xFF");
}

TEST_F(LinuxProcessTableNamesTest, TheNameIsTheKernelsWithoutItsLineEnd) {
    tree.proc("50/comm", "kworker/0:1\n");
    EXPECT_EQ(name(), "kworker/0:1");
    tree.proc("50/comm", "a\nb\n");
    EXPECT_EQ(name(), "a\nb");
    tree.proc("50/comm", "a\n\n");
    EXPECT_EQ(name(), "a\n") << "only the last one is the file's";
    tree.proc("50/comm", "no end");
    EXPECT_EQ(name(), "no end");
    tree.proc("50/comm", "bad\xFF\n");
    EXPECT_EQ(name(), "bad\xFF");
}

TEST_F(LinuxProcessTableNamesTest, AnEmptyNameIsNone) {
    tree.proc("50/comm", "\n");
    EXPECT_EQ(name(), "none");
}

TEST_F(LinuxProcessTableNamesTest, WithoutItsFileTheNameIsTheOneInStat) {
    add(50, {.name = ") R 1 ("});
    EXPECT_EQ(name(), ") R 1 (");
    tree.proc("50/stat", "damaged");
    EXPECT_EQ(name(), "none");
    tree.removeProc("50/stat");
    EXPECT_EQ(name(), "none");
}

TEST_F(LinuxProcessTableNamesTest, NoMoreOfTheNameIsGivenThanThereIsRoomFor) {
    tree.proc("50/comm", "abcdef\n");
    EXPECT_EQ(name(3), "abc");
    EXPECT_EQ(name(0), "none");
}

TEST_F(LinuxProcessTableNamesTest, OnlyAProcessThatRanMayHaveANewPath) {
    tree.linkProc("50/exe", "/bin/sh");
    pass();
    EXPECT_TRUE(processes.mayHaveNewPath(50)) << "it was never asked for";
    path();
    EXPECT_FALSE(processes.mayHaveNewPath(50));
    pass();
    EXPECT_FALSE(processes.mayHaveNewPath(50));
    clocks->values[50] += 1;
    pass();
    EXPECT_TRUE(processes.mayHaveNewPath(50));
    pass();
    EXPECT_TRUE(processes.mayHaveNewPath(50)) << "until it is asked for";
    path();
    EXPECT_FALSE(processes.mayHaveNewPath(50));
}

TEST_F(LinuxProcessTableNamesTest, AProcessThatNobodyKnowsMayHaveANewPath) {
    EXPECT_TRUE(processes.mayHaveNewPath(50)) << "not listed yet";
    pass();
    EXPECT_TRUE(processes.mayHaveNewPath(51));
}

TEST_F(LinuxProcessTableNamesTest, WithoutClocksAnybodyMayHaveANewPath) {
    tree.removeProc("self");
    LinuxProcessTable blind = table();
    ProcessTable::TaskAllInfo info;
    for (int i = 0; i < 2; ++i) {
        blind.listAllPIDs({});
        blind.taskAllInfo(50, info);
        EXPECT_TRUE(blind.mayHaveNewPath(50));
        blind.path(50, buffer);
    }
}

}  // namespace
}  // namespace vantor::linux_process_table_names_test
