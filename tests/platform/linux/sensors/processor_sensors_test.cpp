#include "platform/linux/sensors/processor_sensors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_descriptor.h"
#include "platform/linux/sensors/sensor_tree.h"
#include "support/named_row.h"

namespace vantor::processor_sensors_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
constexpr auto none = std::nullopt;

class ProcessorSensorsTest : public testing::Test, protected SensorTree {
  protected:
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (const ProcessorSensor& sensor : sensors.list()->sensors)
            all.push_back(sensor.name());
        return all;
    }

    double uptime = 1000;
    ProcessorSensors sensors{tree.roots(), [this] { return uptime; }};
};

TEST_F(ProcessorSensorsTest, WithoutAnyThereIsNoTemperature) {
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_EQ(sensors.hottestCore(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, TheHottestPackageAndTheHottestCoreOfAllCount) {
    monitor(3, "coretemp");
    sensor(3, 1, "Package id 0", "61000\n");
    sensor(3, 2, "Core 0", "55000\n");
    sensor(3, 3, "Core 1", "56000\n");
    sensor(3, 12, "Core 10", "57500\n");
    monitor(4, "coretemp");
    sensor(4, 1, "Package id 1", "64250\n");
    sensor(4, 2, "Core 0", "50000\n");
    EXPECT_EQ(sensors.hottestPackage(), 64.25);
    EXPECT_EQ(sensors.hottestCore(), 57.5);
}

TEST_F(ProcessorSensorsTest, TheDieCountsBeforeWhatTheFansAreSteeredBy) {
    monitor(0, "k10temp");
    sensor(0, 1, "Tctl", "88000\n");
    EXPECT_EQ(sensors.hottestPackage(), 88);
    uptime += 60;
    sensor(0, 2, "Tdie", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_THAT(names(), ElementsAre("k10temp Tdie"));
    sensor(0, 2, "Tdie", "");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), none) << "a number with an offset is no stand-in";
}

TEST_F(ProcessorSensorsTest, OldKernelsTellOneTemperatureWithoutALabel) {
    monitor(0, "k10temp");
    sensor(0, 1, "", "45500\n");
    EXPECT_EQ(sensors.hottestPackage(), 45.5);
    EXPECT_THAT(names(), ElementsAre("k10temp"));
}

TEST_F(ProcessorSensorsTest, ALabelThatCannotBeReadIsNotTheSameAsNone) {
    monitor(0, "k10temp");
    sensor(0, 1, "", "45500\n");
    attribute(0, "temp1_label", "");
    EXPECT_EQ(sensors.hottestPackage(), none);
}

TEST_F(ProcessorSensorsTest, CoresAloneGiveNoPackage) {
    monitor(0, "coretemp");
    sensor(0, 2, "Core 0", "48000\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_EQ(sensors.hottestCore(), 48);
}

TEST_F(ProcessorSensorsTest, ZonesCountWhereNoMonitorKnowsAPackage) {
    zone(0, "acpitz", "27800\n");
    zone(1, "cpu0-thermal", "51000\n");
    zone(7, "cpu1-thermal", "52500\n");
    zone(8, "gpu-thermal", "90000\n");
    EXPECT_EQ(sensors.hottestPackage(), 52.5);
    EXPECT_THAT(names(), ElementsAre("cpu0-thermal", "cpu1-thermal"));
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "40000\n");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 40);
    EXPECT_THAT(names(), ElementsAre("coretemp Package id 0"));
}

TEST_F(ProcessorSensorsTest, FirmwaresZoneAloneIsNoProcessor) {
    zone(0, "acpitz", "27800\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, TemperaturesAreReadEachTime) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    sensor(0, 1, "Package id 0", "9000\n");
    EXPECT_EQ(sensors.hottestPackage(), 9);
    sensor(0, 1, "Package id 0", "-5500\n");
    EXPECT_EQ(sensors.hottestPackage(), -5.5);
}

struct AbsentRow : NamedRow {
    const char* input;
};

class AbsentSensor : public ProcessorSensorsTest, public testing::WithParamInterface<AbsentRow> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, AbsentSensor,
    testing::Values(AbsentRow{{"Empty"}, ""}, AbsentRow{{"Blank"}, "\n"},
                    AbsentRow{{"Words"}, "N/A\n"}, AbsentRow{{"Fraction"}, "45.5\n"},
                    AbsentRow{{"TwoNumbers"}, "45000 46000\n"}, AbsentRow{{"Plus"}, "+45000\n"},
                    AbsentRow{{"Hexadecimal"}, "0xAFC8\n"},
                    AbsentRow{{"Wrapped"}, "18446744073709551615\n"},
                    AbsentRow{{"TooLong"}, "0000000000000000000000000000000000045000\n"},
                    AbsentRow{{"AbsoluteZero"}, "-273150\n"}, AbsentRow{{"Minus20"}, "-20000\n"},
                    AbsentRow{{"Exactly150"}, "150000\n"}, AbsentRow{{"Byte255"}, "255000\n"},
                    AbsentRow{{"Garbage"}, "\xFF\x00\x7F\n"}),
    rowName<AbsentRow>);

TEST_P(AbsentSensor, IsNot0DegreesAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", GetParam().input);
    EXPECT_EQ(sensors.hottestPackage(), none);
    monitor(1, "coretemp");
    sensor(1, 1, "Package id 1", "41000\n");
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 41);
}

TEST_F(ProcessorSensorsTest, ASensorWhoseReadingFailsIsAbsentAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Package id 1", "41000\n");
    std::filesystem::remove(inputPath(0, 1));
    // A pipe refuses to be read at a place, as a sensor refuses that has nothing to tell.
    ASSERT_EQ(::mkfifo(inputPath(0, 1).c_str(), 0600), 0);
    EXPECT_EQ(sensors.hottestPackage(), 41);
    EXPECT_EQ(names().size(), 2U);
}

