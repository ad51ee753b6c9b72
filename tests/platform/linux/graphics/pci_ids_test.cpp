#include "platform/linux/graphics/pci_ids.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

namespace vantor::pci_ids_test {
namespace {

const std::string list =
    "# comment\n"
    "1002  Advanced Micro Devices, Inc. [AMD/ATI]\n"
    "\t73bf  Navi 21 [Radeon RX 6800/6800 XT / 6900 XT]\n"
    "\t\t1002 0e3a  Radeon RX 6900 XT\n"
    "10de  NVIDIA Corporation\n"
    "\t2484  GA104 [GeForce RTX 3070]\n"
    "\t\t10de 2485  A subsystem\n"
    "8086  Intel Corporation\n"
    "\t5917  UHD Graphics 620\n"
    "C 03  Display controller\n"
    "\t00  VGA compatible controller\n";

struct Names {
    std::string vendor, device;
    bool operator==(const Names&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Names& names) {
        return out << names.vendor << " / " << names.device;
    }
};

Names lookUp(std::uint16_t vendor, std::uint16_t device, const std::string& text,
             std::size_t piece = std::string::npos) {
    PCIIDsSearch search(vendor, device);
    for (std::size_t at = 0; at < text.size(); at += std::min(piece, text.size()))
        search.feed(std::string_view(text).substr(at, piece));
    return {search.vendorName(), search.deviceName()};
}

TEST(PCIIDs, NamesVendorAndDevice) {
    EXPECT_EQ(lookUp(0x10DE, 0x2484, list),
              (Names{"NVIDIA Corporation", "GA104 [GeForce RTX 3070]"}));
    EXPECT_EQ(lookUp(0x8086, 0x5917, list), (Names{"Intel Corporation", "UHD Graphics 620"}));
}

TEST(PCIIDs, MayComeInPiecesCutAnywhere) {
    for (std::size_t piece = 1; piece < list.size(); ++piece)
        EXPECT_EQ(lookUp(0x1002, 0x73BF, list, piece),
                  (Names{"Advanced Micro Devices, Inc. [AMD/ATI]",
                         "Navi 21 [Radeon RX 6800/6800 XT / 6900 XT]"}))
            << piece;
}

TEST(PCIIDs, KnowTheVendorOfAnUnknownDevice) {
    EXPECT_EQ(lookUp(0x10DE, 0xFFFF, list), (Names{"NVIDIA Corporation", ""}));
}

TEST(PCIIDs, TakeNoDeviceOfAnotherVendor) {
    EXPECT_EQ(lookUp(0x1002, 0x2484, list), (Names{"Advanced Micro Devices, Inc. [AMD/ATI]", ""}));
}

TEST(PCIIDs, TakeNoSubsystemForADevice) {
    EXPECT_EQ(lookUp(0x1002, 0x1002, list), (Names{"Advanced Micro Devices, Inc. [AMD/ATI]", ""}));
}

TEST(PCIIDs, TakeNoClassForADevice) {
    const std::string classes =
        "8086  Intel Corporation\nC 03  Display controller\n\t5917  Not this\n";
    EXPECT_EQ(lookUp(0x8086, 0x5917, classes), (Names{"Intel Corporation", ""}));
}

TEST(PCIIDs, SayNothingWhenCutOrDamaged) {
    EXPECT_EQ(lookUp(0x10DE, 0x2484, ""), (Names{"", ""}));
    EXPECT_EQ(lookUp(0x10DE, 0x2484, "10de  NVIDIA Corporation"), (Names{"", ""}));
    EXPECT_EQ(lookUp(0x10DE, 0x2484, "10de  NVIDIA Corporation\n\t2484  GA104 [Ge"),
              (Names{"NVIDIA Corporation", ""}));
    EXPECT_EQ(lookUp(0x10DE, 0x2484, "10de\n10de  \n10dx  Y\n"), (Names{"", ""}));
}

TEST(PCIIDs, SkipLinesThatAreTooLong) {
    const std::string endless(100'000, 'x');
    for (const std::size_t piece : {std::size_t{7}, std::size_t{4096}, std::string::npos})
        EXPECT_EQ(lookUp(0x8086, 0x5917, "10de  " + endless + "\n" + list, piece),
                  (Names{"Intel Corporation", "UHD Graphics 620"}));
}

}  // namespace
}  // namespace vantor::pci_ids_test
