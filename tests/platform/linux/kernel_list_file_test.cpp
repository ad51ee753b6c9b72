#include "platform/linux/kernel_list_file.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/linux/kernel_file.h"
#include "support/fake_kernel_tree.h"

namespace vantor {
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
    for (const std::size_t size : {16383U, 16384U, 16385U, 200000U, 3U}) {
        const std::string content(size, 'x');
        tree.proc("list", content);
        EXPECT_EQ(file.read(), content);
    }
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
}  // namespace vantor
