#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "probes/network_reader_fixture.h"
#include "probes/system_info_reader.h"

/// Which interfaces there are, and with what addresses.
namespace vantor::network_reader_interfaces_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::StrEq;

TEST_F(NetworkReaderTest, OnlyInterfacesThatAreUpAndRunningAndNoLoopbackAreEligible) {
    add("down").flags = InterfaceCalls::running;
    add("idle").flags = InterfaceCalls::up;
    add("lo0").flags |= InterfaceCalls::loopback;
    add("en1");
    read();
    EXPECT_THAT(names(read()), ElementsAre("en0", "en1"));
}

TEST_F(NetworkReaderTest, EntriesWithoutANameAreSkipped) {
    InterfaceCalls::Entry nameless;
    nameless.flags = InterfaceCalls::up | InterfaceCalls::running;
    nameless.family = InterfaceCalls::Family::link;
    InterfaceCalls::Entry empty = nameless;
    empty.name = "";
    net.extraEntries = {nameless, empty};
    read();
    EXPECT_THAT(names(read()), ElementsAre("en0"));
}

TEST_F(NetworkReaderTest, EntriesWithoutAnAddressOrOfAnotherFamilyMakeAnInterfaceAllTheSame) {
    InterfaceCalls::Entry entry;
    entry.name = "bare";
    entry.flags = InterfaceCalls::up | InterfaceCalls::running;
    net.extraEntries = {entry};
    entry.name = "other";
    entry.family = InterfaceCalls::Family::other;
    net.extraEntries.push_back(entry);
    read();
    EXPECT_THAT(names(read()), ElementsAre("en0", "bare", "other"));
}

TEST_F(NetworkReaderTest, WithoutAnyEligibleInterfaceTheRecordHasNoPrimary) {
    at("en0").flags = 0;
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr) << "there is nothing that could not be measured";
    EXPECT_EQ(stats->hostname, "simulated.local");
    EXPECT_EQ(stats->primaryInterfaceName, std::nullopt);
    EXPECT_EQ(stats->primaryIPv4Address, std::nullopt);
    EXPECT_EQ(stats->primaryIPv6Address, std::nullopt);
    EXPECT_EQ(stats->downloadBytesPerSecond, 0);
    EXPECT_EQ(stats->uploadBytesPerSecond, 0);
    EXPECT_THAT(stats->interfaces, IsEmpty());
}

TEST_F(NetworkReaderTest, NothingOfAnEarlierPrimaryIsLeftWhenNoInterfaceIsEligible) {
    read();
    at("en0").received += 100;
    ASSERT_NE(read(), nullptr);
    at("en0").flags = 0;
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->primaryInterfaceName, std::nullopt);
    EXPECT_EQ(stats->primaryIPv4Address, std::nullopt);
    EXPECT_EQ(stats->downloadBytesPerSecond, 0);
}

TEST_F(NetworkReaderTest, PointToPointInterfacesAreLeftOutUnlessAskedFor) {
    add("utun0").flags |= InterfaceCalls::pointToPoint;
    read();
    EXPECT_THAT(names(read()), ElementsAre("en0"));
    includePointToPoint = true;
    const NetworkStats* stats = read();
    EXPECT_THAT(names(stats), ElementsAre("en0", "utun0"));
    EXPECT_TRUE(row(stats, "utun0")->isPointToPoint);
    EXPECT_FALSE(row(stats, "en0")->isPointToPoint);
}

TEST_F(NetworkReaderTest, PointToPointInterfacesThatAreLeftOutKeepTheirBaseline) {
    add("utun0").flags |= InterfaceCalls::pointToPoint;
    read();
    at("utun0").received += 9000;
    read();
    at("utun0").received += 200;
    includePointToPoint = true;
    const NetworkStats* stats = read();
    ASSERT_NE(row(stats, "utun0"), nullptr);
    EXPECT_EQ(row(stats, "utun0")->downloadBytesPerSecond, 200) << "since the last read";
}

TEST_F(NetworkReaderTest, APrimaryPointToPointInterfaceThatIsLeftOutYieldsToTheFirstRow) {
    add("utun0").flags |= InterfaceCalls::pointToPoint;
    setPrimary("utun0");
    read();
    EXPECT_THAT(read()->primaryInterfaceName, Optional(StrEq("en0")));
    includePointToPoint = true;
    EXPECT_THAT(read()->primaryInterfaceName, Optional(StrEq("utun0")));
}

TEST_F(NetworkReaderTest, TheLastEntryOfANameSaysWhetherItIsPointToPoint) {
    InterfaceCalls::Entry entry;
    entry.name = "en0";
    entry.flags = InterfaceCalls::up | InterfaceCalls::running | InterfaceCalls::pointToPoint;
    net.extraEntries = {entry};
    read();
    EXPECT_FALSE(read()->interfaces.front().isPointToPoint);
}

