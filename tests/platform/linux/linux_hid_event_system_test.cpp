#include "platform/linux/linux_hid_event_system.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/linux/sensor_tree.h"
#include "platform/simulated/simulated_machine.h"
#include "probes/hid_temperature_reader.h"

namespace vantor::linux_hid_event_system_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Reading = HIDTemperatureReader::Reading;

class LinuxHIDEventSystemTest : public testing::Test, protected SensorTree {
  protected:
    LinuxHIDEventSystemTest() {
        monitor(1, "coretemp");
        sensor(1, 1, "Package id 0", "61500\n");
        sensor(1, 2, "Core 0", "55000\n");
        monitor(2, "nvme");
        sensor(2, 1, "Composite", "40000\n");
    }

    SimulatedMachine machine;
    LinuxHIDEventSystem system{std::make_shared<ProcessorSensors>(tree.roots())};
    HIDTemperatureReader reader{system, machine.processInfo()};
    HIDEventSystem::Functions functions;
};

TEST_F(LinuxHIDEventSystemTest, ListsProcessorSensorsByDriverAndLabel) {
    EXPECT_THAT(*reader.readings(), ElementsAre(Reading{"coretemp package id 0", 61.5},
                                                Reading{"coretemp core 0", 55}));
}

TEST_F(LinuxHIDEventSystemTest, ASensorThatFailsIsLeftOut) {
    sensor(1, 1, "Package id 0", "");
    EXPECT_THAT(*reader.readings(), ElementsAre(Reading{"coretemp core 0", 55}));
}

TEST_F(LinuxHIDEventSystemTest, OtherKindsOfSensorsOrEventsHaveNone) {
    const auto client = system.createClient(functions);
    std::vector<HIDEventSystem::Object> services;
    system.setMatching(functions, client, 1, 6);
    EXPECT_FALSE(system.copyServices(functions, client, services));
    system.setMatching(functions, client, 0xFF00, 5);
    ASSERT_TRUE(system.copyServices(functions, client, services));
    ASSERT_EQ(services.size(), 2U);
    EXPECT_EQ(system.copyProperty(functions, services[0], "Product"), "coretemp Package id 0");
    EXPECT_EQ(system.copyProperty(functions, services[0], "Manufacturer"), std::nullopt);
    EXPECT_EQ(system.copyEvent(functions, services[0], 14), 0U);
    EXPECT_EQ(system.copyEvent(functions, client, 15), 0U);
    const auto event = system.copyEvent(functions, services[0], 15);
    ASSERT_NE(event, 0U);
    EXPECT_EQ(system.floatValue(functions, event, 15 << 16), 61.5);
    EXPECT_EQ(system.copyProperty(functions, event, "Product"), std::nullopt);
    for (const auto object : {event, services[0], services[1], client})
        system.release(object);
    EXPECT_EQ(system.copyEvent(functions, services[0], 15), 0U) << "given back";
    EXPECT_FALSE(system.copyServices(functions, client, services));
    system.release(client);  // once too often does no harm
}

}  // namespace
}  // namespace vantor::linux_hid_event_system_test
