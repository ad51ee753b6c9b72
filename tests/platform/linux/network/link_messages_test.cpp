#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/linux/network/link_source.h"
#include "support/netlink_bytes.h"

/// What is read of one message about a link or an address.
namespace vantor::link_messages_test {
namespace {

using Link = LinkSource::Link;
using Address = LinkSource::Address;

Link whole() {
    Link link;
    link.index = 7;
    link.flags = 0x1043;
    link.receivedBytes = 0x1122334455667788;
    link.sentBytes = 5;
    link.hasCounters = true;
    link.name = "eth0";
    return link;
}

const Bytes wide = attribute(IFLA_STATS64, linkCounters<std::uint64_t>(0x1122334455667788, 5));
const Bytes narrow = attribute(IFLA_STATS, linkCounters<std::uint32_t>(9, 8));

TEST(LinkMessage, GivesIndexFlagsNameAndCounters) {
    Link link;
    ASSERT_TRUE(parseLink(linkHeader(7, 0x1043) + linkName("eth0") + wide, link));
    EXPECT_EQ(link, whole());
}

TEST(LinkMessage, The64BitCountersComeBeforeThe32BitOnesInAnyOrder) {
    Link link;
    ASSERT_TRUE(parseLink(linkHeader(7, 0x1043) + narrow + wide + linkName("eth0"), link));
    EXPECT_EQ(link, whole());
    ASSERT_TRUE(parseLink(linkHeader(7, 0x1043) + wide + narrow + linkName("eth0"), link));
    EXPECT_EQ(link, whole());
}

TEST(LinkMessage, The32BitCountersServeAlone) {
    Link link;
    ASSERT_TRUE(parseLink(linkHeader(7, 0) + narrow, link));
    EXPECT_TRUE(link.hasCounters);
    EXPECT_EQ(link.receivedBytes, 9u);
    EXPECT_EQ(link.sentBytes, 8u);
}

TEST(LinkMessage, CountersOfAnyKernelsLengthServeButNotCutOnes) {
    Link link;
    const auto has = [&](std::size_t count) {
        const auto counters = attribute(IFLA_STATS64, linkCounters<std::uint64_t>(3, 4, count));
        EXPECT_TRUE(parseLink(linkHeader(7, 0) + counters, link));
        return link.hasCounters;
    };
    EXPECT_FALSE(has(0));
    EXPECT_FALSE(has(3));
    EXPECT_TRUE(has(4));
    EXPECT_EQ(link.sentBytes, 4u);
    EXPECT_TRUE(has(40));
}

TEST(LinkMessage, ReplacesAllOfAnEarlierLink) {
    Link link = whole();
    ASSERT_TRUE(parseLink(linkHeader(8, 1), link));
    Link bare;
    bare.index = 8;
    bare.flags = 1;
    EXPECT_EQ(link, bare);
}

TEST(LinkMessage, NamesMayLackTheirZeroByteButNotBeTooLong) {
    const auto named = [](const Bytes& value) {
        Link link;
        EXPECT_TRUE(parseLink(linkHeader(7, 0) + attribute(IFLA_IFNAME, value), link));
        return link.name;
    };
    EXPECT_EQ(named(bytesOf(std::string_view("eth0"))), "eth0");
    EXPECT_EQ(named(bytesOf(std::string_view("eth0\0xyz", 8))), "eth0");
    EXPECT_EQ(named(bytesOf(std::string_view("fifteen-letters"))), "fifteen-letters");
    EXPECT_EQ(named(bytesOf(std::string_view("sixteen-letters!"))), "");
    EXPECT_EQ(named({}), "");
    EXPECT_EQ(named(Bytes(1)), "");
}

TEST(LinkMessage, OtherAttributesAreSkippedNestedOnesToo) {
    Link link;
    ASSERT_TRUE(parseLink(linkHeader(7, 0x1043) + attribute(IFLA_MTU, Bytes(4)) +
                              attribute(IFLA_LINKINFO | NLA_F_NESTED, linkName("no")) +
                              linkName("eth0") + attribute(IFLA_QDISC, Bytes(7)) + wide,
                          link));
    EXPECT_EQ(link, whole());
}

TEST(LinkMessage, CutAnywhereIsMalformedOrLacksWhatWasCutOff) {
    const Bytes message = linkHeader(7, 0x1043) + linkName("eth0") + wide;
    for (std::size_t length = 0; length < message.size(); ++length) {
        const Bytes cut(message.begin(), message.begin() + static_cast<std::ptrdiff_t>(length));
        Link link;
        const bool isWhole = parseLink(cut, link);
        EXPECT_FALSE(isWhole && link.hasCounters) << length;
        if (length < sizeof(ifinfomsg)) {
            EXPECT_FALSE(isWhole) << length;
        }
    }
}

TEST(LinkMessage, AnAttributeShorterThanItsHeaderIsMalformed) {
    for (const std::uint16_t length : {std::uint16_t{0}, std::uint16_t{3}, std::uint16_t{200}}) {
        Link link;
        const rtattr header{length, IFLA_IFNAME};
        EXPECT_FALSE(parseLink(linkHeader(7, 0) + bytesOf(header) + Bytes(8), link)) << length;
    }
}

const Bytes mine4{std::byte{10}, std::byte{0}, std::byte{0}, std::byte{1}};
const Bytes theirs4{std::byte{10}, std::byte{0}, std::byte{0}, std::byte{2}};
Bytes ip6(int last) {
    Bytes bytes(16);
    bytes[0] = std::byte{0xFE};
    bytes[1] = std::byte{0x80};
    bytes[15] = static_cast<std::byte>(last);
    return bytes;
}

TEST(AddressMessage, OfIPv4FillsTheFirstFourBytes) {
    Address address;
    address.bytes.fill(9);
    ASSERT_EQ(parseAddress(addressHeader(AF_INET, 3) + attribute(IFA_ADDRESS, mine4), address),
              AddressVerdict::address);
    EXPECT_EQ(address, (Address{3, false, {10, 0, 0, 1}}));
}

TEST(AddressMessage, OfAPointToPointLinkGivesItsOwnEnd) {
    Address address;
    const Bytes ends = attribute(IFA_ADDRESS, theirs4) + attribute(IFA_LOCAL, mine4);
    ASSERT_EQ(parseAddress(addressHeader(AF_INET, 3) + ends, address), AddressVerdict::address);
    EXPECT_EQ(address.bytes[3], 1);
    const Bytes ends6 = attribute(IFA_LOCAL, ip6(1)) + attribute(IFA_ADDRESS, ip6(2));
    ASSERT_EQ(parseAddress(addressHeader(AF_INET6, 3) + ends6, address), AddressVerdict::address);
    EXPECT_EQ(address.bytes[15], 1);
}

TEST(AddressMessage, OfIPv6HasSixteenBytes) {
    Address address;
    ASSERT_EQ(parseAddress(addressHeader(AF_INET6, 4) + attribute(IFA_ADDRESS, ip6(7)), address),
              AddressVerdict::address);
    EXPECT_TRUE(address.isIPv6);
    EXPECT_EQ(address.index, 4u);
    EXPECT_EQ(address.bytes[0], 0xFE);
    EXPECT_EQ(address.bytes[15], 7);
}

TEST(AddressMessage, OfAnotherFamilyOrWithoutBytesIsNotOurs) {
    Address address;
    const auto verdict = [&](const Bytes& message) { return parseAddress(message, address); };
    EXPECT_EQ(verdict(addressHeader(AF_PHONET, 1) + attribute(IFA_ADDRESS, mine4)),
              AddressVerdict::notOurs);
    EXPECT_EQ(verdict(addressHeader(AF_INET, 1)), AddressVerdict::notOurs);
    EXPECT_EQ(verdict(addressHeader(AF_INET, 1) + attribute(IFA_ADDRESS, ip6(1))),
              AddressVerdict::notOurs);
    EXPECT_EQ(verdict(addressHeader(AF_INET6, 1) + attribute(IFA_ADDRESS, mine4)),
              AddressVerdict::notOurs);
}

TEST(AddressMessage, CutIsMalformed) {
    Address address;
    EXPECT_EQ(parseAddress({}, address), AddressVerdict::malformed);
    EXPECT_EQ(parseAddress(Bytes(7), address), AddressVerdict::malformed);
    Bytes message = addressHeader(AF_INET, 3) + attribute(IFA_ADDRESS, mine4);
    message.pop_back();
    EXPECT_EQ(parseAddress(message, address), AddressVerdict::malformed);
}

}  // namespace
}  // namespace vantor::link_messages_test