using Addresses = std::vector<SimulatedInterfaceCalls::Address>;
using Text = std::optional<std::string>;

struct AddressesRow {
    const char* name;
    Addresses addresses;
    Text ipv4;
    Text ipv6;

    friend void PrintTo(const AddressesRow& row, std::ostream* out) { *out << row.name; }
};

constexpr auto ipv4 = InterfaceCalls::Family::ipv4;
constexpr auto ipv6 = InterfaceCalls::Family::ipv6;

class AddressChoice : public NetworkReaderTest, public testing::WithParamInterface<AddressesRow> {};

TEST_P(AddressChoice, IsMadeFromAllOfThem) {
    at("en0").addresses = GetParam().addresses;
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->interfaces.front().ipv4Address, GetParam().ipv4);
    EXPECT_EQ(stats->interfaces.front().ipv6Address, GetParam().ipv6);
    EXPECT_EQ(stats->primaryIPv4Address, GetParam().ipv4);
    EXPECT_EQ(stats->primaryIPv6Address, GetParam().ipv6);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, AddressChoice,
    testing::Values(
        AddressesRow{"None", {}, {}, {}},
        AddressesRow{"ALinkLocalIPv4YieldsToALaterRoutableOne",
                     {{ipv4, "169.254.1.2"}, {ipv4, "10.0.0.1"}, {ipv4, "10.0.0.2"}},
                     "10.0.0.1",
                     {}},
        AddressesRow{"OfTwoRoutableIPv4TheFirstStays",
                     {{ipv4, "10.0.0.2"}, {ipv4, "10.0.0.1"}, {ipv4, "169.254.1.2"}},
                     "10.0.0.2",
                     {}},
        AddressesRow{"ALinkLocalIPv6YieldsToALaterRoutableOne",
                     {{ipv6, "fe80::1%en0"}, {ipv6, "2001:db8::1"}, {ipv6, "2001:db8::2"}},
                     {},
                     "2001:db8::1"},
        AddressesRow{"OfTwoRoutableIPv6TheFirstStays",
                     {{ipv6, "2001:db8::2"}, {ipv6, "2001:db8::1"}, {ipv6, "fe80::1%en0"}},
                     {},
                     "2001:db8::2"},
        AddressesRow{"AScopeIsKept", {{ipv6, "fe80::1%en0"}}, {}, "fe80::1%en0"},
        AddressesRow{"WhatCannotBeFormattedIsIgnored",
                     {{ipv4, "10.0.0.1", false}, {ipv4, "10.0.0.2"}, {ipv6, "fd00::1", false}},
                     "10.0.0.2",
                     {}}),
    [](const auto& row) { return row.param.name; });

TEST_F(NetworkReaderTest, AnAddressThatWentIsGoneFromTheRecord) {
    at("en0").addresses.push_back({Family::ipv6, "2001:db8::1"});
    read();
    ASSERT_NE(read()->primaryIPv6Address, std::nullopt);
    at("en0").addresses.clear();
    const NetworkStats* stats = read();
    EXPECT_EQ(stats->primaryIPv4Address, std::nullopt);
    EXPECT_EQ(stats->primaryIPv6Address, std::nullopt);
    EXPECT_EQ(stats->interfaces.front().ipv4Address, std::nullopt);
    EXPECT_EQ(stats->interfaces.front().ipv6Address, std::nullopt);
}

TEST_F(NetworkReaderTest, NamesThatAreNoTextAreMadeOne) {
    add("br\xff").addresses = {{Family::ipv4, "10.0.0.9"}};
    setPrimary("br\xff");
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_THAT(names(stats), ElementsAre("br?", "en0"));
    EXPECT_THAT(stats->primaryInterfaceName, Optional(StrEq("br?")));
}

TEST_F(NetworkReaderTest, AScopeThatIsNoTextIsMadeOne) {
    remove("en0");
    add("v\xff").addresses = {{Family::ipv6, "fe80::1%v\xff"}};
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_THAT(stats->interfaces.front().ipv6Address, Optional(StrEq("fe80::1%v?")));
    EXPECT_THAT(stats->primaryIPv6Address, Optional(StrEq("fe80::1%v?")));
}

TEST_F(NetworkReaderTest, AHostNameThatIsNoTextIsMadeOne) {
    machine->processInfo().host =
        "b\xff"
        "d\xc3";
    read();
    const NetworkStats* stats = read();
    ASSERT_NE(stats, nullptr);
    EXPECT_EQ(stats->hostname, "b?d?");
    EXPECT_EQ(stats->hostname, SystemInfoReader(machine).read().hostName);
}

}  // namespace
}  // namespace vantor::network_reader_interfaces_test
