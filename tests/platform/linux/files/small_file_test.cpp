#include "platform/linux/files/small_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::small_file_test {
namespace {

class SmallFileTest : public testing::Test {
  protected:
    FakeKernelTree tree;
    std::array<char, 8> buffer{};
};

TEST_F(SmallFileTest, GivesTheValueOfEachMoment) {
    tree.sys("value", "12\n");
    const SmallFile file(tree.roots().sys / "value");
    EXPECT_TRUE(file.isOpen());
    EXPECT_EQ(file.read(buffer), "12\n");
    tree.sys("value", "345\n");
    EXPECT_EQ(file.read(buffer), "345\n");
    EXPECT_EQ(file.readText(buffer), "345");
    tree.sys("value", "");
    EXPECT_EQ(file.read(buffer), "");
    EXPECT_EQ(file.readText(buffer), std::nullopt);
    tree.sys("value", " \n");
    EXPECT_EQ(file.readText(buffer), std::nullopt);
}

TEST_F(SmallFileTest, IsAbsentWhenItMayBeCut) {
    tree.sys("value", "1234567");
    const SmallFile file(tree.roots().sys / "value");
    EXPECT_EQ(file.read(buffer), "1234567");
    tree.sys("value", "12345678");
    EXPECT_EQ(file.read(buffer), std::nullopt);
}

TEST_F(SmallFileTest, IsAbsentWhenItIsMissing) {
    const SmallFile file(tree.roots().sys / "value");
    EXPECT_FALSE(file.isOpen());
    EXPECT_EQ(file.read(buffer), std::nullopt);
    EXPECT_EQ(file.readText(buffer), std::nullopt);
}

TEST_F(SmallFileTest, IsAbsentWhenItIsAFolder) {
    tree.sys("folder/value", "1\n");
    EXPECT_EQ(SmallFile(tree.roots().sys / "folder").read(buffer), std::nullopt);
}

}  // namespace
}  // namespace vantor::small_file_test
