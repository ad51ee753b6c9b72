#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/linux/sensors/processor_sensors.h"
#include "platform/linux/sensors/sensor_tree.h"

namespace vantor {

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

}  // namespace vantor
