#include <gtest/gtest.h>

#include "platform/linux/linux_machine.h"
#include "platform/linux/sensors/processor_sensors.h"

namespace vantor::live_temperature_test {
namespace {

TEST(LiveTemperature, IsPlausibleOrAbsent) {
    const auto temperature = LinuxMachine().sensors().processorTemperature();
    const bool hasSensors = !ProcessorSensors(LinuxRoots{}).list()->sensors.empty();
    if (!hasSensors) {
        EXPECT_EQ(temperature, std::nullopt);
        GTEST_SKIP() << "this machine shows no sensor of its processor";
    }
    if (!temperature) GTEST_SKIP() << "the sensors of this machine do not answer";
    EXPECT_GT(*temperature, -20);
    EXPECT_LT(*temperature, 150);
}

}  // namespace
}  // namespace vantor::live_temperature_test
