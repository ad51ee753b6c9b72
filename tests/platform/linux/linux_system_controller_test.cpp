#include "platform/linux/linux_system_controller.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/linux_machine.h"
#include "platform/linux/sensor_tree.h"
#include "platform/smc_record.h"
#include "probes/hardware_temperature_reader.h"

namespace vantor::linux_system_controller_test {
namespace {

constexpr auto none = std::nullopt;

class LinuxSystemControllerTest : public testing::Test, protected SensorTree {
  protected:
    LinuxSystemControllerTest() {
        monitor(0, "coretemp");
        sensor(0, 1, "Package id 0", "61500\n");
        sensor(0, 2, "Core 0", "55000\n");
        sensor(0, 3, "Core 14", "56000\n");
    }

    struct Answer {
        int error = 0;
        std::size_t size = 0;
        SMCRecord record;
    };
    Answer ask(const char* key, SMCRecord::Command command, SystemController::Connection connection,
               std::uint32_t selector = 2) {
        SMCRecord request;
        request.setKey(*fourCC(key));
        request.setDataSize(4);
        request.setCommand(command);
        Answer answer;
        answer.error = controller.callStructMethod(connection, selector, request.bytes(),
                                                   answer.record.bytes(), answer.size);
        return answer;
    }
    Answer ask(const char* key, SMCRecord::Command command) {
        return ask(key, command, controller.open(controller.matchingService()));
    }

    static float valueOf(const SMCRecord& record) {
        float value = 0;
        std::memcpy(&value, record.value().data(), sizeof value);
        return value;
    }

    double uptime = 0;
    LinuxSystemController controller{
        std::make_shared<ProcessorSensors>(tree.roots(), [this] { return uptime; })};
};

TEST_F(LinuxSystemControllerTest, TellsOfItsKeysAndTheirValues) {
    for (const auto& [key, value] : {std::pair("TC0D", 61.5F), {"TC0C", 55.0F}, {"TC4C", 56.0F}}) {
        SCOPED_TRACE(key);
        const Answer info = ask(key, SMCRecord::Command::readKeyInfo);
        EXPECT_EQ(info.error, 0);
        EXPECT_EQ(info.size, 80U);
        EXPECT_EQ(info.record.result(), 0);
        EXPECT_EQ(info.record.dataSize(), 4U);
        EXPECT_EQ(info.record.dataType(), fourCC("flt "));
        const Answer bytes = ask(key, SMCRecord::Command::readBytes);
        EXPECT_EQ(bytes.error, 0);
        EXPECT_EQ(bytes.size, 80U);
        EXPECT_EQ(bytes.record.result(), 0);
        EXPECT_EQ(valueOf(bytes.record), value);
    }
}

TEST_F(LinuxSystemControllerTest, RefusesOtherKeys) {
    for (const char* key : {"TC1C", "TC9C", "TC0P", "TCXC", "TC0E", "Tp09", "TC/C", "TC:C", "TC0B",
                            "TC0d", "TD0C", "\xFF\xFF\xFF\xFF"}) {
        SCOPED_TRACE(key);
        EXPECT_EQ(ask(key, SMCRecord::Command::readKeyInfo).record.result(), 0x84);
        EXPECT_NE(ask(key, SMCRecord::Command::readBytes).record.result(), 0);
    }
}

TEST_F(LinuxSystemControllerTest, RefusesWhatIsNoCallOfItsOwn) {
    const auto info = SMCRecord::Command::readKeyInfo;
    EXPECT_NE(ask("TC0D", info, 0).error, 0);
    EXPECT_NE(ask("TC0D", info, 1, 3).error, 0);
    EXPECT_NE(ask("TC0D", static_cast<SMCRecord::Command>(6)).record.result(), 0);
    EXPECT_EQ(controller.open(0), 0U);
    std::array<std::byte, 79> small{};
    std::array<std::byte, 80> whole{};
    std::size_t size = 0;
    EXPECT_NE(controller.callStructMethod(1, 2, small, whole, size), 0);
    EXPECT_NE(controller.callStructMethod(1, 2, whole, small, size), 0);
}

TEST_F(LinuxSystemControllerTest, ASensorThatFailsIsAnErrorAndNot0Degrees) {
    sensor(0, 1, "Package id 0", "");
    const Answer bytes = ask("TC0D", SMCRecord::Command::readBytes);
    EXPECT_NE(bytes.record.result(), 0);
}

TEST_F(LinuxSystemControllerTest, IsNotThereWithoutASensor) {
    removeMonitor(0);
    zone(0, "acpitz", "27800\n");
    EXPECT_EQ(controller.matchingService(), 0U);
}

class LinuxTemperature : public testing::Test, protected SensorTree {
  protected:
    void processor(const std::string& name) const {
        tree.proc("cpuinfo", "processor\t: 0\nmodel name\t: " + name + "\n\n");
    }
    std::optional<double> read() {
        return HardwareTemperatureReader(std::make_shared<LinuxMachine>(tree.roots()))
            .cpuTemperature();
    }
};

TEST_F(LinuxTemperature, IsThePackages) {
    processor("Some Processor 9000");
    EXPECT_EQ(read(), none);
    monitor(0, "k10temp");
    sensor(0, 1, "Tctl", "61500\n");
    sensor(0, 3, "Tccd1", "65000\n");
    EXPECT_EQ(read(), 61.5);
}

TEST_F(LinuxTemperature, IsTheHottestCoresWhereThePackageFailsOrIsNotKnown) {
    monitor(0, "coretemp");
    sensor(0, 2, "Core 0", "55000\n");
    sensor(0, 3, "Core 9", "57250\n");
    EXPECT_EQ(read(), 57.25);
    sensor(0, 1, "Package id 0", "");
    EXPECT_EQ(read(), 57.25);
    sensor(0, 1, "Package id 0", "50000\n");
    EXPECT_EQ(read(), 50);
}

TEST_F(LinuxTemperature, OfAProcessorThatCallsItselfApplesIsThatOfItsSensors) {
    processor("Apple M2");
    zone(0, "cpu-thermal", "44750\n");
    zone(1, "gpu-thermal", "60000\n");
    EXPECT_EQ(read(), 44.75);
}

TEST_F(LinuxTemperature, KeepsNoFileOfAMachineThatHasGone) {
    monitor(0, "coretemp");
    sensor(0, 1, "Package id 0", "50000\n");
    const auto open = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    };
    const auto before = open();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(read(), 50);
    EXPECT_EQ(open(), before);
}

}  // namespace
}  // namespace vantor::linux_system_controller_test
