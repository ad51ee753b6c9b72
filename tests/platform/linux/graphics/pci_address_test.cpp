#include "platform/linux/graphics/pci_address.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace vantor::pci_address_test {
namespace {

struct Row {
    const char* name;
    const char* text;
    std::optional<PCIAddress> address;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class AddressText : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, AddressText,
    testing::Values(Row{"Usual", "0000:01:00.0", PCIAddress{0, 1, 0, 0}},
                    Row{"Letters", "0000:c4:1f.7", PCIAddress{0, 0xC4, 31, 7}},
                    Row{"LongDomain", "10000:e1:00.0", PCIAddress{0x10000, 0xE1, 0, 0}},
                    Row{"LongestDomain", "ffffffff:00:02.0", PCIAddress{0xFFFFFFFF, 0, 2, 0}},
                    Row{"DomainTooLong", "1ffffffff:00:02.0", std::nullopt},
                    Row{"Empty", "", std::nullopt}, Row{"NoDomain", "01:00.0", std::nullopt},
                    Row{"Cut", "0000:01:00.", std::nullopt},
                    Row{"FunctionTooHigh", "0000:01:00.8", std::nullopt},
                    Row{"DeviceTooHigh", "0000:01:20.0", std::nullopt},
                    Row{"Sign", "0000:-1:00.0", std::nullopt},
                    Row{"SignedDomain", "-000:01:00.0", std::nullopt},
                    Row{"Platform", "fec00000.gpu", std::nullopt},
                    Row{"Virtio", "virtio0", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(AddressText, IsParsed) {
    const auto address = parsePCIAddress(GetParam().text);
    EXPECT_EQ(address, GetParam().address);
    if (address) {
        EXPECT_EQ(address->text(), GetParam().text);
    }
}

TEST(PCIAddressNumber, IsItsOwnForEachAddress) {
    EXPECT_EQ((PCIAddress{0, 1, 0, 0}).number(), 0x100U);
    EXPECT_EQ((PCIAddress{0, 1, 31, 7}).number(), 0x1FFU);
    EXPECT_EQ((PCIAddress{1, 0, 2, 0}).number(), 0x10010U);
    EXPECT_EQ((PCIAddress{0xFFFFFFFF, 0xFF, 31, 7}).number(), 0xFFFFFFFFFFFFU);
}

constexpr const char* list =
    "0010\t80865917\t81\t        a0000004\t               0\ti915\n"
    "0100\t10de1c8d\tff\t               0\t               0\tnvidia\n"
    "0200\t8086a808\t10\n";

TEST(PCIDeviceList, TellsNumbersByPlace) {
    EXPECT_EQ(findPCIDevice(list, {0, 0, 2, 0}), (PCIDeviceNumbers{0x8086, 0x5917}));
    EXPECT_EQ(findPCIDevice(list, {0, 1, 0, 0}), (PCIDeviceNumbers{0x10DE, 0x1C8D}));
    EXPECT_EQ(findPCIDevice(list, {0, 3, 0, 0}), std::nullopt);
}

TEST(PCIDeviceList, DoesNotTellWhichDomainIsMeant) {
    const std::string two = std::string(list).append("0100\t144da80a\t0\n");
    EXPECT_EQ(findPCIDevice(two, {0, 1, 0, 0}), std::nullopt);
    EXPECT_EQ(findPCIDevice(two, {1, 1, 0, 0}), std::nullopt);
    const std::string twins = std::string(list).append("0100\t10de1c8d\t0\n");
    EXPECT_EQ(findPCIDevice(twins, {1, 1, 0, 0}), (PCIDeviceNumbers{0x10DE, 0x1C8D}));
}

TEST(PCIDeviceList, IsNothingWhenItIsDamaged) {
    for (const char* const text : {"", "\n\n", "0100\t10de1c8d\tff", "0100 10de1c8d ff\n",
                                   "0100\t10de1c8\tff\n", "0100\t10de1c8g\tff\n", "x100\t\t\n"}) {
        EXPECT_EQ(findPCIDevice(text, {0, 1, 0, 0}), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace vantor::pci_address_test
