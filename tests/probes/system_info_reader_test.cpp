#include "probes/system_info_reader.h"

#include <gtest/gtest.h>

#include "platform/program_architecture.h"
#include "platform/simulated/simulated_machine.h"

namespace vantor::system_info_reader_test {
namespace {

class SystemInfoReaderTest : public testing::Test {
  protected:
    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    SimulatedProcessInfo& info = machine->processInfo();
    SimulatedKernelValues& kernel = machine->kernelValues();
    SystemInfoReader reader{machine};
};

TEST_F(SystemInfoReaderTest, TellsWhatTheMachineIs) {
    const SystemInfoStats& stats = reader.read();
    EXPECT_EQ(stats.hostName, "simbook.local");
    EXPECT_EQ(stats.hardwareModel, "SimBook1,1");
    EXPECT_EQ(stats.operatingSystem, "macOS 14.2.1");
    EXPECT_EQ(stats.kernelVersion, "23A344");
    EXPECT_EQ(stats.architecture, programArchitecture);
    EXPECT_FALSE(stats.architecture.empty());
    EXPECT_FALSE(stats.isRunningUnderRosetta);
    EXPECT_EQ(stats.thermalState, "Nominal");
    EXPECT_FALSE(stats.lowPowerModeEnabled);
}

TEST_F(SystemInfoReaderTest, WritesAPatchOfZero) {
    info.version = {13, 0, 0};
    EXPECT_EQ(reader.read().operatingSystem, "macOS 13.0.0");
}

TEST_F(SystemInfoReaderTest, TakesTheSystemsOwnNameWhereItHasOne) {
    info.systemName = "Some Distribution 12 (word)";
    EXPECT_EQ(reader.read().operatingSystem, "Some Distribution 12 (word)");
}

TEST_F(SystemInfoReaderTest, HardwareWithoutANameIsCalledByThePlatformsWord) {
    kernel.remove("hw.model");
    EXPECT_EQ(reader.read().hardwareModel, "Unknown Mac");
}

TEST_F(SystemInfoReaderTest, KernelVersionMayBeEmptyOrMissing) {
    kernel.setText("kern.osversion", "");
    EXPECT_EQ(reader.read().kernelVersion, "");
    kernel.remove("kern.osversion");
    SystemInfoReader other(machine);
    EXPECT_EQ(other.read().kernelVersion, "");
}

TEST_F(SystemInfoReaderTest, RunsTranslatedOnlyWhereTheKernelSaysOne) {
    for (const auto& [value, isTranslated] : {std::pair{0, false}, {1, true}, {2, false}}) {
        kernel.setInt32("sysctl.proc_translated", value);
        EXPECT_EQ(SystemInfoReader(machine).read().isRunningUnderRosetta, isTranslated) << value;
    }
    kernel.setUInt64("sysctl.proc_translated", 1);
    EXPECT_FALSE(SystemInfoReader(machine).read().isRunningUnderRosetta) << "not an int32";
}

TEST_F(SystemInfoReaderTest, DoesNotRunTranslatedWhereTheKernelKnowsNoSuchThing) {
    kernel.remove("sysctl.proc_translated");
    EXPECT_FALSE(reader.read().isRunningUnderRosetta);
}

TEST_F(SystemInfoReaderTest, FindsOutOnceWhatTheMachineIs) {
    reader.read();
    kernel.setText("hw.model", "Other");
    kernel.setText("kern.osversion", "Other");
    kernel.setInt32("sysctl.proc_translated", 1);
    info.version = {99, 0, 0};
    info.systemName = "Other";
    const SystemInfoStats& stats = reader.read();
    EXPECT_EQ(stats.hardwareModel, "SimBook1,1");
    EXPECT_EQ(stats.kernelVersion, "23A344");
    EXPECT_EQ(stats.operatingSystem, "macOS 14.2.1");
    EXPECT_FALSE(stats.isRunningUnderRosetta);
    EXPECT_EQ(kernel.valueReads("hw.model"), 1);
    EXPECT_EQ(kernel.valueReads("kern.osversion"), 1);
}

TEST_F(SystemInfoReaderTest, ShowsAChangeOfTheHostsNameAtTheNextRead) {
    EXPECT_EQ(reader.read().hostName, "simbook.local");
    info.host = "renamed.local";
    EXPECT_EQ(reader.read().hostName, "renamed.local");
}

TEST_F(SystemInfoReaderTest, ShowsTheTimeSinceBootOfEachRead) {
    machine->clock()->wind(std::chrono::seconds(90));
    const double first = reader.read().uptimeSeconds;
    machine->clock()->wind(std::chrono::milliseconds(2500));
    EXPECT_DOUBLE_EQ(reader.read().uptimeSeconds, first + 2.5);
}

TEST_F(SystemInfoReaderTest, PutsTheThermalStateInWords) {
    const std::pair<int, const char*> rows[] = {{0, "Nominal"},  {1, "Fair"},     {2, "Serious"},
                                                {3, "Critical"}, {4, "Unknown"},  {7, "Unknown"},
                                                {-1, "Unknown"}, {256, "Unknown"}};
    for (const auto& [state, text] : rows) {
        info.thermal = state;
        EXPECT_EQ(reader.read().thermalState, text) << state;
    }
}

TEST_F(SystemInfoReaderTest, KnowsLowPowerModeFromVersionTwelveOn) {
    info.lowPowerMode = true;
    info.version = {11, 7, 10};
    EXPECT_FALSE(reader.read().lowPowerModeEnabled);
    info.version = {12, 0, 0};
    EXPECT_TRUE(reader.read().lowPowerModeEnabled);
    info.lowPowerMode = false;
    EXPECT_FALSE(reader.read().lowPowerModeEnabled);
}

TEST_F(SystemInfoReaderTest, NamesAreMadeUTF8) {
    info.host = "caf\xE9";
    info.systemName = "Syst\xE8me \xE2\x82";
    EXPECT_EQ(reader.read().hostName, "caf?");
    EXPECT_EQ(reader.read().operatingSystem, "Syst?me ??");
    info.host = "caf\xC3\xA9";
    EXPECT_EQ(reader.read().hostName, "caf\xC3\xA9");
}

TEST_F(SystemInfoReaderTest, KeepsItsRecord) {
    const SystemInfoStats* const first = &reader.read();
    EXPECT_EQ(first, &reader.read());
}

TEST(SystemInfoReader, AnswersOnAMachineWhereEveryCallFails) {
    SystemInfoReader reader(SimulatedMachine::broken());
    const SystemInfoStats& stats = reader.read();
    EXPECT_EQ(stats.hardwareModel, "Unknown Mac");
    EXPECT_EQ(stats.kernelVersion, "");
    EXPECT_EQ(stats.thermalState, "Unknown");
}

}  // namespace
}  // namespace vantor::system_info_reader_test
