#include "platform/macos/network/interface_entry.h"

#include <gtest/gtest.h>

namespace vantor::interface_entry_test {
namespace {

using Family = InterfaceCalls::Family;
using Address = std::array<std::uint8_t, 16>;

TEST(InterfaceEntry, TellsTheFamiliesByTheirNumbers) {
    EXPECT_EQ(familyOf(2), Family::ipv4);
    EXPECT_EQ(familyOf(18), Family::link);
    EXPECT_EQ(familyOf(30), Family::ipv6);
    EXPECT_EQ(familyOf(0), Family::other);
    EXPECT_EQ(familyOf(10), Family::other) << "what other systems call IPv6";
}

InterfaceCalls::Entry separated(Family family, const Address& address, std::uint32_t scope) {
    InterfaceCalls::Entry entry;
    entry.family = family;
    entry.address = address;
    entry.scope = scope;
    separateScope(entry);
    return entry;
}

TEST(InterfaceEntry, TakesTheInterfaceOutOfALinkLocalAddress) {
    const auto entry = separated(Family::ipv6, {0xFE, 0x80, 0x01, 0x04, 0, 0, 0, 0, 1}, 0);
    EXPECT_EQ(entry.scope, 0x104u);
    EXPECT_EQ(entry.address, (Address{0xFE, 0x80, 0, 0, 0, 0, 0, 0, 1}));
}

TEST(InterfaceEntry, LeavesAScopeThatIsToldAsItIs) {
    const auto entry = separated(Family::ipv6, {0xFE, 0x80, 0x00, 0x04}, 7);
    EXPECT_EQ(entry.scope, 7u);
    EXPECT_EQ(entry.address, (Address{0xFE, 0x80}));
    EXPECT_EQ(separated(Family::ipv6, {0xFE, 0xBF}, 7).scope, 7u);
}

TEST(InterfaceEntry, LeavesALinkLocalAddressWithoutAnInterfaceAlone) {
    const auto entry = separated(Family::ipv6, {0xFE, 0x80, 0, 0, 0, 0, 0, 0, 1}, 0);
    EXPECT_EQ(entry.scope, 0u);
    EXPECT_EQ(entry.address, (Address{0xFE, 0x80, 0, 0, 0, 0, 0, 0, 1}));
}

TEST(InterfaceEntry, LeavesOtherAddressesAlone) {
    for (const Address& address : {Address{0xFE, 0xC0, 1, 2}, Address{0xFD, 0x80, 1, 2},
                                   Address{0x20, 0x01, 0x0D, 0xB8}, Address{}}) {
        const auto entry = separated(Family::ipv6, address, 0);
        EXPECT_EQ(entry.scope, 0u);
        EXPECT_EQ(entry.address, address);
    }
    const auto older = separated(Family::ipv4, {0xFE, 0x80, 1, 2}, 0);
    EXPECT_EQ(older.scope, 0u);
    EXPECT_EQ(older.address, (Address{0xFE, 0x80, 1, 2}));
}

}  // namespace
}  // namespace vantor::interface_entry_test
