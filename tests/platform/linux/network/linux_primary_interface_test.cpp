#include "platform/linux/network/linux_primary_interface.h"

#include <gtest/gtest.h>

#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::linux_primary_interface_test {
namespace {

std::string route4(const std::string& name) {
    return name + "\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n";
}
std::string route6(const std::string& name) {
    const std::string zero(32, '0');
    return zero + " 00 " + zero + " 00 " + zero + " 00000400 00000001 00000000 00000003 " + name +
           '\n';
}

class LinuxPrimaryInterfaceTest : public testing::Test {
  protected:
    std::string name() { return std::string(primary.name().value_or("(none)")); }

    FakeKernelTree tree;
    LinuxPrimaryInterface primary{tree.roots()};
};

TEST_F(LinuxPrimaryInterfaceTest, IsIPv4sBeforeIPv6s) {
    tree.proc("net/route", route4("eth0"));
    tree.proc("net/ipv6_route", route6("wlan0"));
    EXPECT_EQ(name(), "eth0");
    tree.proc("net/route", "");
    EXPECT_EQ(name(), "wlan0");
}

TEST_F(LinuxPrimaryInterfaceTest, FollowsTheRoutes) {
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(name(), "eth0");
    tree.proc("net/route", "");
    EXPECT_EQ(name(), "(none)");
    tree.proc("net/route", route4("wlan0"));
    EXPECT_EQ(name(), "wlan0");
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(name(), "eth0");
}

TEST_F(LinuxPrimaryInterfaceTest, ThereIsNoneUntilThereAreRoutes) {
    EXPECT_EQ(name(), "(none)") << "a kernel without the protocol has no file";
    tree.proc("net/route", route4("eth0"));
    EXPECT_EQ(name(), "eth0");
}

/// Routes by script.
struct FakeRoutes : RouteSource {
    bool ipv6DefaultInterface(std::string& name) override {
        name = interface;
        return answers;
    }
    std::string interface;
    bool answers = true;
};

class PrimaryInterfaceWithRoutes : public LinuxPrimaryInterfaceTest {
  protected:
    PrimaryInterfaceWithRoutes() { primary = LinuxPrimaryInterface(tree.roots(), routes); }

    std::shared_ptr<FakeRoutes> routes = std::make_shared<FakeRoutes>();
};

TEST_F(PrimaryInterfaceWithRoutes, IsNotOfTheFileWhereOtherTablesAre) {
    tree.proc("net/ipv6_route", route6("vrf0"));
    routes->interface = "wlan0";
    EXPECT_EQ(name(), "wlan0");
    routes->interface = "";
    EXPECT_EQ(name(), "(none)");
    tree.proc("net/route", route4("eth0"));
    routes->interface = "wlan0";
    EXPECT_EQ(name(), "eth0");
}

TEST_F(PrimaryInterfaceWithRoutes, IsOfTheFileWhenTheKernelDoesNotAnswer) {
    tree.proc("net/ipv6_route", route6("wlan0"));
    routes->interface = "left over";
    routes->answers = false;
    EXPECT_EQ(name(), "wlan0");
}

}  // namespace
}  // namespace vantor::linux_primary_interface_test
