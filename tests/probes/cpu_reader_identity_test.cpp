#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "platform/simulated/simulated_machine.h"
#include "probes/cpu_reader.h"
#include "support/scripted_sensors.h"

namespace vantor::cpu_reader_identity_test {
namespace {

struct ModelRow {
    const char* name;
    std::optional<std::string> brand, hardware;
    std::string model;

    friend void PrintTo(const ModelRow& row, std::ostream* out) { *out << row.name; }
};

const CPUStats& secondRead(CPUReader& reader, SimulatedMachine& machine) {
    reader.read();
    machine.hostProcessors().spend(0, {1, 0, 1, 0});
    return *reader.read();
}

class ProcessorModel : public testing::TestWithParam<ModelRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, ProcessorModel,
    testing::Values(ModelRow{"Brand", "Processor 9", "Book1,1", "Processor 9"},
                    ModelRow{"HardwareModel", std::nullopt, "Book1,1", "Book1,1"},
                    ModelRow{"Neither", std::nullopt, std::nullopt, "Unknown Processor"},
                    ModelRow{"BrandThatIsNotUTF8", "Proc\xE9", "Book1,1", "Book1,1"},
                    ModelRow{"NeitherIsUTF8", "Proc\xE9", "\xFF", "Unknown Processor"},
                    ModelRow{"EmptyBrandIsABrand", "", "Book1,1", ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(ProcessorModel, FallsBackToTheNextName) {
    const auto machine = SimulatedMachine::laptop();
    auto& values = machine->kernelValues();
    values.remove("machdep.cpu.brand_string");
    values.remove("hw.model");
    if (GetParam().brand) values.setText("machdep.cpu.brand_string", *GetParam().brand);
    if (GetParam().hardware) values.setText("hw.model", *GetParam().hardware);
    CPUReader reader(machine);
    EXPECT_EQ(secondRead(reader, *machine).model, GetParam().model);
}

class HardwareIdentity : public testing::Test {
  protected:
    // A Mac's own sensors ask for the processor's name, too.
    HardwareIdentity() { machine->calls().sensors = sensors; }

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    SimulatedKernelValues& values = machine->kernelValues();
    SimulatedProcessInfo& surroundings = machine->processInfo();
    ScriptedSensors sensors;
    CPUReader reader{machine};
};

TEST_F(HardwareIdentity, ComesFromTheKernelsValues) {
    surroundings.processors = 16;
    surroundings.activeProcessors = 12;
    const CPUStats& stats = secondRead(reader, *machine);
    EXPECT_EQ(stats.model, "Simulated Processor M1");
    EXPECT_EQ(stats.logicalCoreCount, 4);
    EXPECT_EQ(stats.physicalCoreCount, 2);
    EXPECT_EQ(stats.nominalFrequencyHz, 2'400'000'000U);
}

TEST_F(HardwareIdentity, CountsAsTheOperatingSystemDoesWhereTheKernelDoesNot) {
    values.remove("hw.logicalcpu");
    values.remove("hw.physicalcpu");
    surroundings.processors = 16;
    surroundings.activeProcessors = 12;
    const CPUStats& stats = secondRead(reader, *machine);
    EXPECT_EQ(stats.logicalCoreCount, 16);
    EXPECT_EQ(stats.physicalCoreCount, 12);
}

TEST_F(HardwareIdentity, CountsAsTheOperatingSystemDoesWhereAValueHasAnotherSize) {
    values.setUInt64("hw.logicalcpu", 4);
    values.setBytes("hw.physicalcpu", std::vector<std::byte>(2));
    surroundings.processors = 16;
    surroundings.activeProcessors = 12;
    const CPUStats& stats = secondRead(reader, *machine);
    EXPECT_EQ(stats.logicalCoreCount, 16);
    EXPECT_EQ(stats.physicalCoreCount, 12);
}

TEST_F(HardwareIdentity, HasNoFrequencyForGoodWhereTheKernelNamesNone) {
    values.remove("hw.cpufrequency");
    EXPECT_EQ(secondRead(reader, *machine).nominalFrequencyHz, std::nullopt);
    values.setUInt64("hw.cpufrequency", 1);
    machine->hostProcessors().spend(0, {1, 0, 1, 0});
    EXPECT_EQ(reader.read()->nominalFrequencyHz, std::nullopt);
}

TEST_F(HardwareIdentity, IsAskedForOnceAndOutlivesAReset) {
    const CPUStats first = secondRead(reader, *machine);
    values.setText("machdep.cpu.brand_string", "Another");
    values.setInt32("hw.logicalcpu", 99);
    values.setInt32("hw.physicalcpu", 98);
    values.setUInt64("hw.cpufrequency", 97);
    reader.resetDeltas();
    const CPUStats& later = secondRead(reader, *machine);
    EXPECT_EQ(later.model, first.model);
    EXPECT_EQ(later.logicalCoreCount, first.logicalCoreCount);
    EXPECT_EQ(later.physicalCoreCount, first.physicalCoreCount);
    EXPECT_EQ(later.nominalFrequencyHz, first.nominalFrequencyHz);
    EXPECT_EQ(values.valueReads("machdep.cpu.brand_string"), 1);
    EXPECT_EQ(values.valueReads("hw.logicalcpu"), 1);
    EXPECT_EQ(values.valueReads("hw.physicalcpu"), 1);
    EXPECT_EQ(values.valueReads("hw.cpufrequency"), 1);
}

TEST_F(HardwareIdentity, IsNotAskedForUntilAReadHasShares) {
    reader.read();
    reader.read();
    EXPECT_EQ(values.valueReads("machdep.cpu.brand_string"), 0);
}

TEST_F(HardwareIdentity, DoesNotAskForTheHardwareModelBesideABrand) {
    secondRead(reader, *machine);
    EXPECT_EQ(values.valueReads("hw.model"), 0);
}

using HardwareIdentityDeathTest = HardwareIdentity;

TEST_F(HardwareIdentityDeathTest, ACountPast32BitsEndsTheProgram) {
    values.remove("hw.logicalcpu");
    surroundings.processors = std::int64_t{INT32_MAX} + 1;
    EXPECT_DEATH(secondRead(reader, *machine), "");
}

TEST_F(HardwareIdentityDeathTest, AnActiveCountPast32BitsEndsTheProgram) {
    values.remove("hw.physicalcpu");
    surroundings.activeProcessors = std::int64_t{INT32_MAX} + 1;
    EXPECT_DEATH(secondRead(reader, *machine), "");
}

TEST_F(HardwareIdentityDeathTest, TheLargest32BitCountDoesNot) {
    values.remove("hw.logicalcpu");
    surroundings.processors = INT32_MAX;
    EXPECT_EQ(secondRead(reader, *machine).logicalCoreCount, INT32_MAX);
}

class Temperature : public testing::Test {
  protected:
    Temperature() {
        machine->calls().sensors = sensors;
        sensors.processor = [this] {
            ++questions;
            return answer;
        };
    }

    std::shared_ptr<SimulatedMachine> machine = SimulatedMachine::laptop();
    int questions = 0;
    std::optional<double> answer = 61.5;
    CPUReader reader{machine};
    ScriptedSensors sensors;
};

TEST_F(Temperature, IsAskedForOncePerReadThatHasShares) {
    EXPECT_EQ(secondRead(reader, *machine).temperatureCelsius, 61.5);
    EXPECT_EQ(questions, 1);
    answer = 62.5;
    machine->hostProcessors().spend(0, {1, 0, 1, 0});
    EXPECT_EQ(reader.read()->temperatureCelsius, 62.5);
    EXPECT_EQ(questions, 2);
}

TEST_F(Temperature, IsNotAskedForByAReadWithoutShares) {
    reader.read();
    reader.read();
    machine->hostProcessors().totalFails = true;
    reader.read();
    EXPECT_EQ(questions, 0);
}

TEST_F(Temperature, IsAbsentAgainWhenTheSensorFallsSilent) {
    secondRead(reader, *machine);
    answer.reset();
    machine->hostProcessors().spend(0, {1, 0, 1, 0});
    EXPECT_EQ(reader.read()->temperatureCelsius, std::nullopt);
}

TEST_F(Temperature, IsAbsentWithoutASensor) {
    const auto blind = SimulatedMachine::laptop();
    CPUReader itsReader(blind);
    EXPECT_EQ(secondRead(itsReader, *blind).temperatureCelsius, std::nullopt);
}

}  // namespace
}  // namespace vantor::cpu_reader_identity_test
