#include "platform/linux/processor/cpu_identity.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/fake_kernel_tree.h"

namespace vantor::cpu_identity_test {
namespace {

using namespace std::string_literals;

constexpr auto x86Info =
    "processor\t: 0\n"
    "vendor_id\t: GenuineIntel\n"
    "cpu family\t: 6\n"
    "model\t\t: 106\n"
    "model name\t: Intel(R) Xeon(R) Processor @ 2.60GHz\n"
    "flags\t\t: fpu vme de pse\n"
    "\n"
    "processor\t: 1\n"
    "model name\t: Another @ 1.00GHz\n";
constexpr auto armInfo =
    "processor\t: 0\n"
    "BogoMIPS\t: 108.00\n"
    "Features\t: fp asimd evtstrm\n"
    "CPU implementer\t: 0x41\n"
    "CPU part\t: 0xd0b\n";

TEST(CPUInfo, GivesTheFirstValueOfAKey) {
    EXPECT_EQ(findInCPUInfo(x86Info, "model name"), "Intel(R) Xeon(R) Processor @ 2.60GHz");
    EXPECT_EQ(findInCPUInfo(x86Info, "model"), "106");
    EXPECT_EQ(findInCPUInfo(x86Info, "processor"), "0");
    EXPECT_EQ(findInCPUInfo(x86Info, "name"), std::nullopt);
    EXPECT_EQ(findInCPUInfo(armInfo, "model name"), std::nullopt);
    EXPECT_EQ(findInCPUInfo("", "model name"), std::nullopt);
}

TEST(CPUInfo, KeepsColonsOfAValueAndPassesEmptyOnes) {
    EXPECT_EQ(findInCPUInfo("model name : \nmodel name : a: b", "model name"), "a: b");
    EXPECT_EQ(findInCPUInfo("model name\n", "model name"), std::nullopt);
}

struct FrequencyRow {
    const char* name;
    const char* processor;
    std::optional<std::uint64_t> hertz;