TEST_F(ProcessorSensorsTest, ASensorWithAnInputErrorIsAbsentAndHidesNoOther) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Package id 1", "41000\n");
    std::filesystem::remove(inputPath(0, 1));
    std::filesystem::create_symlink("/proc/self/mem", inputPath(0, 1));  // nothing is at 0
    EXPECT_EQ(sensors.hottestPackage(), 41);
}

TEST_F(ProcessorSensorsTest, ASensorThatSaysItIsBrokenIsAbsentForAsLong) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    attribute(0, "temp1_fault", "1\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    attribute(0, "temp1_fault", "0\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_F(ProcessorSensorsTest, ASensorThatIsOffIsAbsentForAsLong) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    attribute(0, "temp1_enable", "0\n");
    EXPECT_EQ(sensors.hottestPackage(), none);
    attribute(0, "temp1_enable", "1\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_F(ProcessorSensorsTest, MonitorsMayHaveOtherNumbersAtTheNextBoot) {
    monitor(1, "nvme");
    sensor(1, 1, "Composite", "70000\n");
    monitor(2, "coretemp");
    sensor(2, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    SensorTree next;
    next.monitor(1, "coretemp");
    next.sensor(1, 1, "Package id 0", "62000\n");
    next.monitor(2, "nvme");
    next.sensor(2, 1, "Composite", "71000\n");
    EXPECT_EQ(ProcessorSensors(next.tree.roots()).hottestPackage(), 62);
}

TEST_F(ProcessorSensorsTest, AMonitorThatGoesAndComesBackWithAnotherNumberIsFound) {
    monitor(2, "coretemp");
    sensor(2, 1, "Package id 0", "61000\n");
    EXPECT_EQ(sensors.hottestPackage(), 61);
    // An open file of a removed device fails; of a file that is only removed, it does not.
    sensor(2, 1, "Package id 0", "");
    removeMonitor(2);
    monitor(5, "coretemp");
    sensor(5, 1, "Package id 0", "62000\n");
    uptime += 4.9;
    EXPECT_EQ(sensors.hottestPackage(), none);
    uptime += 0.1;
    EXPECT_EQ(sensors.hottestPackage(), 62);
    sensor(5, 1, "Package id 0", "");
    removeMonitor(5);
    uptime += 5;
    EXPECT_EQ(sensors.hottestPackage(), none);
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ProcessorSensorsTest, SensorsAreSoughtOnceAMinute) {
    EXPECT_EQ(sensors.hottestPackage(), none);
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    uptime += 59.9;
    EXPECT_EQ(sensors.hottestPackage(), none);
    uptime += 0.1;
    EXPECT_EQ(sensors.hottestPackage(), 61);
}

TEST_F(ProcessorSensorsTest, Of128CoresEachIsFound) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    for (int core = 0; core < 128; ++core)
        sensor(0, core + 2, "Core " + std::to_string(core), std::to_string(40000 + core * 100));
    EXPECT_EQ(sensors.hottestCore(), 52.7);
    EXPECT_EQ(sensors.list()->cores.size(), 128U);
    EXPECT_EQ(names().size(), 129U);
}

/// Tells which files of a folder are opened.
class OpeningWatch {
  public:
    void watch(const std::filesystem::path& path) {
        ASSERT_GE(::inotify_add_watch(events_.get(), path.c_str(), IN_OPEN | IN_ACCESS), 0);
    }
    bool sawAny() const {
        std::array<char, 4096> buffer{};
        return ::read(events_.get(), buffer.data(), buffer.size()) > 0;
    }

  private:
    FileDescriptor events_{::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
};

TEST_F(ProcessorSensorsTest, DisksAndGraphicsCardsAreNeverOpened) {
    OpeningWatch others;
    OpeningWatch own;
    int number = 0;
    for (const char* driver :
         {"drivetemp", "nvme", "amdgpu", "nouveau", "i915", "xe", "acpitz", "nct6775"}) {
        monitor(number, driver);
        sensor(number, 1, "Tdie", "70000\n");
        attribute(number, "temp1_fault", "0\n");
        others.watch(inputPath(number, 1));
        others.watch(inputPath(number, 1).parent_path() / "temp1_label");
        others.watch(inputPath(number, 1).parent_path() / "temp1_fault");
        ++number;
    }
    monitor(number, "coretemp");
    sensor(number, 1, "Package id 0", "61000\n");
    sensor(number, 2, "Core 0", "60000\n");
    own.watch(inputPath(number, 1));
    OpeningWatch core;
    core.watch(inputPath(number, 2));
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_TRUE(own.sawAny());
    EXPECT_FALSE(core.sawAny()) << "one package is asked, not its cores";
    EXPECT_EQ(sensors.hottestCore(), 60);
    EXPECT_TRUE(core.sawAny());
    uptime += 60;
    EXPECT_EQ(sensors.hottestPackage(), 61);
    EXPECT_FALSE(others.sawAny());
}

TEST_F(ProcessorSensorsTest, SeveralThreadsMayAskWhileSensorsAreSought) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "61000\n");
    sensor(0, 2, "Core 0", "60000\n");
    std::atomic<double> now{0};
    ProcessorSensors shared(tree.roots(), [&now] { return now.load(); });
    ASSERT_EQ(shared.hottestPackage(), 61);
    std::atomic<int> wrong{0};
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&] {
                for (int i = 0; i < 50; ++i) {
                    now = now + 20;
                    if (shared.hottestPackage() != 61 || shared.hottestCore() != 60) ++wrong;
                }
            });
        }
    }
    EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace vantor::processor_sensors_test
