#include "platform/linux/sensors/processor_sensor_names.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/named_row.h"

namespace vantor::processor_sensor_names_test {
namespace {

using Part = ProcessorSensorRole::Part;
using Role = std::optional<ProcessorSensorRole>;
constexpr auto none = std::nullopt;
const Role package = ProcessorSensorRole{Part::package, 0};
const Role control = ProcessorSensorRole{Part::control, 0};

Role core(unsigned number) {
    return ProcessorSensorRole{Part::core, number};
}

struct SensorRow : NamedRow {
    const char* driver;
    const char* label;
    Role role;
};

class ProcessorSensorName : public testing::TestWithParam<SensorRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ProcessorSensorName,
    testing::Values(SensorRow{{"IntelPackage"}, "coretemp", "Package id 0", package},
                    SensorRow{{"IntelSecondPackage"}, "coretemp", "Package id 1", package},
                    SensorRow{{"IntelCore"}, "coretemp", "Core 0", core(0)},
                    SensorRow{{"IntelCoreOfAHybrid"}, "coretemp", "Core 28", core(28)},
                    SensorRow{{"IntelNoLabel"}, "coretemp", "", none},
                    SensorRow{{"IntelPackageNoNumber"}, "coretemp", "Package id ", none},
                    SensorRow{{"IntelCoreNoNumber"}, "coretemp", "Core", none},
                    SensorRow{{"IntelCoreNegative"}, "coretemp", "Core -1", none},
                    SensorRow{{"IntelCoreAndMore"}, "coretemp", "Core 1 (low)", none},
                    SensorRow{{"IntelCoreHuge"}, "coretemp", "Core 4294967296", none},
                    SensorRow{{"IntelLowerCase"}, "coretemp", "core 1", none},
                    SensorRow{{"AMDDie"}, "k10temp", "Tdie", package},
                    SensorRow{{"AMDControl"}, "k10temp", "Tctl", control},
                    SensorRow{{"AMDOldKernel"}, "k10temp", "", control},
                    SensorRow{{"AMDCoreDie"}, "k10temp", "Tccd1", core(1)},
                    SensorRow{{"AMDCoreDie12"}, "k10temp", "Tccd12", core(12)},
                    SensorRow{{"AMDOther"}, "k10temp", "Tsomething", none},
                    SensorRow{{"AMDByAnotherDriver"}, "zenpower", "Tdie", package},
                    SensorRow{{"AMDCoreDieByAnotherDriver"}, "zenpower", "Tccd3", core(3)},
                    SensorRow{{"ThirdMakersCore"}, "via_cputemp", "Core 3", core(3)},
                    SensorRow{{"ThirdMakersNoLabel"}, "via_cputemp", "", none},
                    SensorRow{{"LabelOfTheOtherMaker"}, "coretemp", "Tdie", none},
                    SensorRow{{"LabelOfTheOtherMaker2"}, "k10temp", "Package id 0", none},
                    SensorRow{{"Disk"}, "drivetemp", "", none},
                    SensorRow{{"FastDisk"}, "nvme", "Composite", none},
                    SensorRow{{"GraphicsCard"}, "amdgpu", "edge", none},
                    SensorRow{{"Board"}, "nct6775", "CPUTIN", none},
                    SensorRow{{"Firmware"}, "acpitz", "", none},
                    SensorRow{{"Nothing"}, "", "", none}),
    rowName<SensorRow>);

TEST_P(ProcessorSensorName, HasItsRole) {
    EXPECT_EQ(processorSensorRole(GetParam().driver, GetParam().label), GetParam().role);
    if (GetParam().role) {
        EXPECT_TRUE(isProcessorMonitor(GetParam().driver));
    }
}

TEST(ProcessorMonitors, AreFourDrivers) {
    for (const char* driver : {"coretemp", "via_cputemp", "k10temp", "zenpower"})
        EXPECT_TRUE(isProcessorMonitor(driver)) << driver;
    for (const char* driver : {"", "coretemp2", "Coretemp", "drivetemp", "nvme", "amdgpu",
                               "nouveau", "i915", "xe", "acpitz", "nct6775", "iwlwifi_1", "BAT0"})
        EXPECT_FALSE(isProcessorMonitor(driver)) << driver;
}

TEST(ProcessorZones, AreThoseAtTheProcessor) {
    for (const char* type :
         {"x86_pkg_temp", "cpu_thermal", "cpu-thermal", "soc_thermal", "soc-thermal",
          "cpu0-thermal", "cpu-0-1-thermal", "cpu4-top-thermal", "cpuss0-thermal"})
        EXPECT_TRUE(isProcessorZone(type)) << type;
    for (const char* type : {"", "acpitz", "gpu-thermal", "gpu_thermal", "INT3400 Thermal",
                             "iwlwifi_1", "pch_skylake", "TCPU", "B0D4", "battery", "cpu",
                             "cpu-thermal2", "thermal", "x86_pkg_temp2", "ddr-thermal"})
        EXPECT_FALSE(isProcessorZone(type)) << type;
}

// Boards with an RK3588 and their like: none of the zones is named after a "cpu".
TEST(ProcessorZones, AreThoseOfClustersOfBigAndLittleCores) {
    for (const char* type : {"package-thermal", "package_thermal", "bigcore0-thermal",
                             "bigcore2-thermal", "bigcore-thermal", "littlecore-thermal",
                             "little-core-thermal", "little_core_thermal", "cluster0-thermal"})
        EXPECT_TRUE(isProcessorZone(type)) << type;
    for (const char* type : {"center-thermal", "npu-thermal", "package", "bigcore0", "cluster0",
                             "mypackage-thermal", "sub-cluster-thermal"})
        EXPECT_FALSE(isProcessorZone(type)) << type;
}

TEST(TemperatureInputs, HaveANumber) {
    EXPECT_EQ(temperatureInputNumber("temp1_input"), 1U);
    EXPECT_EQ(temperatureInputNumber("temp128_input"), 128U);
    for (const char* name :
         {"", "temp", "temp_input", "_input", "temp1", "temp1_label", "temp1_input2", "tempX_input",
          "temp-1_input", "temp+1_input", "temp 1_input", "temp99999999999_input", "in1_input",
          "temp1_inpu", "temp_inputtemp_input"})
        EXPECT_EQ(temperatureInputNumber(name), none) << name;
}

}  // namespace
}  // namespace vantor::processor_sensor_names_test
