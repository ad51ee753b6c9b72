#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/simulated_graphics.h"
#include "platform/simulated/simulated_machine.h"
#include "probes/gpu_reader.h"
#include "support/scripted_sensors.h"

namespace vantor {

/// A reader on a machine without graphics, and the sources of a temperature by script.
class GPUReaderTest : public testing::Test {
  protected:
    GPUReaderTest() {
        machine->calls().sensors = sensors;
        sensors.graphics = [this] {
            ++temperatureReads;
            return chipTemperature;
        };
    }

    using RawDictionary = SimulatedAccelerators::RawDictionary;
    using Rows = std::optional<std::vector<GPUStats>>;

    /// Nothing of the registry's may be left with the reader.
    Rows read() {
        Rows rows = reader.read();
        EXPECT_EQ(accelerators.objectsOutstanding(), 0u);
        EXPECT_EQ(accelerators.strayReleases, 0);
        return rows;
    }

    /// The rows of a read that must answer.
    std::vector<GPUStats> rows() {
        auto all = read();
        EXPECT_TRUE(all);
        return all ? *std::move(all) : std::vector<GPUStats>{};
    }

    /// The only row of a read.
    GPUStats onlyRow() {
        auto all = rows();
        EXPECT_EQ(all.size(), 1u);
        return all.empty() ? GPUStats{} : all.front();
    }

    template <class Field>
    std::vector<Field> each(Field GPUStats::*field) {
        std::vector<Field> values;
        for (const GPUStats& row : rows())
            values.push_back(row.*field);
        return values;
    }

    GraphicsDevices::Device& addDevice(std::uint64_t id, const std::string& name) {
        GraphicsDevices::Device& device = graphics.devices.emplace_back();
        device.registryID = id;
        device.name = name;
        return device;
    }

    SimulatedAccelerators::Service& addService(std::optional<std::uint64_t> id,
                                               const std::optional<std::string>& model,
                                               RawDictionary statistics = {}) {
        SimulatedAccelerators::Service& service = accelerators.services.emplace_back();
        service.registryEntryID = id;
        if (model) service.model = PropertyValue(*model);
        service.statistics = std::move(statistics);
        return service;
    }

    std::shared_ptr<FakeClock> clock = std::make_shared<FakeClock>();
    std::shared_ptr<SimulatedMachine> machine = std::make_shared<SimulatedMachine>(clock);
    SimulatedGraphicsDevices& graphics = machine->graphicsDevices();
    SimulatedAccelerators& accelerators = machine->accelerators();

    std::optional<double> chipTemperature = 47.5;  ///< of the machine's own graphics
    int temperatureReads = 0;
    ScriptedSensors sensors;
    GPUReader reader{machine};
};

}  // namespace vantor
