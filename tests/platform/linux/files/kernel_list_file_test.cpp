#include "platform/linux/files/kernel_list_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/linux/files/kernel_file.h"
#include "support/fake_kernel_tree.h"

namespace vantor::kernel_list_file_test {
namespace {

TEST(KernelListFile, GivesTheContentOfEachMoment) {
    const FakeKernelTree tree;
    KernelListFile file(tree.roots().proc / "list");
    EXPECT_EQ(file.read(), std::nullopt);
    tree.proc("list", "one\n");
    EXPECT_EQ(file.read(), "one\n");
    tree.proc("list", "one\ntwo\n");
    EXPECT_EQ(file.read(), "one\ntwo\n");
    tree.proc("list", "");
    EXPECT_EQ(file.read(), "");
}

TEST(KernelListFile, GrowsWithTheContent) {
    const FakeKernelTree tree;
    KernelListFile file(tree.roots().proc / "list");
    for (const std::size_t size : {16383U, 16384U, 16385U, 300U * 1024, 3U}) {
        const std::string content(size, 'x');
        tree.proc("list", content);
        EXPECT_EQ(file.read(), content);
    }
}

TEST(KernelListFile, StopsAtItsLimit) {
    const FakeKernelTree tree;
    for (const std::size_t limit : {std::size_t{10}, std::size_t{20'000}, std::size_t{65'536}}) {
        KernelListFile file(tree.roots().proc / "list", limit);
        for (const std::size_t size : {limit - 1, limit, limit + 1, 100'000 + limit}) {
            tree.proc("list", std::string(size, 'x'));
            const auto content = file.read();
            ASSERT_TRUE(content);
            EXPECT_EQ(content->size(), std::min(size, limit));
        }
    }
}

TEST(KernelListFile, IsAbsentWithoutAFileUntilThereIsOne) {
    const FakeKernelTree tree;
    KernelListFile file(tree.roots().proc / "list");
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_EQ(file.read(), std::nullopt);
    tree.proc("list", "there\n");
    EXPECT_EQ(file.read(), "there\n");
}

TEST(KernelListFile, IsAbsentWhenItIsAFolder) {
    const FakeKernelTree tree;
    tree.proc("folder/file", "x");
    KernelListFile file(tree.roots().proc / "folder");
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_EQ(file.read(), std::nullopt);
}

// The kernel gives this one in pieces, however large the buffer.
TEST(LiveKernelListFile, HasEveryPieceOfARealList) {
    KernelListFile file("/proc/self/smaps");
    const auto content = file.read();
    ASSERT_TRUE(content);
    ASSERT_GT(content->size(), 4096U);
    EXPECT_EQ(content->back(), '\n');
    EXPECT_NE(content->find("[stack]"), std::string_view::npos) << "the list ends with the stack";
}

}  // namespace
}  // namespace vantor::kernel_list_file_test
