#include "platform/linux/linux_dynamic_store.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "platform/linux/kernel_list.h"
#include "support/fake_kernel_tree.h"

namespace vantor {
namespace {

constexpr auto ipv4Key = "State:/Network/Global/IPv4";
constexpr auto ipv6Key = "State:/Network/Global/IPv6";

std::string route4(const std::string& name) {
    return name + "\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n";
}
std::string route6(const std::string& name) {
    const std::string zero(32, '0');
    return zero + " 00 " + zero + " 00 " + zero + " 00000400 00000001 00000000 00000003 " + name +
           '\n';
}

class LinuxDynamicStoreTest : public testing::Test {
  protected:
    std::string primary(const char* key) {
        const PropertyValue* const value = store.copyValue(key);
        if (!value) return "(none)";
        const std::string* const name = findText(*value->dictionary(), "PrimaryInterface");
        return name ? *name : "(no name)";
    }

    FakeKernelTree tree;
    LinuxDynamicStore store{tree.roots()};
};

TEST_F(LinuxDynamicStoreTest, AnswersEachProtocolFromItsOwnRoutes) {
    tree.proc("net/route", route4("eth0"));
    tree.proc("net/ipv6_route", route6("wlan0"));
    EXPECT_EQ(primary(ipv4Key), "eth0");
    EXPECT_EQ(primary(ipv6Key), "wlan0");
}

TEST_F(LinuxDynamicStoreTest, KnowsNoOtherKey) {
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(primary("State:/Network/Global/DNS"), "(none)");
    EXPECT_EQ(primary(""), "(none)");
}

TEST_F(LinuxDynamicStoreTest, FollowsTheRoutes) {
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(primary(ipv4Key), "eth0");
    tree.proc("net/route", "");
    EXPECT_EQ(primary(ipv4Key), "(none)");
    tree.proc("net/route", route4("wlan0"));
    EXPECT_EQ(primary(ipv4Key), "wlan0");
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(primary(ipv4Key), "eth0");
}

TEST_F(LinuxDynamicStoreTest, HasNoneUntilThereAreRoutes) {
    EXPECT_EQ(primary(ipv4Key), "(none)") << "a kernel without the protocol has no file";
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(primary(ipv4Key), "eth0");
}

class KernelListTest : public testing::Test {
  protected:
    void say(const std::string& content) { tree.proc("list", content); }

    FakeKernelTree tree;
    KernelList list{tree.roots().proc / "list"};
};

TEST_F(KernelListTest, ReadsTheWholeContentAgainEachTime) {
    say("one\n");
    EXPECT_EQ(list.read(), "one\n");
    say("another\n");
    EXPECT_EQ(list.read(), "another\n");
    say("");
    EXPECT_EQ(list.read(), "");
}

TEST_F(KernelListTest, ReadsPastItsFirstBuffer) {
    for (const std::size_t size : {16U * 1024 - 1, 16U * 1024, 16U * 1024 + 1, 300U * 1024}) {
        const std::string content(size, 'x');
        say(content);
        EXPECT_EQ(list.read(), content) << size;
    }
}

TEST_F(KernelListTest, StopsAtItsLimit) {
    say(std::string(KernelList::limit + 5, 'x'));
    ASSERT_TRUE(list.read());
    EXPECT_EQ(list.read()->size(), KernelList::limit);
}

TEST_F(KernelListTest, IsAbsentWithoutAFileAndOfAFolder) {
    EXPECT_EQ(list.read(), std::nullopt);
    EXPECT_EQ(KernelList(tree.roots().proc).read(), std::nullopt);
    say("there\n");
    EXPECT_EQ(list.read(), "there\n");
}

// The kernel hands this list over a page at a time.
TEST(KernelList, ReadsAListOfTheLiveKernelToItsEnd) {
    KernelList list("/proc/self/smaps");
    const auto text = list.read();
    if (!text) GTEST_SKIP() << "this kernel has no /proc/self/smaps";
    EXPECT_GT(text->size(), 4096u);
    EXPECT_NE(text->find("[stack]"), std::string_view::npos) << "which is among the last";
}

}  // namespace
}  // namespace vantor
