#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "probes/interface_accumulators.h"

namespace vantor::interface_rules_test {
namespace {

TEST(InterfaceRules, ListedIsWhatIsUpAndRunningAndNotTheLoopback) {
    NetworkInterfaces::Record record;
    record.isUp = record.isRunning = true;
    EXPECT_TRUE(isEligible(record));
    record.isPointToPoint = true;
    EXPECT_TRUE(isEligible(record)) << "the settings decide about those";
    record.isLoopback = true;
    EXPECT_FALSE(isEligible(record));
    record.isLoopback = false;
    record.isRunning = false;
    EXPECT_FALSE(isEligible(record));
    record.isRunning = true;
    record.isUp = false;
    EXPECT_FALSE(isEligible(record));
}

TEST(AddressRules, IPv4LinkLocalIsAllOf169254AndNothingElse) {
    for (const char* address : {"169.254.0.0", "169.254.1.2", "169.254.255.255"})
        EXPECT_TRUE(isIPv4LinkLocal(address)) << address;
    for (const char* address : {"169.253.1.2", "169.255.1.2", "168.254.1.2", "10.0.0.1", "",
                                "169.254", "169.254.1", "169.254.1.2.3", "169.254.1.256", "text"})
        EXPECT_FALSE(isIPv4LinkLocal(address)) << address;
}

TEST(AddressRules, IPv6LinkLocalIsAllOfFe80Slash10AndNothingElse) {
    for (const char* address :
         {"fe80::1", "FE80::1", "fe80::1%en0", "fe81::1", "feb0::", "febf::1"})
        EXPECT_TRUE(isIPv6LinkLocal(address)) << address;
    for (const char* address :
         {"fec0::1", "fe7f::1", "fe8::1", "fe800::1", "10fe80::1", "2001:db8::1", "::1", "::fe80",
          "fe80", "", ":", "fe80x::1", " fe80::1", "+fe80::1", "-180::", "0xfe80::1"})
        EXPECT_FALSE(isIPv6LinkLocal(address)) << address;
}

using Offer = void (*)(std::string&, const char*);

std::string after(Offer offer, const std::vector<const char*>& offers) {
    std::string held;
    for (const char* address : offers)
        offer(held, address);
    return held;
}

TEST(AddressRules, ARoutableIPv4AddressReplacesALinkLocalOne) {
    EXPECT_EQ(after(offerIPv4Address, {"169.254.1.2", "10.0.0.1"}), "10.0.0.1");
}

TEST(AddressRules, OfTwoRoutableIPv4AddressesTheFirstStays) {
    EXPECT_EQ(after(offerIPv4Address, {"10.0.0.1", "10.0.0.2"}), "10.0.0.1");
    EXPECT_EQ(after(offerIPv4Address, {"169.254.1.2", "10.0.0.1", "10.0.0.2"}), "10.0.0.1");
}

TEST(AddressRules, ALinkLocalIPv4AddressIsTakenOnlyWhereThereIsNone) {
    EXPECT_EQ(after(offerIPv4Address, {"169.254.1.2"}), "169.254.1.2");
    EXPECT_EQ(after(offerIPv4Address, {"169.254.1.2", "169.254.3.4"}), "169.254.1.2");
    EXPECT_EQ(after(offerIPv4Address, {"10.0.0.1", "169.254.1.2"}), "10.0.0.1");
}

TEST(AddressRules, ARoutableIPv6AddressReplacesALinkLocalOne) {
    EXPECT_EQ(after(offerIPv6Address, {"fe80::1%en0", "fd00::2"}), "fd00::2");
}

TEST(AddressRules, OfTwoRoutableIPv6AddressesTheFirstStays) {
    EXPECT_EQ(after(offerIPv6Address, {"2001:db8::1", "2001:db8::2"}), "2001:db8::1");
    EXPECT_EQ(after(offerIPv6Address, {"fe80::1", "fd00::2", "fd00::3"}), "fd00::2");
}

TEST(AddressRules, ALinkLocalIPv6AddressIsTakenOnlyWhereThereIsNone) {
    EXPECT_EQ(after(offerIPv6Address, {"fe80::1%en0"}), "fe80::1%en0");
    EXPECT_EQ(after(offerIPv6Address, {"fe80::1%en0", "fe80::2%en0"}), "fe80::1%en0");
    EXPECT_EQ(after(offerIPv6Address, {"fd00::2", "fe80::1%en0"}), "fd00::2");
}

}  // namespace
}  // namespace vantor::interface_rules_test
