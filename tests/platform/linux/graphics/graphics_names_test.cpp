#include "platform/linux/graphics/graphics_names.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "support/fake_kernel_tree.h"

namespace vantor::graphics_names_test {
namespace {

GraphicsIdentity pci(std::uint16_t vendor, std::uint16_t device) {
    GraphicsIdentity identity;
    identity.vendor = vendor;
    identity.device = device;
    return identity;
}

GraphicsIdentity plain(std::string driver, std::string compatible = {}) {
    GraphicsIdentity identity;
    identity.driver = std::move(driver);
    identity.compatible = std::move(compatible);
    return identity;
}

struct Row {
    const char* name;
    GraphicsIdentity identity;
    ListedNames listed;
    const char* shown;

    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

class GraphicsName : public testing::TestWithParam<Row> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, GraphicsName,
    testing::Values(
        Row{"NVIDIA",
            pci(0x10DE, 0x2484),
            {"NVIDIA Corporation", "GA104 [GeForce RTX 3070]", ""},
            "NVIDIA GeForce RTX 3070"},
        Row{"IntelWithoutBrackets",
            pci(0x8086, 0x5917),
            {"Intel Corporation", "UHD Graphics 620", ""},
            "Intel UHD Graphics 620"},
        Row{"IntelWithBrackets",
            pci(0x8086, 0x9A49),
            {"Intel Corporation", "TigerLake-LP GT2 [Iris Xe Graphics]", ""},
            "Intel Iris Xe Graphics"},
        Row{"AMDByItsOwnList",
            pci(0x1002, 0x73BF),
            {"Advanced Micro Devices, Inc. [AMD/ATI]", "Navi 21 [Radeon RX 6800]",
             "AMD Radeon RX 6800 XT"},
            "AMD Radeon RX 6800 XT"},
        Row{"AMDWithoutItsVendor",
            pci(0x1002, 0x73BF),
            {"", "", "Radeon RX 570X"},
            "AMD Radeon RX 570X"},
        Row{"ATI", pci(0x1002, 0x6600), {"", "", "ATI FirePro V4800"}, "ATI FirePro V4800"},
        Row{"UnknownVendorByTheList",
            pci(0x1D17, 0x3D00),
            {"Zhaoxin [ZX]", "ZX-E C-960 GPU", ""},
            "ZX ZX-E C-960 GPU"},
        Row{"VendorInTheName",
            pci(0x1A03, 0x2000),
            {"ASPEED Technology, Inc.", "ASPEED Graphics Family", ""},
            "ASPEED Graphics Family"},
        Row{"BracketsInTheMiddle",
            pci(0x10DE, 1),
            {"", "GM [GeForce] Rev. 2", ""},
            "NVIDIA GM [GeForce] Rev. 2"},
        Row{"EmptyBrackets", pci(0x10DE, 1), {"", "GM107 []", ""}, "NVIDIA GM107 []"},
        Row{"NumbersAlone", pci(0x1002, 0x73BF), {}, "AMD 0x73bf"},
        Row{"NumbersOfAnUnknownVendor", pci(0x1ED5, 0x0100), {}, "PCI 0x1ed5 0x0100"},
        Row{"DeviceTree", plain("v3d", "brcm,2711-v3d"), {}, "brcm,2711-v3d"},
        Row{"Driver", plain("vkms"), {}, "vkms"}, Row{"Nothing", plain(""), {}, "Graphics Device"},
        Row{"ControlCharacters", plain("", "\x01\x02"), {}, "Graphics Device"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(GraphicsName, IsWhatPeopleKnow) {
    EXPECT_EQ(graphicsName(GetParam().identity, GetParam().listed), GetParam().shown);
}

TEST(GraphicsNameLists, AreSoughtWhereDistributionsInstallThem) {
    const FakeKernelTree tree;
    const GraphicsNames names(tree.roots());
    GraphicsIdentity card = pci(0x1002, 0x73BF);
    card.revision = 0xC1;
    EXPECT_EQ(names.find(card), "AMD 0x73bf");
    tree.usr("share/hwdata/pci.ids", "1002  AMD\n\t73bf  Navi 21 [Radeon RX 6800/6900]\n");
    EXPECT_EQ(names.find(card), "AMD Radeon RX 6800/6900");
    tree.usr("share/misc/pci.ids", "1002  AMD\n\t73bf  Navi 21 [Radeon from misc]\n");
    EXPECT_EQ(names.find(card), "AMD Radeon from misc");
    tree.usr("share/libdrm/amdgpu.ids", "73BF,\tC1,\tAMD Radeon RX 6800 XT\n");
    EXPECT_EQ(names.find(card), "AMD Radeon RX 6800 XT");
    card.revision = 0xC0;
    EXPECT_EQ(names.find(card), "AMD Radeon from misc");
    EXPECT_EQ(names.find(pci(0x10DE, 0x73BF)), "NVIDIA 0x73bf");
}

TEST(GraphicsNameLists, ThatCannotBeReadAreNone) {
    const FakeKernelTree tree;
    tree.usr("share/misc/pci.ids/a", "");
    tree.usr("share/libdrm/amdgpu.ids/a", "");
    EXPECT_EQ(GraphicsNames(tree.roots()).find(pci(0x1002, 0x73BF)), "AMD 0x73bf");
}

}  // namespace
}  // namespace vantor::graphics_names_test
