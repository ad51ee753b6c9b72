#include "platform/linux/files/attribute_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::attribute_file_test {
namespace {

class AttributeFile : public testing::Test {
  protected:
    AttributeText read(const char* name) {
        return readAttribute(AT_FDCWD, (tree.roots().sys / name).c_str());
    }
    FakeKernelTree tree;
};

TEST_F(AttributeFile, GivesTheTextWithoutTheLinesEnd) {
    tree.sys("a", "Not charging\n");
    EXPECT_EQ(read("a").text, "Not charging");
    EXPECT_TRUE(read("a").wasRead());
}

TEST_F(AttributeFile, AnEmptyFileIsAnEmptyText) {
    tree.sys("a", "");
    EXPECT_TRUE(read("a").wasRead());
    EXPECT_EQ(read("a").text, "");
}

TEST_F(AttributeFile, GivesTheFrontOfALargeFile) {
    tree.sys("a", std::string(10000, 'x'));
    EXPECT_EQ(read("a").text, std::string(4096, 'x'));
}

TEST_F(AttributeFile, AMissingFileIsGone) {
    EXPECT_FALSE(read("a").wasRead());
    EXPECT_TRUE(read("a").isGone());
}

TEST_F(AttributeFile, AFileThatCannotBeReadIsNotGone) {
    std::filesystem::create_directory(tree.roots().sys / "a");
    EXPECT_EQ(read("a").error, EISDIR);
    EXPECT_FALSE(read("a").wasRead());
    EXPECT_FALSE(read("a").isGone());
}

TEST(AttributeText, ADeviceThatWentAwayIsGone) {
    EXPECT_TRUE((AttributeText{{}, ENODEV}).isGone());
    EXPECT_TRUE((AttributeText{{}, ENXIO}).isGone());
    EXPECT_FALSE((AttributeText{{}, EIO}).isGone());
    EXPECT_FALSE((AttributeText{{}, 0}).isGone());
}

}  // namespace
}  // namespace vantor::attribute_file_test
