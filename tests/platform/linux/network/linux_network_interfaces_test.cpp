#include "platform/linux/network/linux_network_interfaces.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <net/if.h>

#include <cstring>
#include <string>
#include <vector>

namespace vantor::linux_network_interfaces_test {
namespace {

using testing::ElementsAre;
using Counters = NetworkInterfaces::Counters;

class FakeLinks : public LinkSource {
  public:
    bool links(std::vector<Link>& list) override {
        ++linkDumps;
        if (linksFail) return false;
        list = theLinks;
        return true;
    }
    bool addresses(std::vector<Address>& list) override {
        ++addressDumps;
        if (addressesFail) return false;
        list = theAddresses;
        return true;
    }

    bool mayHaveChanged() override { return hasChanged; }
    bool counters(std::span<Link> list) override {
        ++counterDumps;
        if (countersFail || list.size() != theLinks.size()) return false;
        for (std::size_t i = 0; i < list.size(); ++i) {
            list[i].receivedBytes = theLinks[i].receivedBytes;
            list[i].sentBytes = theLinks[i].sentBytes;
        }
        return true;
    }

    void add(const std::string& name, std::uint32_t index, std::uint64_t received = 0,
             std::uint64_t sent = 0) {
        theLinks.push_back({index, IFF_UP | IFF_RUNNING, received, sent, true, name});
    }
    void addAddress(std::uint32_t index, const char* text) {
        Address address;
        address.index = index;
        address.isIPv6 = std::strchr(text, ':') != nullptr;
        ASSERT_EQ(::inet_pton(address.isIPv6 ? AF_INET6 : AF_INET, text, address.bytes.data()), 1);
        theAddresses.push_back(address);
    }

    std::vector<Link> theLinks;
    std::vector<Address> theAddresses;
    bool linksFail = false;
    bool addressesFail = false;
    int linkDumps = 0;
    int addressDumps = 0;
    bool hasChanged = true;
    bool countersFail = false;
    int counterDumps = 0;
};

/// What a list says, as "name address address".
std::vector<std::string> linesOf(const NetworkInterfaces::List& list) {
    std::vector<std::string> lines;
    for (const auto& record : list) {
        std::string& line = lines.emplace_back(record.name);
        for (const auto& address : record.addresses)
            line += ' ' + address.text;
    }
    return lines;
}

class LinuxNetworkInterfacesTest : public testing::Test {
  protected:
    std::vector<std::string> read() {
        EXPECT_TRUE(interfaces.read(list));
        return linesOf(list);
    }

