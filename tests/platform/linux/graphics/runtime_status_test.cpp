#include "platform/linux/graphics/runtime_status.h"

#include <gtest/gtest.h>

#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::runtime_status_test {
namespace {

TEST(RuntimeStatusText, SaysAwakeOnlyWhenActiveOrNotManaged) {
    for (const char* const text : {"active\n", "unsupported\n"})
        EXPECT_TRUE(saysAwake(text)) << text;
    for (const char* const text : {"suspended\n", "suspending\n", "resuming\n", "error\n", "", "\n",
                                   "active", "activ\n", "active\n\n", "Active\n", "inactive\n"})
        EXPECT_FALSE(saysAwake(text)) << text;
}

class RuntimeStatusFile : public testing::Test {
  protected:
    FakeKernelTree tree;
    RuntimeStatus status{tree.roots().sys / "card"};

    void say(const std::string& text) const { tree.sys("card/power/runtime_status", text); }
};

TEST_F(RuntimeStatusFile, IsAskedAnewEachTime) {
    say("active\n");
    EXPECT_TRUE(status.isAwake());
    say("suspended\n");
    EXPECT_FALSE(status.isAwake());
    say("resuming\n");
    EXPECT_FALSE(status.isAwake());
    say("active\n");
    EXPECT_TRUE(status.isAwake());
}

TEST_F(RuntimeStatusFile, IsNotThereWhereNothingSleeps) {
    EXPECT_TRUE(status.isAwake());
    say("suspended\n");
    EXPECT_FALSE(status.isAwake());
}

TEST_F(RuntimeStatusFile, ThatCannotBeReadMeansHandsOff) {
    tree.sys("card/power/runtime_status/x", "");  // a folder
    EXPECT_FALSE(status.isAwake());
    EXPECT_FALSE(status.isAwake());
}

TEST_F(RuntimeStatusFile, ThatIsHugeMeansHandsOff) {
    say(std::string(100'000, 'a'));
    EXPECT_FALSE(status.isAwake());
}

}  // namespace
}  // namespace vantor::runtime_status_test
