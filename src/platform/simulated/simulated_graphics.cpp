#include "platform/simulated/simulated_graphics.h"

#include <utility>

namespace vantor {

namespace {

using RawDictionary = SimulatedAccelerators::RawDictionary;

constexpr std::uint64_t mebibyte = std::uint64_t{1} << 20;

PropertyValue dataOf(const std::string& text) {
    PropertyValue::Data data;
    for (const char byte : text)
        data.push_back(static_cast<std::byte>(byte));
    data.push_back(std::byte{0});
    return PropertyValue(std::move(data));
}

}  // namespace

SimulatedAccelerators::Service& addGraphics(SimulatedMachine& machine, std::uint64_t registryID,
                                            const std::string& name, RawDictionary statistics) {
    GraphicsDevices::Device& device = machine.graphicsDevices().devices.emplace_back();
    device.registryID = registryID;
    device.name = name;
    SimulatedAccelerators::Service& service = machine.accelerators().services.emplace_back();
    service.registryEntryID = registryID;
    service.model = PropertyValue(name);
    service.statistics = std::move(statistics);
    return service;
}

void addLaptopGraphics(SimulatedMachine& machine) {
    addGraphics(machine, 4294968421, "Simulated Graphics",
                {{"Device Utilization %", 12},
                 {"Renderer Utilization %", 11},
                 {"Tiler Utilization %", 4},
                 {"In use system memory", std::int64_t{734'003'200}},
                 {"Alloc system memory", std::int64_t{2'147'483'648}},
                 {"recoveryCount", 0}});
    GraphicsDevices::Device& device = machine.graphicsDevices().devices.back();
    device.hasUnifiedMemory = true;
    device.recommendedMaxWorkingSetSize = 10 * 1024 * mebibyte;
    machine.graphicsDevices().defaultDevice = device.registryID;
}

void addDesktopGraphics(SimulatedMachine& machine) {
    machine.graphicsDevices().devices.clear();
    machine.accelerators().services.clear();
    auto& first = addGraphics(machine, 4294968900, "Radeon Pro Simulated",
                              {{"GPU Activity(%)", 35},
                               {"Temperature(C)", 61},
                               {"VRAM Used(MB)", 1536},
                               {"VRAM Total(MB)", 8192},
                               {std::nullopt, 7},
                               {"Fan Speed(RPM)", 1200}});
    first.model = dataOf("Radeon Pro Simulated");
    addGraphics(machine, 4294968800, "GeForce Simulated",
                {{"Performance", RawDictionary{{"GPU Core Utilization", 0.02}, {"Idle", true}}},
                 {"Sensors", RawDictionary{{"GPU Temperature", 38.5}}},
                 {"vram,used,bytes", std::int64_t{268'435'456}},
                 {"vram,total,bytes", std::int64_t{4'294'967'296}}});
    std::uint64_t gibibytes = 8;
    for (GraphicsDevices::Device& device : machine.graphicsDevices().devices) {
        device.recommendedMaxWorkingSetSize = gibibytes * 1024 * mebibyte;
        gibibytes /= 2;
    }
    machine.graphicsDevices().defaultDevice = 4294968800;
}

RawDictionary nestedStatistics(int levels) {
    RawDictionary dictionary;
    for (int level = levels; level >= 0; --level) {
        RawDictionary outer{{"Value", level},
                            {"Flag", true},
                            {"Name", "text"},
                            {"List", PropertyValue(PropertyValue::Array{PropertyValue(1)})},
                            {std::nullopt, level}};
        if (level < levels)
            outer.push_back({"Level " + std::to_string(level + 1), std::move(dictionary)});
        dictionary = std::move(outer);
    }
    return dictionary;
}

RawDictionary manyStatistics(int count) {
    RawDictionary dictionary;
    for (int i = 0; i < count; ++i) {
        const std::string key = "Counter " + std::to_string(i);
        if (i % 3 == 2) {
            dictionary.push_back({"Group", RawDictionary{{key, i}}});
        } else {
            dictionary.push_back({key, i});
        }
    }
    return dictionary;
}

std::vector<StatisticWithUnit> usedMemoryInEveryUnit() {
    return {{"vram used", 1000, 1000},
            {"VRAM Used", 1000.75, 1000},
            {"vram,used", 3, 3},
            {"vram_used", 3, 3},
            {"vram used bytes", 3, 3},
            {"vram used b", 3, 3},
            {"vram used kb", 2, 2048},
            {"vramUsed.VRAM Used(KB)", 2, 2048},
            {"vram_used_kib", 1.5, 1536},
            {"vram used mb", 2, 2 * mebibyte},
            {"VRAM Used(MB)", 2, 2 * mebibyte},
            {"vram,used,MiB", 0.5, mebibyte / 2},
            {"vram_used_mb", 2, 2 * mebibyte},
            {"vram used GB", 2, 2048 * mebibyte},
            {"vram used GiB", 0.25, 256 * mebibyte},
            {"vram_used_gib", 1, 1024 * mebibyte},
            // Without the blank it is no unit.
            {"vram_used_gb", 2, 2},
            {"vram used (gb)", 2, 2},
            // Units of other words count too, in this order.
            {"vram used mb of 8 gib", 1, 1024 * mebibyte},
            {"vram used kb, mb", 1, mebibyte},
            {"number.vram used", 1, mebibyte},
            {"kbase.vram used", 1, 1024}};
}

}  // namespace vantor