    friend void PrintTo(const FrequencyRow& row, std::ostream* out) { *out << row.name; }
};

class FrequencyInName : public testing::TestWithParam<FrequencyRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, FrequencyInName,
    testing::Values(FrequencyRow{"Gigahertz", "Xeon @ 2.60GHz", 2'600'000'000},
                    FrequencyRow{"BlankBeforeTheUnit", "Xeon @ 3.4 GHz", 3'400'000'000},
                    FrequencyRow{"NoBlanks", "Xeon@3GHz", 3'000'000'000},
                    FrequencyRow{"Megahertz", "Old @ 733MHz", 733'000'000},
                    FrequencyRow{"LastAt", "A @ B @ 1.80GHz", 1'800'000'000},
                    FrequencyRow{"RoundsToWholeHertz", "X @ 2.1999999999GHz", 2'200'000'000},
                    FrequencyRow{"None", "Ryzen 9 16-Core Processor", std::nullopt},
                    FrequencyRow{"FrequencyWithoutAt", "Xeon 2.60GHz", std::nullopt},
                    FrequencyRow{"NoNumber", "Xeon @ GHz", std::nullopt},
                    FrequencyRow{"OtherUnit", "Xeon @ 2.60THz", std::nullopt},
                    FrequencyRow{"NoUnit", "Xeon @ 2.60", std::nullopt},
                    FrequencyRow{"TextAfterTheUnit", "Xeon @ 2.60GHz (v2)", std::nullopt},
                    FrequencyRow{"Zero", "Xeon @ 0.00GHz", std::nullopt},
                    FrequencyRow{"Negative", "Xeon @ -2.60GHz", std::nullopt},
                    FrequencyRow{"Infinite", "Xeon @ infGHz", std::nullopt},
                    FrequencyRow{"NotANumber", "Xeon @ nanGHz", std::nullopt},
                    FrequencyRow{"Absurd", "Xeon @ 99999999GHz", std::nullopt},
                    FrequencyRow{"AtTheEnd", "Xeon @", std::nullopt},
                    FrequencyRow{"Empty", "", std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(FrequencyInName, IsReadFromItsEnd) {
    EXPECT_EQ(frequencyInName(GetParam().processor), GetParam().hertz);
}

class CPUIdentity : public testing::Test {
  protected:
    FakeKernelTree tree;
    LinuxRoots roots = tree.roots();
};

TEST_F(CPUIdentity, NamesAnX86ProcessorAsCPUInfoDoes) {
    tree.proc("cpuinfo", x86Info);
    tree.proc("device-tree/model", "Not this\0"s);
    EXPECT_EQ(readProcessorName(roots), "Intel(R) Xeon(R) Processor @ 2.60GHz");
}

TEST_F(CPUIdentity, NamesAnARMProcessorByTheDeviceTree) {
    tree.proc("cpuinfo", armInfo);
    EXPECT_EQ(readProcessorName(roots), std::nullopt);
    tree.sys("firmware/devicetree/base/model", "Board 5\0"s);
    EXPECT_EQ(readProcessorName(roots), "Board 5");
    tree.proc("device-tree/model", "Board 4\0"s);
    EXPECT_EQ(readProcessorName(roots), "Board 4");
}

TEST_F(CPUIdentity, NamesTheProcessorByTheDeviceTreeWithoutCPUInfo) {
    tree.proc("device-tree/model", "Board 4\0"s);
    EXPECT_EQ(readProcessorName(roots), "Board 4");
}

TEST_F(CPUIdentity, NamesTheMachineByItsProductElseByTheDeviceTree) {
    EXPECT_EQ(readHardwareModel(roots), std::nullopt);
    tree.proc("device-tree/model", "Board 4\0"s);
    EXPECT_EQ(readHardwareModel(roots), "Board 4");
    tree.sys("class/dmi/id/product_name", "Server 7\n");
    EXPECT_EQ(readHardwareModel(roots), "Server 7");
    tree.sys("class/dmi/id/product_name", " \n");
    EXPECT_EQ(readHardwareModel(roots), "Board 4");
}

TEST_F(CPUIdentity, NamesTheMachineByItsBoardWhereNobodyFilledTheProductIn) {
    tree.sys("class/dmi/id/product_name", "To Be Filled By O.E.M.\n");
    EXPECT_EQ(readHardwareModel(roots), std::nullopt);
    tree.sys("class/dmi/id/board_name", "Default string\n");
    EXPECT_EQ(readHardwareModel(roots), std::nullopt);
    tree.sys("class/dmi/id/board_name", "B550 Board\n");
    EXPECT_EQ(readHardwareModel(roots), "B550 Board");
}

TEST_F(CPUIdentity, LeavesOutTheBlanksThatFillAProcessorsNameUp) {
    tree.proc("cpuinfo", "model name\t:  Core 2 CPU          6600  @ 2.40GHz  \n");
    EXPECT_EQ(readProcessorName(roots), "Core 2 CPU 6600 @ 2.40GHz");
}

TEST_F(CPUIdentity, CountsFromTheKernelsLists) {
    EXPECT_EQ(countOnlineProcessors(roots), std::nullopt);
    tree.sys("devices/system/cpu/online", "0-2,5\n");
    tree.sys("devices/system/cpu/present", "0-7\n");
    EXPECT_EQ(countOnlineProcessors(roots), 4);
    EXPECT_EQ(countPresentProcessors(roots), 8);
    tree.sys("devices/system/cpu/online", "\n");
    EXPECT_EQ(countOnlineProcessors(roots), std::nullopt) << "some processor answers this";
}

struct Place {
    const char *package, *die, *core;
};

struct TopologyRow {
    const char* name;
    const char* online;
    std::vector<Place> places;
    std::optional<std::int32_t> cores;

    friend void PrintTo(const TopologyRow& row, std::ostream* out) { *out << row.name; }
};

class PhysicalCores : public testing::TestWithParam<TopologyRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, PhysicalCores,
    testing::Values(
        TopologyRow{"TwoThreadsEach",
                    "0-3",
                    {{"0", "0", "0"}, {"0", "0", "1"}, {"0", "0", "0"}, {"0", "0", "1"}},
                    2},
        TopologyRow{"SameNumbersInTwoPackages",
                    "0-3",
                    {{"0", "0", "0"}, {"0", "0", "1"}, {"1", "0", "0"}, {"1", "0", "1"}},
                    4},
        TopologyRow{"SameNumbersInTwoDies",
                    "0-3",
                    {{"0", "0", "0"}, {"0", "0", "1"}, {"0", "1", "0"}, {"0", "1", "1"}},
                    4},
        TopologyRow{"KernelWithoutDies", "0-1", {{"0", "", "0"}, {"0", "", "1"}}, 2},
        TopologyRow{"FirmwareWithoutPackages", "0-1", {{"-1", "", "0"}, {"-1", "", "1"}}, 2},
        TopologyRow{"OfflineProcessorsDoNotCount",
                    "0,2",
                    {{"0", "0", "0"}, {"0", "0", "1"}, {"0", "0", "0"}},
                    1},
        TopologyRow{"CoreMissing", "0-1", {{"0", "0", "0"}, {"0", "0", ""}}, std::nullopt},
        TopologyRow{"CoreMalformed", "0-1", {{"0", "0", "0"}, {"0", "0", "1x"}}, std::nullopt},
        TopologyRow{"NoOnlineList", "", {{"0", "0", "0"}}, std::nullopt}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(PhysicalCores, AreDistinctPlacesOfTheProcessorsOnline) {
    const FakeKernelTree tree;
    tree.sys("devices/system/cpu/online", GetParam().online + "\n"s);
    unsigned processor = 0;
    for (const auto& [package, die, core] : GetParam().places) {
        tree.core(processor++, package, die, core);
    }
    EXPECT_EQ(countPhysicalCores(tree.roots()), GetParam().cores);
}

class NominalFrequency : public CPUIdentity {
  protected:
    NominalFrequency() { tree.sys("devices/system/cpu/online", "2-3\n"); }
    void baseFrequency(std::string_view kilohertz) {
        tree.sys("devices/system/cpu/cpu2/cpufreq/base_frequency", kilohertz);
    }
    void firmwareFrequency(std::string_view megahertz) {
        tree.sys("devices/system/cpu/cpu2/acpi_cppc/nominal_freq", megahertz);
    }
};

TEST_F(NominalFrequency, IsTheBaseFrequencyOfTheFirstProcessorOnline) {
    tree.proc("cpuinfo", x86Info);
    baseFrequency("2400000\n");
    EXPECT_EQ(readNominalFrequencyHz(roots), 2'400'000'000U);
}

TEST_F(NominalFrequency, IsTheOneOfTheNameWithoutABaseFrequency) {
    tree.proc("cpuinfo", x86Info);
    EXPECT_EQ(readNominalFrequencyHz(roots), 2'600'000'000U);
}

TEST_F(NominalFrequency, IsTheOneOfTheNameWhereTheBaseFrequencyIsNonsense) {
    tree.proc("cpuinfo", x86Info);
    for (const char* nonsense : {"0\n", "-1\n", "1000000000\n", "fast\n", "", "24 00\n"}) {
        baseFrequency(nonsense);
        EXPECT_EQ(readNominalFrequencyHz(roots), 2'600'000'000U) << nonsense;
    }
}

TEST_F(NominalFrequency, IsTheOneOfTheFirmwareWhereNothingElseNamesOne) {
    firmwareFrequency("3000\n");
    EXPECT_EQ(readNominalFrequencyHz(roots), 3'000'000'000U);
    tree.proc("cpuinfo", "model name\t: Ryzen 9 16-Core Processor\n");
    EXPECT_EQ(readNominalFrequencyHz(roots), 3'000'000'000U);
    tree.proc("cpuinfo", x86Info);
    EXPECT_EQ(readNominalFrequencyHz(roots), 2'600'000'000U);
    baseFrequency("2400000\n");
    EXPECT_EQ(readNominalFrequencyHz(roots), 2'400'000'000U);
}

TEST_F(NominalFrequency, IsAbsentWhereTheFirmwareTalksNonsense) {
    for (const char* nonsense : {"0\n", "-1\n", "1000000\n", "fast\n", "", "30 00\n"}) {
        firmwareFrequency(nonsense);
        EXPECT_EQ(readNominalFrequencyHz(roots), std::nullopt) << nonsense;
    }
}

TEST_F(NominalFrequency, IsAbsentWhereNothingNamesOne) {
    EXPECT_EQ(readNominalFrequencyHz(roots), std::nullopt);
    tree.proc("cpuinfo", armInfo);
    EXPECT_EQ(readNominalFrequencyHz(roots), std::nullopt);
}

}  // namespace
}  // namespace vantor::cpu_identity_test