    std::shared_ptr<FakeLinks> links = std::make_shared<FakeLinks>();
    LinuxNetworkInterfaces interfaces{links};
    NetworkInterfaces::List list;
};

TEST_F(LinuxNetworkInterfacesTest, GivesOneRecordPerLink) {
    links->add("lo", 1, 10, 10);
    links->add("eth0", 4, 0x1122334455667788, 7);
    EXPECT_THAT(read(), ElementsAre("lo", "eth0"));
    EXPECT_EQ(list[0].counters, (Counters{10, 10}));
    EXPECT_EQ(list[1].counters, (Counters{0x1122334455667788, 7}));
    EXPECT_EQ(list[1].index, 4u);
    EXPECT_EQ(list[1].shortCounters, std::nullopt);
}

TEST_F(LinuxNetworkInterfacesTest, ALinkWithoutCountersHasNone) {
    links->add("lo", 1);
    links->add("odd", 2);
    links->theLinks[1].hasCounters = false;
    EXPECT_THAT(read(), ElementsAre("lo", "odd"));
    EXPECT_EQ(list[0].counters, (Counters{0, 0}));
    EXPECT_EQ(list[1].counters, std::nullopt);
}

TEST_F(LinuxNetworkInterfacesTest, FailsWhereNoLinkHasCounters) {
    EXPECT_FALSE(interfaces.read(list)) << "there is no link";
    links->add("odd", 2);
    links->theLinks[0].hasCounters = false;
    EXPECT_FALSE(interfaces.read(list));
}

// A machine that starts containers all day gets there within weeks.
TEST_F(LinuxNetworkInterfacesTest, ALinkWhoseNumberIsPast16BitsIsOneLikeTheOthers) {
    links->add("eth0", 2, 1, 1);
    links->add("veth1", 70000, 5, 6);
    links->add("veth2", 2'000'000'000, 7, 8);
    links->addAddress(70000, "10.0.0.1");
    EXPECT_THAT(read(), ElementsAre("eth0", "veth1 10.0.0.1", "veth2"));
    EXPECT_EQ(list[1].index, 70000u);
    EXPECT_EQ(list[1].counters, (Counters{5, 6}));
    EXPECT_EQ(list[2].index, 2'000'000'000u);
    EXPECT_EQ(list[2].counters, (Counters{7, 8}));
}

TEST_F(LinuxNetworkInterfacesTest, WhileNothingChangesOnlyTheCountersAreAskedFor) {
    links->add("lo", 1, 10, 20);
    links->add("eth0", 4, 30, 40);
    links->addAddress(4, "10.0.0.1");
    links->addAddress(4, "fe80::1");
    read();
    links->hasChanged = false;
    for (std::uint64_t pass = 1; pass <= 3; ++pass) {
        links->theLinks[1].receivedBytes = 100 * pass;
        links->theLinks[1].sentBytes = 200 * pass;
        list.clear();
        EXPECT_THAT(read(), ElementsAre("lo", "eth0 10.0.0.1 fe80::1%eth0"));
        EXPECT_EQ(list[0].counters, (Counters{10, 20}));
        EXPECT_EQ(list[1].counters, (Counters{100 * pass, 200 * pass}));
        EXPECT_TRUE(list[1].isUp && list[1].isRunning);
        EXPECT_EQ(list[1].index, 4u);
    }
    EXPECT_EQ(links->linkDumps, 1);
    EXPECT_EQ(links->addressDumps, 1);
    EXPECT_EQ(links->counterDumps, 3);
}

TEST_F(LinuxNetworkInterfacesTest, AChangeAndOtherLinksAreFoundByTheSameReading) {
    links->add("eth0", 4, 30, 40);
    read();
    links->addAddress(4, "10.0.0.1");
    EXPECT_THAT(read(), ElementsAre("eth0 10.0.0.1")) << "a notice came";
    links->hasChanged = false;
    links->add("eth1", 5);
    EXPECT_THAT(read(), ElementsAre("eth0 10.0.0.1", "eth1")) << "its counters came";
    links->countersFail = true;
    links->theLinks[0].receivedBytes = 99;
    EXPECT_THAT(read(), ElementsAre("eth0 10.0.0.1", "eth1"));
    EXPECT_EQ(list[0].counters, (Counters{99, 40})) << "no counters came, but links";
}

TEST_F(LinuxNetworkInterfacesTest, WhatTheCallerDoesToItsListIsForgotten) {
    links->add("eth0", 4, 30, 40);
    read();
    links->hasChanged = false;
    list[0].name = "other";
    list[0].isUp = false;
    EXPECT_THAT(read(), ElementsAre("eth0"));
    EXPECT_TRUE(list[0].isUp);
}

TEST_F(LinuxNetworkInterfacesTest, AfterAFailureAllIsAskedForAgain) {
    links->add("eth0", 4);
    read();
    links->linksFail = true;
    EXPECT_FALSE(interfaces.read(list));
    links->linksFail = false;
    links->hasChanged = false;
    EXPECT_THAT(read(), ElementsAre("eth0"));
    EXPECT_EQ(links->counterDumps, 0);
}

TEST_F(LinuxNetworkInterfacesTest, NowAndThenAllIsAskedForThoughNothingChanged) {
    links->add("eth0", 4);
    read();
    links->hasChanged = false;
    for (int pass = 1; pass < 60; ++pass)
        read();
    EXPECT_EQ(links->linkDumps, 1);
    read();
    EXPECT_EQ(links->linkDumps, 2);
    read();
    EXPECT_EQ(links->linkDumps, 2);
}

TEST_F(LinuxNetworkInterfacesTest, EveryListIsFreshFromOneDumpOfEach) {
    links->add("eth0", 2, 100, 0);
    for (int pass = 1; pass <= 3; ++pass) {
        links->theLinks[0].name = "lan" + std::to_string(pass);
        links->theLinks[0].receivedBytes = static_cast<std::uint64_t>(pass);
        EXPECT_THAT(read(), ElementsAre("lan" + std::to_string(pass)));
        EXPECT_EQ(list[0].counters->received, static_cast<std::uint64_t>(pass));
        EXPECT_EQ(links->linkDumps, pass);
        EXPECT_EQ(links->addressDumps, pass);
    }
}

TEST_F(LinuxNetworkInterfacesTest, NothingOfALinkThatLeftStaysAtItsPlace) {
    links->add("wg0", 5, 1, 1);
    links->theLinks[0].flags = IFF_UP | IFF_POINTOPOINT | IFF_LOOPBACK;
    links->addAddress(5, "10.9.0.1");
    links->addAddress(5, "2001:db8::1");
    read();
    links->theLinks.clear();
    links->add("eth0", 2);
    links->theLinks[0].flags = 0;
    links->add("eth1", 3, 4, 5);
    links->theAddresses.clear();
    links->theLinks[0].hasCounters = false;
    EXPECT_THAT(read(), ElementsAre("eth0", "eth1"));
    EXPECT_EQ(list[0].index, 2u);
    EXPECT_EQ(list[0].counters, std::nullopt);
    EXPECT_FALSE(list[0].isUp || list[0].isPointToPoint || list[0].isLoopback);
}

TEST_F(LinuxNetworkInterfacesTest, FailsWhenTheKernelDoesNotAnswer) {
    links->add("eth0", 2);
    links->linksFail = true;
    EXPECT_FALSE(interfaces.read(list));
    links->linksFail = false;
    EXPECT_THAT(read(), ElementsAre("eth0"));
}

TEST_F(LinuxNetworkInterfacesTest, FailsWhenTheAddressesCannotBeHad) {
    links->add("eth0", 2);
    links->addressesFail = true;
    EXPECT_FALSE(interfaces.read(list));
}

TEST_F(LinuxNetworkInterfacesTest, EachAddressIsItsLinksWhateverTheOrder) {
    links->add("eth0", 2);
    links->add("wg0", 5);
    links->addAddress(5, "10.9.0.1");
    links->addAddress(2, "192.0.2.2");
    links->addAddress(5, "10.9.0.2");
    links->addAddress(2, "2001:db8::1");
    EXPECT_THAT(read(), ElementsAre("eth0 192.0.2.2 2001:db8::1", "wg0 10.9.0.1 10.9.0.2"));
    EXPECT_FALSE(list[0].addresses[0].isIPv6);
    EXPECT_TRUE(list[0].addresses[1].isIPv6);
}

TEST_F(LinuxNetworkInterfacesTest, FlagsAreTold) {
    for (const char* name : {"none", "up", "running", "loopback", "tunnel"})
        links->add(name, static_cast<std::uint32_t>(links->theLinks.size() + 1));
    constexpr unsigned others = IFF_BROADCAST | IFF_NOARP | IFF_PROMISC | IFF_MULTICAST;
    links->theLinks[0].flags = others;
    links->theLinks[1].flags = IFF_UP;
    links->theLinks[2].flags = IFF_RUNNING | others;
    links->theLinks[3].flags = IFF_LOOPBACK;
    links->theLinks[4].flags = IFF_POINTOPOINT;
    read();
    for (std::size_t i = 0; i < 5; ++i) {
        SCOPED_TRACE(list[i].name);
        EXPECT_EQ(list[i].isUp, i == 1);
        EXPECT_EQ(list[i].isRunning, i == 2);
        EXPECT_EQ(list[i].isLoopback, i == 3);
        EXPECT_EQ(list[i].isPointToPoint, i == 4);
    }
}

TEST_F(LinuxNetworkInterfacesTest, LinkLocalIPv6AddressesCarryTheirScope) {
    links->add("fifteen-letters", 2);
    links->addAddress(2, "fe80::1");
    links->addAddress(2, "febf::1");
    links->addAddress(2, "fec0::1");
    links->addAddress(2, "169.254.1.1");
    EXPECT_THAT(read(), ElementsAre("fifteen-letters fe80::1%fifteen-letters "
                                    "febf::1%fifteen-letters fec0::1 169.254.1.1"));
}

TEST_F(LinuxNetworkInterfacesTest, AnAddressOfALinkThatCameSinceIsLeftOut) {
    links->add("eth0", 2);
    links->addAddress(3, "10.0.0.1");
    links->addAddress(2, "10.0.0.2");
    EXPECT_THAT(read(), ElementsAre("eth0 10.0.0.2"));
}

TEST_F(LinuxNetworkInterfacesTest, ALinkThatVanishesBetweenTheDumpsStaysWithoutAddresses) {
    links->add("eth0", 2, 10, 20);
    links->add("eth1", 3, 30, 40);
    links->addAddress(2, "10.0.0.1");
    EXPECT_THAT(read(), ElementsAre("eth0 10.0.0.1", "eth1"));
    EXPECT_EQ(list[1].counters, (Counters{30, 40}));
}

}  // namespace
}  // namespace vantor::linux_network_interfaces_test
