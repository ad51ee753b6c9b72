#include "platform/darwin/chip_family.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/simulated/simulated_kernel_values.h"
#include "support/named_row.h"

namespace vantor::chip_family_test {
namespace {

std::string joined(std::span<const std::string_view> keys) {
    std::string text;
    for (const std::string_view key : keys)
        text.append(text.empty() ? "" : " ").append(key);
    return text;
}

struct KeyRow {
    ChipFamily family;
    const char* cpu;
    const char* gpu;
};

constexpr KeyRow keyRows[] = {
    {ChipFamily::m1, "Tp09 Tp0T Tp01 Tp05 Tp0D Tp0H Tp0L Tp0P Tp0X Tp0b", "Tg05 Tg0D Tg0L Tg0T"},
    {ChipFamily::m2, "Tp1h Tp1t Tp1p Tp1l Tp01 Tp05 Tp09 Tp0D Tp0X Tp0b Tp0f Tp0j", "Tg0f Tg0j"},
    {ChipFamily::m3,
     "Te05 Te0L Te0P Te0S Tf04 Tf09 Tf0A Tf0B Tf0D Tf0E Tf44 Tf49 "
     "Tf4A Tf4B Tf4D Tf4E",
     "Tf14 Tf18 Tf19 Tf1A Tf24 Tf28 Tf29 Tf2A"},
    {ChipFamily::m4, "Te05 Te0S Te09 Te0H Tp01 Tp05 Tp09 Tp0D Tp0V Tp0Y Tp0b Tp0e",
     "Tg0G Tg0H Tg1U Tg1k Tg0K Tg0L Tg0d Tg0e Tg0j Tg0k"},
    {ChipFamily::m5,
     "Tp00 Tp04 Tp08 Tp0C Tp0G Tp0K Tp0O Tp0R Tp0U Tp0X Tp0a Tp0d "
     "Tp0g Tp0j Tp0m Tp0p Tp0u Tp0y",
     "Tg0U Tg0X Tg0d Tg0g Tg0j Tg1Y Tg1c Tg1g"},
    {ChipFamily::a18, "", ""},
    {ChipFamily::unknown, "", ""},
};

TEST(TemperatureKeys, AreThoseOfTheFamilyInTheirOrder) {
    for (const KeyRow& row : keyRows) {
        EXPECT_EQ(joined(cpuTemperatureKeys(row.family)), row.cpu);
        EXPECT_EQ(joined(gpuTemperatureKeys(row.family)), row.gpu);
    }
}

struct BrandRow : NamedRow {
    const char* brand;
    ChipFamily family;
};

class ChipBrand : public testing::TestWithParam<BrandRow> {};

using enum ChipFamily;

INSTANTIATE_TEST_SUITE_P(
    Rows, ChipBrand,
    testing::Values(BrandRow{{"M1"}, "Apple M1", m1}, BrandRow{{"M2Pro"}, "Apple M2 Pro", m2},
                    BrandRow{{"M3Max"}, "Apple M3 Max", m3}, BrandRow{{"M4"}, "Apple M4", m4},
                    BrandRow{{"M5"}, "Apple M5", m5}, BrandRow{{"M0"}, "Apple M0", unknown},
                    BrandRow{{"M6"}, "Apple M6", unknown}, BrandRow{{"M10"}, "Apple M10", unknown},
                    BrandRow{{"M12Pro"}, "Apple M12 Pro", unknown},
                    BrandRow{{"LeadingZero"}, "Apple M01", m1},
                    BrandRow{{"LowerCase"}, "apple m3", m3},
                    BrandRow{{"UpperCase"}, "APPLE M4 MAX", m4},
                    BrandRow{{"NotAtTheFront"}, "Virtual Apple M2", m2},
                    BrandRow{{"TheFirstOneCounts"}, "Apple M2 Apple M3", m2},
                    BrandRow{{"HugeNumber"}, "Apple M99999999999999999999", unknown},
                    BrandRow{{"NumberOf2To32Plus1"}, "Apple M4294967297", unknown},
                    BrandRow{{"NoDigits"}, "Apple M", unknown},
                    BrandRow{{"NegativeNumber"}, "Apple M-1", unknown},
                    BrandRow{{"Blank"}, "Apple M 1", unknown},
                    BrandRow{{"Product"}, "Apple MacBook Air (M1, 2020)", unknown},
                    BrandRow{{"A18"}, "Apple A18", a18}, BrandRow{{"A18Pro"}, "Apple A18 Pro", a18},
                    BrandRow{{"A18LowerCase"}, "apple a18 pro", unknown},
                    BrandRow{{"A18BeforeM"}, "Apple M1 Apple A18", a18},
                    BrandRow{{"A17"}, "Apple A17 Pro", unknown},
                    BrandRow{{"Translated"}, "VirtualApple @ 2.50GHz", unknown},
                    BrandRow{{"Cut"}, "Apple ", unknown}, BrandRow{{"Empty"}, "", unknown}),
    rowName<BrandRow>);

TEST_P(ChipBrand, HasItsFamily) {
    EXPECT_EQ(chipFamilyOf(GetParam().brand), GetParam().family);
}

struct PlatformRow : NamedRow {
    std::optional<const char*> brand;
    std::optional<int> translated;
    std::optional<int> arm64;
    ChipPlatform platform;
};

class PlatformDetection : public testing::TestWithParam<PlatformRow> {};

constexpr auto absent = std::nullopt;
constexpr const char* intel = "Intel(R) Core(TM) i7-8700B CPU @ 3.20GHz";
constexpr ChipPlatform noAppleSilicon{};

INSTANTIATE_TEST_SUITE_P(
    Rows, PlatformDetection,
    testing::Values(
        PlatformRow{{"Native"}, "Apple M1", 0, 1, {true, m1}},
        PlatformRow{{"Intel"}, intel, absent, absent, noAppleSilicon},
        PlatformRow{{"IntelThatSaysSo"}, intel, 0, 0, noAppleSilicon},
        PlatformRow{{"Translated"}, "VirtualApple @ 2.50GHz", 1, absent, {true, unknown}},
        PlatformRow{{"TranslatedWithItsFamily"}, "Apple M2", 1, 0, {true, m2}},
        PlatformRow{{"TranslatedIntelBrand"}, intel, 1, absent, {true, unknown}},
        PlatformRow{{"TranslatedIsTwo"}, intel, 2, absent, noAppleSilicon},
        PlatformRow{{"BrandAlone"}, "Apple M3", absent, absent, {true, m3}},
        PlatformRow{{"BrandAgainstTheFlag"}, "Apple M3", absent, 0, {true, m3}},
        PlatformRow{{"FlagAlone"}, absent, absent, 1, {true, unknown}},
        PlatformRow{{"FlagIsTwo"}, absent, absent, 2, noAppleSilicon},
        PlatformRow{{"FlagWithAnotherBrand"}, "Processor M1", absent, 1, {true, unknown}},
        PlatformRow{{"BrandNotAtTheFront"}, "An Apple M1", absent, absent, noAppleSilicon},
        PlatformRow{{"BrandInLowerCase"}, "apple m1", absent, absent, noAppleSilicon},
        PlatformRow{{"Phone"}, "Apple A18 Pro", absent, 1, {true, a18}},
        PlatformRow{{"Silent"}, absent, absent, absent, noAppleSilicon}),
    rowName<PlatformRow>);

TEST_P(PlatformDetection, GoesByTranslationArchitectureAndBrand) {
    SimulatedKernelValues values;
    if (GetParam().brand) values.setText("machdep.cpu.brand_string", *GetParam().brand);
    if (GetParam().translated) values.setInt32("sysctl.proc_translated", *GetParam().translated);
    if (GetParam().arm64) values.setInt32("hw.optional.arm64", *GetParam().arm64);
    EXPECT_EQ(detectPlatform(values), GetParam().platform);
}

}  // namespace
}  // namespace vantor::chip_family_test
