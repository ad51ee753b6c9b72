#include "platform/darwin/darwin_network_interfaces.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/simulated/simulated_interface_calls.h"

namespace vantor::darwin_network_interfaces_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Family = InterfaceCalls::Family;
using Counters = NetworkInterfaces::Counters;
using ShortCounters = NetworkInterfaces::ShortCounters;

class DarwinNetworkInterfacesTest : public testing::Test {
  protected:
    DarwinNetworkInterfacesTest() {
        auto& interface = calls.named("en0");
        interface.index = 4;
        interface.received = 7;
        interface.sent = 9;
        interface.addresses = {{Family::ipv4, "192.168.1.2"}, {Family::ipv6, "fe80::1%en0"}};
    }
    ~DarwinNetworkInterfacesTest() override { EXPECT_EQ(calls.addressListsOutstanding, 0); }

    /// Each record as "name address address".
    std::vector<std::string> read() {
        EXPECT_TRUE(interfaces.read(list));
        std::vector<std::string> lines;
        for (const auto& record : list) {
            std::string& line = lines.emplace_back(record.name);
            for (const auto& address : record.addresses)
                line += ' ' + address.text;
        }
        return lines;
    }
    static InterfaceCalls::Entry entry(const char* name, std::uint32_t flags) {
        InterfaceCalls::Entry entry;
        entry.name = name;
        entry.flags = flags;
        return entry;
    }

    SimulatedInterfaceCalls calls;
    DarwinNetworkInterfaces interfaces{calls};
    NetworkInterfaces::List list;
};

constexpr std::uint32_t upAndRunning = InterfaceCalls::up | InterfaceCalls::running;

TEST_F(DarwinNetworkInterfacesTest, MakesOneRecordOfAnInterfacesEntries) {
    calls.named("lo0").flags |= InterfaceCalls::loopback;
    EXPECT_THAT(read(), ElementsAre("en0 192.168.1.2 fe80::1%en0", "lo0"));
    EXPECT_EQ(list[0].index, 4u);
    EXPECT_EQ(list[0].counters, (Counters{7, 9}));
    EXPECT_EQ(list[0].shortCounters, std::nullopt);
    EXPECT_TRUE(list[0].isUp && list[0].isRunning);
    EXPECT_FALSE(list[0].isLoopback || list[0].isPointToPoint);
    EXPECT_FALSE(list[0].addresses[0].isIPv6);
    EXPECT_TRUE(list[0].addresses[1].isIPv6);
    EXPECT_TRUE(list[1].isLoopback);
}

TEST_F(DarwinNetworkInterfacesTest, TakesTheLinksOwnCountersWhereTheOtherListHasNone) {
    auto& other = calls.named("en1");
    other.linkData = {5, 6};
    EXPECT_THAT(read(), ElementsAre(testing::_, "en1"));
    EXPECT_EQ(list[1].counters, (Counters{0, 0})) << "those of 64 bits come first";
    EXPECT_EQ(list[1].shortCounters, std::nullopt);
    other.hasMessage = false;
    read();
    EXPECT_EQ(list[1].counters, std::nullopt);
    EXPECT_EQ(list[1].shortCounters, (ShortCounters{5, 6}));
    EXPECT_EQ(list[1].index, 0u);
    other.linkData.reset();
    read();
    EXPECT_EQ(list[1].shortCounters, std::nullopt);
}

TEST_F(DarwinNetworkInterfacesTest, WithoutALinkEntryThereAreNoCounters) {
    calls.interfaces[0].hasLinkEntry = false;
    EXPECT_THAT(read(), ElementsAre("en0 192.168.1.2 fe80::1%en0"));
    EXPECT_EQ(list[0].counters, std::nullopt);
}

TEST_F(DarwinNetworkInterfacesTest, WhatIsNotListedHasNoRecordWhateverItsCounters) {
    calls.named("en1").isListed = false;
    EXPECT_THAT(read(), ElementsAre("en0 192.168.1.2 fe80::1%en0"));
}

TEST_F(DarwinNetworkInterfacesTest, LeavesOutWhatHasNoNameOrCannotBeFormatted) {
    calls.extraEntries = {entry(nullptr, upAndRunning), entry("", upAndRunning)};
    calls.interfaces[0].addresses[0].isFormattable = false;
    EXPECT_THAT(read(), ElementsAre("en0 fe80::1%en0"));
}

TEST_F(DarwinNetworkInterfacesTest, EntriesOfOtherFamiliesMakeARecordAllTheSame) {
    auto other = entry("other", upAndRunning);
    other.family = Family::other;
    calls.extraEntries = {entry("bare", upAndRunning), other};
    EXPECT_THAT(read(), ElementsAre("bare", "other", "en0 192.168.1.2 fe80::1%en0"));
}

TEST_F(DarwinNetworkInterfacesTest, EntriesThatContradictEachOtherAreRecordsOfTheirOwn) {
    calls.extraEntries = {entry("en0", upAndRunning | InterfaceCalls::pointToPoint),
                          entry("en0", InterfaceCalls::up)};
    EXPECT_THAT(read(), ElementsAre("en0", "en0", "en0 192.168.1.2 fe80::1%en0"));
    EXPECT_TRUE(list[0].isPointToPoint);
    EXPECT_FALSE(list[1].isRunning);
    EXPECT_EQ(list[2].counters, (Counters{7, 9}));
}

TEST_F(DarwinNetworkInterfacesTest, FailsWhenEitherListCannotBeHad) {
    calls.sizeErrors = {EIO};
    EXPECT_FALSE(interfaces.read(list));
    calls.listErrors = {EIO};
    EXPECT_FALSE(interfaces.read(list));
    calls.addressListFails = true;
    EXPECT_FALSE(interfaces.read(list));
    calls.addressListFails = false;
    calls.addressListIsEmpty = true;
    EXPECT_FALSE(interfaces.read(list));
    calls.addressListIsEmpty = false;
    EXPECT_THAT(read(), ElementsAre("en0 192.168.1.2 fe80::1%en0"));
}

TEST_F(DarwinNetworkInterfacesTest, AListWithoutAnyNameIsEmptyAndNoFailure) {
    calls.interfaces[0].isListed = false;
    calls.extraEntries = {entry(nullptr, upAndRunning)};
    EXPECT_THAT(read(), IsEmpty());
}

}  // namespace
}  // namespace vantor::darwin_network_interfaces_test
