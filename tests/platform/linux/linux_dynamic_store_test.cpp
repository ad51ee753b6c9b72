#include "platform/linux/linux_dynamic_store.h"

#include <gtest/gtest.h>

#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::linux_dynamic_store_test {
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

/// Routes by script.
struct PlayedRoutes : RouteSource {
    bool ipv6DefaultInterface(std::string& name) override {
        name = interface;
        return answers;
    }
    std::string interface;
    bool answers = true;
};

class DynamicStoreWithRoutes : public LinuxDynamicStoreTest {
  protected:
    DynamicStoreWithRoutes() { store = LinuxDynamicStore(tree.roots(), routes); }

    std::shared_ptr<PlayedRoutes> routes = std::make_shared<PlayedRoutes>();
};

TEST_F(DynamicStoreWithRoutes, DoesNotLookAtTheFileWhereOtherTablesAre) {
    tree.proc("net/route", route4("eth0"));
    tree.proc("net/ipv6_route", route6("vrf0"));
    routes->interface = "wlan0";
    EXPECT_EQ(primary(ipv4Key), "eth0");
    EXPECT_EQ(primary(ipv6Key), "wlan0");
    routes->interface = "";
    EXPECT_EQ(primary(ipv6Key), "(none)");
}

TEST_F(DynamicStoreWithRoutes, LooksAtTheFileWhenTheKernelDoesNotAnswer) {
    tree.proc("net/ipv6_route", route6("wlan0"));
    routes->interface = "left over";
    routes->answers = false;
    EXPECT_EQ(primary(ipv6Key), "wlan0");
}

}  // namespace
}  // namespace vantor::linux_dynamic_store_test
