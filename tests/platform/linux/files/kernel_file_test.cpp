#include "platform/linux/files/kernel_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <ostream>
#include <string>

#include "platform/file_descriptor.h"
#include "support/fake_kernel_tree.h"

namespace vantor::kernel_file_test {
namespace {

class KernelFileTest : public testing::Test {
  protected:
    FakeKernelTree tree;
    KernelFile file{tree.roots().proc / "stat"};
};

TEST(ReadKernelFile, ReadsListsThatComeAPageAtATimeToTheirEnd) {
    // The kernel hands over a page's worth of such a list at most, however large the buffer.
    const auto maps = readKernelFile("/proc/self/smaps");
    ASSERT_TRUE(maps);
    EXPECT_GT(maps->size(), 8192u);
    EXPECT_NE(maps->find("[stack]"), std::string::npos) << "near the end of the list";
}

TEST_F(KernelFileTest, OfAnAttributeWithoutAnEndAPageAtMostIsRead) {
    tree.proc("stat", std::string(std::size_t{1} << 20, 'x'));
    const auto text = readKernelText(tree.roots().proc / "stat");
    ASSERT_TRUE(text);
    EXPECT_EQ(text->size(), 65536u);
    EXPECT_EQ(readKernelFile(tree.roots().proc / "stat", 5000), std::string(5000, 'x'));
}

TEST_F(KernelFileTest, IsReadFromItsStartEachTime) {
    tree.proc("stat", "first");
    EXPECT_EQ(file.read(), "first");
    EXPECT_EQ(file.read(), "first");
}

TEST_F(KernelFileTest, ShowsWhatTheKernelSaysNow) {
    tree.proc("stat", "a long first answer");
    file.read();
    tree.proc("stat", "short");
    EXPECT_EQ(file.read(), "short");
}

TEST_F(KernelFileTest, IsAbsentUntilItAppears) {
    EXPECT_EQ(file.read(), std::nullopt);
    tree.proc("stat", "now");
    EXPECT_EQ(file.read(), "now");
}

TEST_F(KernelFileTest, StaysOpenBetweenReads) {
    tree.proc("stat", "kept");
    file.read();
    tree.removeProc("stat");
    EXPECT_EQ(file.read(), "kept");
}

TEST_F(KernelFileTest, MayBeEmpty) {
    tree.proc("stat", "");
    EXPECT_EQ(file.read(), "");
}

TEST_F(KernelFileTest, IsAbsentWhenItCannotBeRead) {
    std::filesystem::create_directory(tree.roots().proc / "stat");
    EXPECT_EQ(file.read(), std::nullopt);
}

TEST_F(KernelFileTest, OpensAgainAfterAReadThatFailed) {
    const auto path = tree.roots().proc / "stat";
    std::filesystem::create_directory(path);
    EXPECT_EQ(file.read(), std::nullopt);
    std::filesystem::remove(path);
    tree.proc("stat", "a file at last");
    EXPECT_EQ(file.read(), "a file at last");
}

class KernelFileSize : public testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(AroundTheBuffer, KernelFileSize,
                         testing::Values(16383, 16384, 16385, 32768, 100000));

TEST_P(KernelFileSize, DoesNotCutTheContent) {
    const FakeKernelTree tree;
    std::string content(GetParam(), '.');
    content.back() = 'e';
    tree.proc("stat", content);
    KernelFile file(tree.roots().proc / "stat");
    EXPECT_EQ(file.read(), content);
    EXPECT_EQ(file.read(), content);
}

struct TextRow {
    const char* name;
    std::string content;
    std::optional<std::string> text;

    friend void PrintTo(const TextRow& row, std::ostream* out) { *out << row.name; }
};

class KernelText : public testing::TestWithParam<TextRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, KernelText,
    testing::Values(TextRow{"LineEnd", "Model 3\n", "Model 3"},
                    TextRow{"DeviceTreeZero", std::string("Board 4\0", 8), "Board 4"},
                    TextRow{"BlanksAround", " \tModel\r\n", "Model"},
                    TextRow{"BlanksInside", "A  B\tC\n", "A  B\tC"},
                    TextRow{"Empty", "", std::nullopt}, TextRow{"BlanksAlone", " \n", std::nullopt},
                    TextRow{"ZeroAlone", std::string(1, '\0'), std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(KernelText, IsReadWithoutWhatSurroundsIt) {
    const FakeKernelTree tree;
    tree.sys("text", GetParam().content);
    EXPECT_EQ(readKernelText(tree.roots().sys / "text"), GetParam().text);
    EXPECT_EQ(readKernelFile(tree.roots().sys / "text"), GetParam().content);
}

TEST(KernelText, IsAbsentWithoutItsFile) {
    EXPECT_EQ(readKernelText("/no/such/file"), std::nullopt);
    EXPECT_EQ(readKernelFile("/no/such/file"), std::nullopt);
}

bool isOpen(int fd) {
    return ::lseek(fd, 0, SEEK_CUR) >= 0 || errno != EBADF;
}

TEST(FileDescriptor, ClosesWhatItOwnsOnce) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    {
        FileDescriptor first(ends[0]);
        const FileDescriptor second(ends[1]);
        const FileDescriptor moved(std::move(first));
        EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move): a moved-from one owns nothing
        EXPECT_EQ(moved.get(), ends[0]);
        EXPECT_TRUE(isOpen(ends[0]));
    }
    EXPECT_FALSE(isOpen(ends[0]));
    EXPECT_FALSE(isOpen(ends[1]));
}

TEST(FileDescriptor, ClosesItsOldOneWhenItTakesAnother) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    FileDescriptor descriptor(ends[0]);
    descriptor = FileDescriptor(ends[1]);
    EXPECT_FALSE(isOpen(ends[0]));
    EXPECT_TRUE(isOpen(ends[1]));
    descriptor.reset();
    EXPECT_FALSE(isOpen(ends[1]));
    EXPECT_FALSE(descriptor);
}

}  // namespace
}  // namespace vantor::kernel_file_test
