#include "probes/gpu_names.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>

#include "support/named_row.h"

namespace vantor::gpu_names_test {
namespace {

struct NormalizedRow : NamedRow {
    std::string written;
    std::string normalized;
};

class NormalizedName : public testing::TestWithParam<NormalizedRow> {};

TEST_P(NormalizedName, HasOnlyLettersAndDigitsInLowerCase) {
    EXPECT_EQ(normalizedGPUName(GetParam().written), GetParam().normalized);
    EXPECT_EQ(normalizedGPUName(GetParam().normalized), GetParam().normalized);
}

INSTANTIATE_TEST_SUITE_P(
    GPUNames, NormalizedName,
    testing::Values(
        NormalizedRow{{"Empty"}, "", ""}, NormalizedRow{{"Plain"}, "m1", "m1"},
        NormalizedRow{{"Cases"}, "AbcXyzAZ", "abcxyzaz"},
        NormalizedRow{{"Blanks"}, " Radeon\tPro 5500 M\n", "radeonpro5500m"},
        NormalizedRow{
            {"Punctuation"}, "Navi 21 [Radeon RX 6800/6800 XT]", "navi21radeonrx68006800xt"},
        NormalizedRow{{"NothingLeft"}, "-- (/) --", ""},
        NormalizedRow{{"RegisteredSign"}, "Intel® Arc™ A770", "intelarca770"},
        NormalizedRow{{"NoBreakSpaceAndDash"}, "GeForce\u00A0RTX\u20114090", "geforcertx4090"},
        NormalizedRow{{"LettersPastASCIIStay"}, "Grafik für Ärzte", "grafikfürÄrzte"},
        NormalizedRow{{"OtherScripts"}, "显卡、一号 Видео", "显卡一号Видео"},
        NormalizedRow{{"Emoji"}, "GPU 🚀1", "gpu1"}, NormalizedRow{{"FourByteLetter"}, "𝐀a", "𝐀a"},
        NormalizedRow{{"MalformedBytes"}, "a\xFFz\xE2\x82", "az"},
        NormalizedRow{{"ZeroByte"}, std::string("a\0b", 3), "ab"}),
    rowName<NormalizedRow>);

TEST(GPUNames, AreSimilarWhenEqualOrOneContainsTheOther) {
    EXPECT_TRUE(areSimilarNames("radeonpro", "radeonpro"));
    EXPECT_TRUE(areSimilarNames("radeonpro", "radeon"));
    EXPECT_TRUE(areSimilarNames("pro", "radeonpro"));
    EXPECT_FALSE(areSimilarNames("radeonpro", "radeonprx"));
    EXPECT_FALSE(areSimilarNames("radeon", "geforce"));
}

PropertyValue dataOf(const std::string& bytes) {
    PropertyValue::Data data;
    for (const char byte : bytes)
        data.push_back(static_cast<std::byte>(byte));
    return PropertyValue(std::move(data));
}

TEST(GPUNames, TextIsTakenAsItIs) {
    const PropertyValue model(" Radeon Pro ");
    EXPECT_EQ(deviceName(&model), " Radeon Pro ");
}

TEST(GPUNames, MalformedTextIsRepaired) {
    const PropertyValue model("Radeon\xFF");
    EXPECT_EQ(deviceName(&model), "Radeon\uFFFD");
}

TEST(GPUNames, DataIsReadUpToItsFirstZeroByte) {
    const PropertyValue ended = dataOf(std::string("Iris\0x\0", 7));
    EXPECT_EQ(deviceName(&ended), "Iris");
    const PropertyValue unended = dataOf("Größe");
    EXPECT_EQ(deviceName(&unended), "Größe");
}

TEST(GPUNames, WhatIsNoNameIsAbsent) {
    EXPECT_EQ(deviceName(nullptr), std::nullopt);
    for (const PropertyValue& model :
         {PropertyValue(""), dataOf(""), dataOf(std::string("\0Iris", 5)), dataOf("Iris\xC3"),
          PropertyValue(5), PropertyValue(true), PropertyValue(PropertyDictionary{})}) {
        EXPECT_EQ(deviceName(&model), std::nullopt);
    }
}

}  // namespace
}  // namespace vantor::gpu_names_test
