#include "platform/linux/graphics/amdgpu_ids.h"

#include <gtest/gtest.h>

#include <string>

namespace vantor::amdgpu_ids_test {
namespace {

const std::string list =
    "# List of AMDGPU IDs\n"
    "1.0.0\n"
    "1638,\tC8,\tAMD Radeon Graphics\n"
    "1638,\tC9,\tAMD Radeon Graphics\n"
    "73BF,\tC0,\tAMD Radeon RX 6900 XT\n"
    "73BF,\tC1,\tAMD Radeon RX 6800 XT\n"
    "67DF,\tEF,\tRadeon RX 570X, with a comma\n";

TEST(AMDGPUIDs, NameADeviceByItsRevision) {
    EXPECT_EQ(findAMDGPUName(list, 0x73BF, 0xC0), "AMD Radeon RX 6900 XT");
    EXPECT_EQ(findAMDGPUName(list, 0x73BF, 0xC1), "AMD Radeon RX 6800 XT");
    EXPECT_EQ(findAMDGPUName(list, 0x67DF, 0xEF), "Radeon RX 570X, with a comma");
}

TEST(AMDGPUIDs, DoNotGuessAnUnknownRevision) {
    EXPECT_EQ(findAMDGPUName(list, 0x73BF, 0x00), std::nullopt);
    EXPECT_EQ(findAMDGPUName(list, 0xFFFF, 0xC0), std::nullopt);
}

TEST(AMDGPUIDs, WithoutARevisionSayWhatAllHaveInCommon) {
    EXPECT_EQ(findAMDGPUName(list, 0x1638, std::nullopt), "AMD Radeon Graphics");
    EXPECT_EQ(findAMDGPUName(list, 0x73BF, std::nullopt), std::nullopt);
    EXPECT_EQ(findAMDGPUName(list, 0xFFFF, std::nullopt), std::nullopt);
}

TEST(AMDGPUIDs, SayNothingWhenCutOrDamaged) {
    for (const char* const text :
         {"", "73BF,\tC0,\tAMD Radeon", "73BF,\tC0,\t\n", "73BF\tC0\tX\n", "73BF,\tXX,\tName\n",
          "173BF,\tC0,\tName\n", "73BF,,Name\n", ",,\n", "73BF,\n"}) {
        EXPECT_EQ(findAMDGPUName(text, 0x73BF, 0xC0), std::nullopt) << text;
        EXPECT_EQ(findAMDGPUName(text, 0x73BF, std::nullopt), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace vantor::amdgpu_ids_test
